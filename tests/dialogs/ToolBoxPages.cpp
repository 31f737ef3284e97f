// Each page of the tool box: what stands in which cell, and which field it edits.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "dialogs/ToolBox.h"
#include "tests/dialogs/Controls.h"
#include "tests/dialogs/ToolBoxCells.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

using Lines = std::vector<std::string>;

// The fields that controls edit, by the names that the cells use.
const std::map<std::string, gsize>& IntFields() {
  static const std::map<std::string, gsize> fields = [] {
    std::map<std::string, gsize> all = {{"ID_Type", offsetof(PTRNDATA, ID_Type)},
                                        {"ID_No", offsetof(PTRNDATA, ID_No)},
                                        {"UndfFlag", offsetof(PTRNDATA, UndfFlag)},
                                        {"RegstFlag", offsetof(PTRNDATA, RegstFlag)},
                                        {"CheckFlag", offsetof(PTRNDATA, CheckFlag)}};
    for (gsize k = 0; k < 30; k++) {
      all["Parm[" + std::to_string(k) + "]"] = offsetof(PTRNDATA, Parm) + k * sizeof(gint);
    }
    return all;
  }();
  return fields;
}

const std::map<std::string, gint*> KeyFields = {{"CusrUp", &CusrUp},
                                                {"CusrDown", &CusrDown},
                                                {"CusrLeft", &CusrLeft},
                                                {"CusrRight", &CusrRight}};
const std::map<std::string, gchar*> TextFields = {{"Text1", PtrnData.Text1},
                                                  {"Text2", PtrnData.Text2},
                                                  {"Text3", PtrnData.Text3},
                                                  {"ID_Name", PtrnData.ID_Name},
                                                  {"ID_Code", PtrnData.ID_Code}};

constexpr gint Untouched = -1;

gint IntField(gsize offset) {
  gint value;
  std::memcpy(&value, reinterpret_cast<const char*>(&PtrnData) + offset, sizeof value);
  return value;
}

void ClearFields() {
  PtrnData = {};
  const gint untouched = Untouched;
  for (const auto& [name, offset] : IntFields()) {
    std::memcpy(reinterpret_cast<char*>(&PtrnData) + offset, &untouched, sizeof untouched);
  }
  for (const auto& [name, key] : KeyFields) *key = Untouched;
}

// Names of the fields that are not as ClearFields left them.
std::string ChangedFields() {
  std::string changed;
  const auto add = [&changed](const std::string& name) {
    changed += changed.empty() ? name : "+" + name;
  };
  for (const auto& [name, offset] : IntFields()) {
    if (IntField(offset) != Untouched) add(name);
  }
  for (const auto& [name, key] : KeyFields) {
    if (*key != Untouched) add(name);
  }
  for (const auto& [name, text] : TextFields) {
    if (*text != '\0') add(name);
  }
  return changed;
}

gint ChangedValue() {
  for (const auto& [name, offset] : IntFields()) {
    if (IntField(offset) != Untouched) return IntField(offset);
  }
  return Untouched;
}

// Chooses number 7 in the picker of this title.
void PickSeven(GtkWidget* swatch, const gchar* title, gint line, gint culm) {
  const DialogAnswer answer(title, [&](GtkWidget* picker) {
    Press(ControlAt(FindGrid(picker), line, culm, GTK_TYPE_DRAWING_AREA), 1);
  });
  Press(swatch, 1);
}

std::string DescribeSpin(GtkWidget* spin) {
  gdouble lower = 0;
  gdouble upper = 0;
  gtk_spin_button_get_range(GTK_SPIN_BUTTON(spin), &lower, &upper);
  gtk_spin_button_set_value(GTK_SPIN_BUTTON(spin), upper);
  EXPECT_EQ(ChangedValue(), static_cast<gint>(upper));
  std::ostringstream text;
  text << "spin " << ChangedFields() << " " << lower << ".." << upper;
  return text.str();
}

std::string DescribeSwatch(GtkWidget* swatch) {
  gint height = 0;
  gtk_widget_get_size_request(swatch, nullptr, &height);
  const bool mark = height == 36;
  if (mark) {
    PickSeven(swatch, "マーク選択", 0, 7);
  } else {
    PickSeven(swatch, "表示色選択", 7, 0);
  }
  EXPECT_EQ(ChangedValue(), 7);
  return (mark ? "mark " : "colour ") + ChangedFields();
}

