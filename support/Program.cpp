#include "support/Program.h"

gchar PathName[258];
gint Version = 1001;
