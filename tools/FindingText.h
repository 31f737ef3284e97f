// Findings as lines for people.
#pragma once

#include <string>

#include "project/check/Check.h"

// "layout: item 3 (ボタン): ID_Name: no layout is named "X" [screen-missing]", ended by a line
// feed.
std::string FindingLine(const Finding& finding);