std::string DescribeEntry(GtkWidget* entry) {
  // Read-only entries take what a picker puts into them.
  gtk_entry_set_text(GTK_ENTRY(entry), "x");
  const bool readOnly = gtk_editable_get_editable(GTK_EDITABLE(entry)) == FALSE;
  return "entry " + ChangedFields() + (readOnly ? " read-only" : "");
}

void ActivateAnother(GtkRadioButton* button) {
  for (GSList* link = gtk_radio_button_get_group(button); link != nullptr; link = link->next) {
    if (link->data != button) gtk_toggle_button_set_active(GTK_TOGGLE_BUTTON(link->data), TRUE);
  }
}

// Kind, field and text of a control, found out by using it.
std::string Describe(GtkWidget* child) {
  ClearFields();
  if (GTK_IS_LABEL(child)) return "label " + LabelText(child);
  if (GTK_IS_RADIO_BUTTON(child)) {
    ActivateAnother(GTK_RADIO_BUTTON(child));
    ClearFields();
    gtk_toggle_button_set_active(GTK_TOGGLE_BUTTON(child), TRUE);
    return "radio " + ChangedFields() + "=" + std::to_string(ChangedValue()) + " " +
           gtk_button_get_label(GTK_BUTTON(child));
  }
  if (GTK_IS_CHECK_BUTTON(child)) {
    gtk_button_clicked(GTK_BUTTON(child));
    return "check " + ChangedFields() + " " + gtk_button_get_label(GTK_BUTTON(child));
  }
  if (GTK_IS_BUTTON(child)) return std::string("button ") + gtk_button_get_label(GTK_BUTTON(child));
  if (GtkWidget* spin = FindKind(child, GTK_TYPE_SPIN_BUTTON)) return DescribeSpin(spin);
  if (GtkWidget* combo = FindKind(child, GTK_TYPE_COMBO_BOX)) {
    gtk_combo_box_set_active(GTK_COMBO_BOX(combo), 1);
    EXPECT_EQ(ChangedValue(), 1);
    return "combo " + ChangedFields();
  }
  if (GtkWidget* area = FindKind(child, GTK_TYPE_DRAWING_AREA)) return DescribeSwatch(area);
  if (GtkWidget* entry = FindKind(child, GTK_TYPE_ENTRY)) return DescribeEntry(entry);
  return "unknown";
}

// The panel's controls, one a line, in the words of the cells.
Lines ShownCells() {
  GtkWidget* grid = FindGrid(ToolBox);
  Lines lines;
  GList* children = gtk_container_get_children(GTK_CONTAINER(grid));
  for (GList* link = g_list_last(children); link != nullptr; link = link->prev) {
    auto* child = GTK_WIDGET(link->data);
    const auto holds = [&](GtkWidget* readOut) {
      return readOut != nullptr && gtk_widget_is_ancestor(readOut, child);
    };
    if (holds(ToolBox_Label1) || holds(ToolBox_Label2)) continue;
    const CellPlace place = PlaceOf(grid, child);
    std::ostringstream line;
    line << place.Line << "/" << place.Culm1 << "-" << place.Culm2 << " " << Describe(child);
    lines.push_back(line.str());
  }
  g_list_free(children);
  return lines;
}

// Same cells in any order; names those that are missing and those that are too much.
testing::AssertionResult SameCells(Lines shown, Lines expected) {
  std::sort(shown.begin(), shown.end());
  std::sort(expected.begin(), expected.end());
  if (shown == expected) return testing::AssertionSuccess();
  testing::AssertionResult result = testing::AssertionFailure();
  Lines cells;
  std::set_difference(expected.begin(), expected.end(), shown.begin(), shown.end(),
                      std::back_inserter(cells));
  for (const std::string& cell : cells) result << "missing: " << cell << "\n";
  cells.clear();
  std::set_difference(shown.begin(), shown.end(), expected.begin(), expected.end(),
                      std::back_inserter(cells));
  for (const std::string& cell : cells) result << "too much: " << cell << "\n";
  return result;
}

