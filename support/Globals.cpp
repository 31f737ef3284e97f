#include "support/Program.h"
#include "support/Resource.h"

gchar PathName[258];
gint Version = 1001;
gint Language;
