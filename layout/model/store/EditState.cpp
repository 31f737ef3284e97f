#include "layout/EditState.h"

gint PtrnMode;
gint PtrnType;
gint PtrnNo = -1;
gint PtrnPost;
POINT PtrnPoint1;
POINT PtrnPoint2;
POINT PtrnPoint3;
POINT AreaPoint1;
POINT AreaPoint2;
gint PtrnUnSlct[ItemTypeCount];
gint PtrnUndef;
gint ColorCode;