Lines Split(const std::string& text) {
  Lines lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

// The section that all types share.
Lines CommonCells(gint line, bool onePoint, bool registers) {
  const auto row = [line](gint offset, const std::string& rest) {
    return std::to_string(line + offset) + rest;
  };
  Lines cells = {row(0, "/0-0 label 処理種別"),
                 row(0, "/1-4 combo ID_Type"),
                 row(1, "/0-0 label 画面名称"),
                 row(1, "/1-3 entry ID_Name read-only"),
                 row(1, "/4-4 button 参照"),
                 row(2, "/0-0 label 識別コード"),
                 row(2, "/1-3 entry ID_Code"),
                 row(2, "/4-4 button 参照"),
                 row(3, "/1-1 spin ID_No 0..9999"),
                 row(4, "/1-3 check UndfFlag 後で設定"),
                 row(registers ? 6 : 5, "/1-3 check CheckFlag 次回からの初期値として保存"),
                 "0/3-3 check Parm[28] TOP"};
  if (registers) cells.push_back(row(5, "/1-3 check RegstFlag 文字列一覧へ登録"));
  if (onePoint) {
    cells.push_back("0/0-0 label 位置");
  } else {
    cells.insert(cells.end(), {"0/0-0 label 始点", "1/0-0 label 終点"});
  }
  return cells;
}

struct PageFacts {
  const gchar* Title;
  gint CommonLine;  // for one language
  bool OnePoint;
  bool Registers;
  bool SystemColours;
  bool GrowsByLanguage;
};
constexpr PageFacts Facts[15] = {{"矩形枠", 8, false, false, false, false},
                                 {"直線", 7, false, false, true, false},
                                 {"矩形", 8, false, false, true, false},
                                 {"楕円", 8, false, false, true, false},
                                 {"棒グラフ", 9, false, false, true, false},
                                 {"固定文字列", 7, true, true, true, true},
                                 {"可変文字列", 10, true, false, true, false},
                                 {"数値データ", 12, true, false, true, false},
                                 {"ボタン", 11, false, true, false, true},
                                 {"ラジオボタン", 7, true, true, false, true},
                                 {"チェックボックス", 6, true, true, false, true},
                                 {"ビットマップ", 5, false, false, false, false},
                                 {"マーク", 7, false, false, true, false},
                                 {"スクロールバー", 12, false, false, false, false},
                                 {"スピンボタン", 4, false, false, false, false}};

Lines ExpectedCells(const PageCells& page) {
  const PageFacts& facts = Facts[page.Type - 1];
  Lines cells = Split(page.Rows);
  const gint line = facts.CommonLine + (facts.GrowsByLanguage ? page.Language : 0);
  const Lines common = CommonCells(line, facts.OnePoint, facts.Registers);
  cells.insert(cells.end(), common.begin(), common.end());
  return cells;
}

// The cells of one kind, in their order.
Lines OfKind(const Lines& cells, const std::string& kind) {
  Lines found;
  std::copy_if(cells.begin(), cells.end(), std::back_inserter(found), [&](const std::string& cell) {
    return cell.find(" " + kind + " ") != std::string::npos;
  });
  return found;
}

bool IsLaterSystem(const std::string& cell) {
  return cell.find("/3-3 colour") != std::string::npos ||
         cell.find("/4-4 colour") != std::string::npos;
}

}  // namespace

class ToolBoxPages : public WindowTest {
 protected:
  ToolBoxPages() {
    WriteProfile("");
    OpenWindow();
    for (gint font = 0; font < 3; font++) {
      g_snprintf(FontList[font], sizeof FontList[font], "font %d", font);
    }
  }
  static Lines Show(gint type, gint language, gint systems) {
    Language = language;
    ProjData.Parm1[2] = systems;
    PtrnData = {};
    Dlg_ToolBox(PtrnWnd, type);
    EXPECT_TRUE(WaitFor([] { return ToolBox != nullptr && gtk_widget_get_mapped(ToolBox); }));
    EXPECT_STREQ(gtk_window_get_title(GTK_WINDOW(ToolBox)), Facts[type - 1].Title);
    return ShownCells();
  }
};

