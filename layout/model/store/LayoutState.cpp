#include "layout/Store.h"

// Packed records may start anywhere, but controls are bound to their numbers by address.
alignas(gint) PTRNHEDR PtrnHedr;
alignas(gint) PTRNHEDR EditHedr;
alignas(gint) PTRNDATA PtrnData;
gchar PtrnName[82];
gint PtrnFlag;
