#include "render/layout/Calendar.h"

#include <cstdio>

#include "support/Text.h"

namespace {

constexpr const char* EnglishDays[7] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
constexpr const char* JapaneseDays[7] = {"日", "月", "火", "水", "木", "金", "土"};

// Index = calendar format.
constexpr const char* Patterns[7] = {"",
                                     "%04d/%02d/%02d (%s)",
                                     "%04d/%02d/%02d (%s) %02d:%02d",
                                     "%04d/%02d/%02d (%s) %02d:%02d:%02d",
                                     "%04d年%02d月%02d日 (%s)",
                                     "%04d年%02d月%02d日 (%s) %02d時%02d分",
                                     "%04d年%02d月%02d日 (%s) %02d時%02d分%02d秒"};

}  // namespace

std::string CalendarText(gint format, const std::tm& time) {
  if (format < 1 || format > 6) return {};
  const int day = time.tm_wday >= 0 && time.tm_wday <= 6 ? time.tm_wday : 0;
  const char* const dayName = format > 3 ? JapaneseDays[day] : EnglishDays[day];
  char text[128];
  // A pattern of fewer fields ignores the rest. Kept: the month counts from 0, January is 00.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
  std::snprintf(text, sizeof text, Patterns[format], time.tm_year + 1900, time.tm_mon, time.tm_mday,
                dayName, time.tm_hour, time.tm_min, time.tm_sec);
#pragma GCC diagnostic pop
  return EucFromUtf8(text).value_or(std::string());
}
