#include <gtest/gtest.h>

#include "render/LayoutPicture.h"
#include "render/layout/Calendar.h"
#include "render/primitives/Gradation.h"
#include "support/Text.h"

namespace {

std::tm Moment() {
  std::tm time{};
  time.tm_year = 126;
  time.tm_mon = 10;
  time.tm_mday = 5;
  time.tm_wday = 4;
  time.tm_hour = 7;
  time.tm_min = 8;
  time.tm_sec = 9;
  return time;
}

std::string Calendar(gint format, const std::tm& time) {
  return Utf8FromEuc(CalendarText(format, time)).value();
}

TEST(CalendarText, HasSixFormatsWithTheMonthCountedFromZero) {
  EXPECT_EQ(Calendar(1, Moment()), "2026/10/05 (Thu)");
  EXPECT_EQ(Calendar(2, Moment()), "2026/10/05 (Thu) 07:08");
  EXPECT_EQ(Calendar(3, Moment()), "2026/10/05 (Thu) 07:08:09");
  EXPECT_EQ(Calendar(4, Moment()), "2026年10月05日 (木)");
  EXPECT_EQ(Calendar(5, Moment()), "2026年10月05日 (木) 07時08分");
  EXPECT_EQ(Calendar(6, Moment()), "2026年10月05日 (木) 07時08分09秒");
}

TEST(CalendarText, ShowsJanuaryAsMonthZero) {
  std::tm time = Moment();
  time.tm_mon = 0;
  EXPECT_EQ(Calendar(1, time), "2026/00/05 (Thu)");
}

TEST(CalendarText, NamesTheDaysInEnglishUpToFormatThreeThenInJapanese) {
  const char* const english[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  const char* const japanese[] = {"日", "月", "火", "水", "木", "金", "土"};
  for (int day = 0; day < 7; ++day) {
    std::tm time = Moment();
    time.tm_wday = day;
    EXPECT_EQ(Calendar(1, time), std::string("2026/10/05 (") + english[day] + ")");
    EXPECT_EQ(Calendar(4, time), std::string("2026年10月05日 (") + japanese[day] + ")");
  }
}

TEST(CalendarText, IsEmptyForAnyOtherFormat) {
  for (const gint format : {0, 7, -1, 1000000}) EXPECT_EQ(CalendarText(format, Moment()), "");
}

TEST(CalendarText, SurvivesATimeThatNoCalendarHas) {
  std::tm time = Moment();
  time.tm_wday = 12;
  time.tm_hour = -5;
  EXPECT_EQ(Calendar(2, time), "2026/10/05 (Sun) -5:08");
}

TEST(PictureTime, IsTheTimeSetUntilItIsTakenBack) {
  const std::tm fixed = Moment();
  SetPictureTime(&fixed);
  EXPECT_EQ(PictureTime().tm_year, 126);
  EXPECT_EQ(PictureTime().tm_sec, 9);
  SetPictureTime(nullptr);
  std::tm now = PictureTime();
  EXPECT_NEAR(static_cast<double>(std::mktime(&now)), static_cast<double>(std::time(nullptr)), 5);
}

TEST(Gradation, DarkensEachChannelInTwoHundredFiftySixShades) {
  const COLRDATA colour{65535, 32768, 256};
  EXPECT_EQ(GradationPixel(colour, 0), 0xff8001U);
  // 65535 - 32767 = 32768, 32768 - 16384 = 16384, 256 - 128 = 128: high bytes 80, 40, 00.
  EXPECT_EQ(GradationPixel(colour, 128), 0x804000U);
  // 65535 - 65279 = 256, 32768 - 32640 = 128, 256 - 255 = 1.
  EXPECT_EQ(GradationPixel(colour, 255), 0x010000U);
}

TEST(Gradation, SpreadsTheShadesOverTheRows) {
  EXPECT_EQ(GradationShade(0, 100), 0);
  EXPECT_EQ(GradationShade(50, 100), 127);
  EXPECT_EQ(GradationShade(99, 100), 252);
  EXPECT_EQ(GradationShade(0, 1), 0);
}

}  // namespace
