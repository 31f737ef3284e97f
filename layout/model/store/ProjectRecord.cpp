#include "layout/ProjectRecord.h"

gint ProjFlag;
gchar ProjName[82];
gchar ProjPath[258];
gchar BmapPath[258];
// Packed records may start anywhere, but controls are bound to their numbers by address.
alignas(gint) PROJDATA ProjData;
alignas(gint) PROJDATA EditData;
gchar EditName[82];
gchar EditPath[258];
