// Logic generation: its four steps and what they are made of.
#pragma once

#include "Types.h"

void LogicDataEdit1();
void LogicDataEdit2();
void LogicDataEdit3();
void LogicDataEdit4();
void SetPtrnCode(const gchar* ptrnfile);
void SetPtrnName(const gchar* name);
// 1 when `text` occurs in `buff`; the very last position is not examined.
gint CompareText(const gchar* buff, const gchar* text);
void InitProjIni(const gchar* path, const gchar* name);
