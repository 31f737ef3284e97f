// Every rule of every type, on an item that breaks just this one.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "Constant.h"
#include "layout/Validate.h"

namespace {

// An item that breaks no rule.
PTRNDATA ValidItem(gint type) {
  PTRNDATA item{};
  item.Type = type;
  item.Point1 = {10, 10};
  item.Point2 = {50, 40};
  item.Parm[15] = 1;
  item.Parm[16] = 1;
  item.Parm[17] = type == 8 ? 0 : 2;
  item.Parm[18] = item.Parm[19] = item.Parm[20] = 1;
  std::strcpy(item.Text1, "text");
  std::strcpy(item.ID_Code, "CODE");
  return item;
}

struct Case {
  const char* What;
  gint Type;
  std::function<void(PTRNDATA&)> Break;
  gint Message;
};

std::function<void(PTRNDATA&)> Set(gint slot, gint value) {
  return [=](PTRNDATA& item) { item.Parm[slot] = value; };
}

std::function<void(PTRNDATA&)> Set(gint slot1, gint value1, gint slot2, gint value2) {
  return [=](PTRNDATA& item) {
    item.Parm[slot1] = value1;
    item.Parm[slot2] = value2;
  };
}

void SameX(PTRNDATA& item) {
  item.Point2.x = item.Point1.x;
}

void SameY(PTRNDATA& item) {
  item.Point2.y = item.Point1.y;
}

void SamePoint(PTRNDATA& item) {
  item.Point2 = item.Point1;
}

void NoText(PTRNDATA& item) {
  item.Text1[0] = '\0';
}

void NoCode(PTRNDATA& item) {
  item.ID_Code[0] = '\0';
}

std::function<void(PTRNDATA&)> Code(const char* code) {
  return [=](PTRNDATA& item) { std::strcpy(item.ID_Code, code); };
}

std::function<void(PTRNDATA&)> TypeWithoutCode(gint idType) {
  return [=](PTRNDATA& item) {
    NoCode(item);
    item.ID_Type = idType;
  };
}

std::function<void(PTRNDATA&)> TypeWithName(gint idType, const char* name) {
  return [=](PTRNDATA& item) {
    std::strcpy(item.ID_Name, name);
    item.ID_Type = idType;
  };
}

void NegativeNumber(PTRNDATA& item) {
  item.ID_No = -1;
}

const Case Cases[] = {
    {"frame with one x", 1, SameX, 0},
    {"frame with one y", 1, SameY, 0},
    {"rectangle with one x", 3, SameX, 0},
    {"ellipse with one y", 4, SameY, 0},
    {"bar graph with one x", 5, SameX, 0},
    {"button with one y", 9, SameY, 0},
    {"bitmap with one x", 12, SameX, 0},
    {"mark with one y", 13, SameY, 0},
    {"scroll bar with one x", 14, SameX, 0},
    {"spin button with one y", 15, SameY, 0},
    {"line of one point", 2, SamePoint, 0},
    {"vertical line", 2, SameX, -1},
    {"horizontal line", 2, SameY, -1},
    {"text of one point", 6, SamePoint, -1},

    {"frame, top width", 1, Set(24, -1), 4},
    {"frame, bottom width", 1, Set(25, -1), 4},
    {"frame, left width", 1, Set(26, -1), 4},
    {"frame, right width", 1, Set(27, -1), 4},

    {"line of no width", 2, Set(15, 0), 5},
    {"line of negative width", 2, Set(15, -1), 5},

    {"open rectangle without line", 3, Set(12, 0, 15, 0), 4},
    {"open ellipse of negative line", 4, Set(12, 0, 15, -1), 4},
    {"filled rectangle without line", 3, Set(12, 1, 15, 0), -1},
    {"filled ellipse of negative line", 4, Set(12, 1, 15, -1), -1},

    {"bar width", 5, Set(14, -1), 4},
    {"bar outline", 5, Set(15, -1), 4},
    {"bar limits equal", 5, Set(16, 7, 17, 7), 6},
    {"bar limits crossed", 5, Set(16, 1, 17, 0), 6},
    {"bar upper limit below 0", 5, Set(16, 0, 17, -1), 6},
    {"bar limits both 0", 5, Set(16, 0, 17, 0), -1},
    {"bar limits from below 0", 5, Set(16, -1, 17, 0), -1},
    {"bar without code", 5, NoCode, 2},

    {"fixed string without text", 6, NoText, 7},

    {"variable string of no length", 7, Set(16, 0), 8},
    {"variable string without code", 7, NoCode, 2},

    {"numeric of no length", 8, Set(16, 0), 8},
    {"numeric with negative decimals", 8, Set(17, -1), 8},
    {"numeric of decimals alone", 8, Set(16, 3, 17, 3), 9},
    {"numeric with more decimals than digits", 8, Set(16, 3, 17, 4), 9},
    {"numeric with one digit left", 8, Set(16, 3, 17, 2), -1},
    {"numeric without code", 8, NoCode, 2},

    {"button without border", 9, Set(16, 0), 4},
    {"button text left of it", 9, Set(14, -1), 10},
    {"button without text", 9, NoText, -1},
    {"button without code", 9, NoCode, -1},

    {"radio button number", 10, Set(27, -1), 11},
    {"check box has no number", 11, Set(27, -1), -1},

    {"bitmap without name", 12, NoText, 12},

    {"scroll bar frame", 14, Set(15, -1), 4},
    {"scroll bar showing nothing", 14, Set(16, 0), 13},
    {"scroll bar data", 14, Set(17, -1), 14},
    {"scroll bar of no data", 14, Set(17, 0), -1},
    {"scroll bar single step", 14, Set(18, -1), 15},
    {"scroll bar double step", 14, Set(19, -1), 15},
    {"scroll bar third step", 14, Set(20, -1), 15},
    {"scroll bar arrows without step", 14, Set(8, 1, 18, 0), 16},
    {"scroll bar double arrows without step", 14, Set(9, 1, 19, 0), 16},
    {"scroll bar without arrows or step", 14, Set(8, 0, 18, 0), -1},
    {"scroll bar third step missing", 14, Set(20, 0), 16},
    {"scroll bar without code", 14, NoCode, 2},

    {"spin button limits equal", 15, Set(16, 5, 17, 5), 6},
    {"spin button limits both 0", 15, Set(16, 0, 17, 0), -1},
    {"spin button without code", 15, NoCode, 2},

    {"negative number", 13, NegativeNumber, 1},
    {"message 1 without code", 9, TypeWithoutCode(1), 2},
    {"message 4 without code", 9, TypeWithoutCode(4), 2},
    {"processing 9 without code", 9, TypeWithoutCode(9), -1},
    {"opening 5 without name", 9, TypeWithName(5, ""), 3},
    {"opening 8 without name", 9, TypeWithName(8, ""), 3},
    {"opening 5 with name", 9, TypeWithName(5, "Sub"), -1},
    {"processing 9 without name", 9, TypeWithName(9, ""), -1},

    {"code of a digit first", 9, Code("9x"), 17},
    {"code of a sign first", 9, Code("-a"), 17},
    {"code of two bytes first", 9, Code("\xA4\xA2"), 17},
    {"code of an underscore first", 9, Code("_9"), -1},
    {"code with a sign later", 9, Code("a-b"), -1},
    {"code with two bytes later", 9, Code("Z\xA4\xA2"), -1},
};

TEST(ValidateTest, EveryRuleOfEveryType) {
  for (const Case& each : Cases) {
    PTRNDATA item = ValidItem(each.Type);
    each.Break(item);
    EXPECT_EQ(CheckPtrnData(&item), each.Message) << each.What;
  }
}

TEST(ValidateTest, EveryTypeHasAValidItem) {
  for (gint type = 1; type <= 15; ++type) {
    const PTRNDATA item = ValidItem(type);
    EXPECT_EQ(CheckPtrnData(&item), -1) << "type " << type;
  }
}

TEST(ValidateTest, TheFirstBrokenRuleIsTold) {
  PTRNDATA item = ValidItem(14);
  NegativeNumber(item);
  NoCode(item);
  EXPECT_EQ(CheckPtrnData(&item), 2);
  item.Parm[20] = 0;
  EXPECT_EQ(CheckPtrnData(&item), 16);
  item.Parm[18] = -1;
  EXPECT_EQ(CheckPtrnData(&item), 15);
  item.Parm[17] = -1;
  EXPECT_EQ(CheckPtrnData(&item), 14);
  item.Parm[16] = 0;
  EXPECT_EQ(CheckPtrnData(&item), 13);
  item.Parm[15] = -1;
  EXPECT_EQ(CheckPtrnData(&item), 4);
  SameX(item);
  EXPECT_EQ(CheckPtrnData(&item), 0);
}

TEST(ValidateTest, TheMessagesAreTheOnesThatTheNumbersMean) {
  EXPECT_STREQ(ErrorMessage[0], "始点/終点座標設定エラー");
  EXPECT_STREQ(ErrorMessage[4], "線幅/枠幅 (設定範囲 0 〜 99)");
  EXPECT_STREQ(ErrorMessage[9], "小数点以下桁数が大きすぎます。");
  EXPECT_STREQ(ErrorMessage[13], "表示量 (設定範囲 1 〜 999)");
  EXPECT_STREQ(ErrorMessage[18], "識別コードには英字、アンダースコアのみ使用できます。");
}

TEST(ValidateTest, AnUnknownTypeMeetsTheCommonRulesOnly) {
  for (const gint type : {0, 16, -1, G_MAXINT, G_MININT}) {
    PTRNDATA item{};
    item.Type = type;
    EXPECT_EQ(CheckPtrnData(&item), -1) << type;
    item.ID_No = -1;
    EXPECT_EQ(CheckPtrnData(&item), 1) << type;
  }
}

}  // namespace
