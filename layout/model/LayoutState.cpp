#include "layout/Store.h"

PTRNHEDR PtrnHedr;
PTRNHEDR EditHedr;
PTRNDATA PtrnData;
gchar PtrnName[82];
gint PtrnFlag;
