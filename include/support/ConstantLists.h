// The constant lists. All texts are UTF-8; every text list ends with an empty text.
#pragma once

#include "Types.h"

// Processing types, index = ID_Type.
extern const gchar* const IDCodeList[18];
// Line styles and their codes.
extern const gchar* const LineStyleList[4];
extern const gint LineStyleData[3];
// Zoom factors in percent, index = PTRNHEDR.Parm2[0].
extern const gint ZoomFactorData[5];
// Grid intervals as texts and in layout dots; the list of dots ends with -1.
extern const gchar* const GridIntvList[13];
extern const gint GridIntvData[13];
// Display sizes as texts ("800 × 600") and in dots, index = PROJDATA.Parm1[0].
extern const gchar* const DispSizeList[8];
extern const SIZE DispSizeData[7];
// Calendar formats: "(非表示)" and a sample of each of the six patterns.
extern const gchar* const CalnFomtList[8];
// Cursor number for each hit code 0..9.
extern const gint PtrnCusrType[10];
// Validation messages, index = message number.
extern const gchar* const ErrorMessage[19];
