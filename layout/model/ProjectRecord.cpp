#include "ProjData.h"

gint ProjFlag;
gchar ProjName[82];
gchar ProjPath[258];
gchar BmapPath[258];
PROJDATA ProjData;
PROJDATA EditData;
gchar EditName[82];
gchar EditPath[258];
