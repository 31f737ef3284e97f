// Date and time of the title area.
#pragma once

#include <ctime>
#include <string>

#include "Types.h"

// The date in calendar format 1..6, EUC-JP; empty for any other format.
std::string CalendarText(gint format, const std::tm& time);
// The time that pictures show: the one set by SetPictureTime, else now.
std::tm PictureTime();