TEST_F(ToolBoxPages, ShowTheirCellsWithFourColourSystems) {
  for (const PageCells& page : AllPageCells()) {
    SCOPED_TRACE(testing::Message() << "type " << page.Type << ", language " << page.Language);
    EXPECT_TRUE(SameCells(Show(page.Type, page.Language, 1), ExpectedCells(page)));
  }
}

// A screen reader finds the controls in the order in which they were added, kind by kind.
TEST_F(ToolBoxPages, AddTheControlsOfAKindInTheOrderOfTheirRows) {
  for (const PageCells& page : AllPageCells()) {
    const Lines shown = Show(page.Type, page.Language, 1);
    for (const gchar* kind :
         {"label", "entry", "spin", "combo", "radio", "check", "colour", "mark"}) {
      SCOPED_TRACE(testing::Message()
                   << "type " << page.Type << ", language " << page.Language << ", " << kind);
      // What all types share is added last.
      const Lines rows = OfKind(Split(page.Rows), kind);
      Lines first = OfKind(shown, kind);
      first.resize(std::min(first.size(), rows.size()));
      EXPECT_THAT(first, testing::ElementsAreArray(rows));
    }
  }
}

TEST_F(ToolBoxPages, LeaveTheLaterColoursOutWithTwoSystems) {
  for (const PageCells& page : AllPageCells()) {
    if (!Facts[page.Type - 1].SystemColours) continue;
    SCOPED_TRACE(testing::Message() << "type " << page.Type << ", language " << page.Language);
    Lines cells = ExpectedCells(page);
    const auto end = std::remove_if(cells.begin(), cells.end(), IsLaterSystem);
    ASSERT_NE(end, cells.end());
    cells.erase(end, cells.end());
    EXPECT_TRUE(SameCells(Show(page.Type, page.Language, 0), cells));
  }
}

TEST_F(ToolBoxPages, TheFrameHasItsWidthsBesideItsTwoColours) {
  const Lines cells = Show(1, 0, 0);
  for (const gchar* cell : {"3/3-3 spin Parm[24] 0..99", "4/3-3 spin Parm[25] 0..99",
                            "5/3-3 spin Parm[26] 0..99", "6/3-3 spin Parm[27] 0..99"}) {
    EXPECT_THAT(cells, testing::Contains(cell));
  }
  EXPECT_TRUE(std::none_of(cells.begin(), cells.end(), IsLaterSystem));
}

TEST_F(ToolBoxPages, LaterColoursComeBackWithFourSystems) {
  Show(2, 0, 0);
  EXPECT_THAT(Show(2, 0, 1),
              testing::IsSupersetOf({"4/3-3 colour Parm[6]", "4/4-4 colour Parm[7]"}));
}

TEST_F(ToolBoxPages, HiddenColoursKeepTheirValues) {
  Language = 0;
  ProjData.Parm1[2] = 0;
  PtrnData = {};
  PtrnData.Parm[6] = 61;
  PtrnData.Parm[7] = 62;
  Dlg_ToolBox(PtrnWnd, 2);
  Dlg_ToolBox(PtrnWnd, 0);
  EXPECT_EQ(PtrnData.Parm[6], 61);
  EXPECT_EQ(PtrnData.Parm[7], 62);
}

TEST_F(ToolBoxPages, OpeningAPageChangesNoFieldOfTheItem) {
  // Out of every range, so that a control that wrote its own idea back would show.
  ClearFields();
  for (gint& value : PtrnData.Parm) value = 77777;
  PtrnData.ID_Type = PtrnData.ID_No = PtrnData.UndfFlag = 77777;
  const PTRNDATA before = PtrnData;
  for (gint type = 1; type <= 15; type++) {
    Dlg_ToolBox(PtrnWnd, type);
    ASSERT_TRUE(WaitFor([] { return gtk_widget_get_mapped(ToolBox) != FALSE; }));
    FinishFrame(ToolBox);
    EXPECT_EQ(std::memcmp(&PtrnData, &before, sizeof before), 0) << "type " << type;
  }
}

TEST_F(ToolBoxPages, AnUnknownLanguageShowsOneOfTheKnownPages) {
  for (const gint language : {-5, 3, 1000}) {
    Language = language;
    Dlg_ToolBox(PtrnWnd, 6);
    EXPECT_GE(CountOf(ToolBox, GTK_TYPE_ENTRY), 3);
  }
}
