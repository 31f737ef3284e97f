// The sample projects as the build ships them: what a customer sees first must be whole and fit.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "Constant.h"
#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnDraw.h"
#include "PtrnMisc.h"
#include "project/model/LayoutNames.h"
#include "tests/common/TempFolder.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr gint Languages = 3;
constexpr gint ColourSystems = 4;
const std::string Program = TEST_BUILD_DIR "/VarnixMaster";

struct Box {
  gint Left;
  gint Top;
  gint Right;
  gint Bottom;
};

bool Overlap(const Box& a, const Box& b) {
  return a.Left < b.Right && b.Left < a.Right && a.Top < b.Bottom && b.Top < a.Bottom;
}

// Where an item lies once it has been painted.
Box BoxOf(const PTRNDATA& item) {
  const POINT one = item.Point1;
  const POINT two = item.Point2;
  if (PtrnDataType[item.Type] == 0) {
    return {one.x, one.y, one.x + item.Size.cx, one.y + item.Size.cy};
  }
  return {std::min(one.x, two.x), std::min(one.y, two.y), std::max(one.x, two.x),
          std::max(one.y, two.y)};
}

const gchar* TextOf(const PTRNDATA& item, gint language) {
  return std::array{item.Text1, item.Text2, item.Text3}[static_cast<gsize>(language)];
}

std::string Utf8(const gchar* euc) {
  return Utf8FromEuc(euc).value_or("(not EUC-JP)");
}

std::string Describe(const PTRNDATA& item) {
  return std::string(PtrnTypeList[item.Type - 1]) + " at " + std::to_string(item.Point1.x) + "," +
         std::to_string(item.Point1.y) + " \"" + Utf8(item.Text1) + "\"";
}

std::vector<PTRNDATA> StoredItems() {
  std::vector<PTRNDATA> items;
  PTRNDATA item;
  for (gint no = 0; GetPtrnData(no, &item) == 1; ++no) items.push_back(item);
  return items;
}

struct Sample {
  const char* Folder;
  const char* Name;
};

class SampleProject : public testing::TestWithParam<Sample> {
 protected:
  void SetUp() override {
    g_strlcpy(PathName, Program.c_str(), sizeof(PathName));
    g_strlcpy(ProjPath, (Program + "/" + GetParam().Folder).c_str(), sizeof(ProjPath));
    PROJFILE file{};
    ASSERT_EQ(FileRead(ProjPath, GetParam().Name, "prj", &file, sizeof(file), 0), 1);
    ProjData = file.Data;
    SetBmapPath();
    InitDrawData();
    LoadColrFile();
    LoadMarkFile();
    Show(0, 0);
    names_ = LayoutNames(ProjPath);
  }
  void TearDown() override {
    ExtPtrnData();
    Show(0, 0);
  }

  static void Show(gint language, gint colour) {
    Language = language;
    ColorCode = colour;
    FontDataInit(0);
  }
  static void Open(const std::string& name) {
    SCOPED_TRACE(Utf8(name.c_str()));
    IntPtrnData();
    ASSERT_EQ(PtrnFileRead(ProjPath, name.c_str()), 1);
  }
  static void Paint() {
    Drawable picture(PtrnHedr.Parm1[HedrSlot::Width], PtrnHedr.Parm1[HedrSlot::Height]);
    DrawGc gc;
    DrawWindow1(&picture, &gc);
  }
  // Calls `check` with each layout open and painted in each language.
  template <typename Check>
  void ForEachView(Check check) {
    for (gint language = 0; language < Languages; ++language) {
      Show(language, 0);
      for (const std::string& name : names_) {
        SCOPED_TRACE(Utf8(name.c_str()) + ", language " + std::to_string(language));
        Open(name);
        Paint();
        check();
      }
    }
  }

  std::vector<std::string> names_;
};

TEST_P(SampleProject, HoldsLayoutsOfEveryKind) {
  std::array<int, 3> kinds{};
  std::vector<std::string> shown;
  for (const std::string& name : names_) {
    Open(name);
    ASSERT_THAT(PtrnHedr.Parm1[HedrSlot::Kind], testing::AllOf(testing::Ge(0), testing::Le(2)));
    ++kinds[static_cast<gsize>(PtrnHedr.Parm1[HedrSlot::Kind])];
    EXPECT_EQ(name, PtrnHedr.PtrnName1);
    shown.push_back(Utf8(name.c_str()));
  }
  EXPECT_GE(names_.size(), 8U);
  EXPECT_THAT(kinds, testing::Each(testing::Ge(2)));
  EXPECT_THAT(shown, Contains("バージョン情報"));
  EXPECT_THAT(shown, Contains(Utf8(ProjData.PtrnStart)));
  EXPECT_THAT(shown, Contains(Utf8(ProjData.PtrnStop)));
}

TEST_P(SampleProject, UsesEveryItemTypeAndLeavesNothingIncomplete) {
  std::set<gint> types;
  for (const std::string& name : names_) {
    SCOPED_TRACE(Utf8(name.c_str()));
    Open(name);
    EXPECT_EQ(+PtrnHedr.UndfFlag, 0);
    for (const PTRNDATA& item : StoredItems()) {
      types.insert(+item.Type);
      EXPECT_EQ(+item.UndfFlag, 0) << Describe(item);
    }
  }
  EXPECT_THAT(types, ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15));
}

TEST_P(SampleProject, SpeaksThreeLanguages) {
  for (const std::string& name : names_) {
    SCOPED_TRACE(Utf8(name.c_str()));
    Open(name);
    for (const gchar* title : {PtrnHedr.PtrnName1, PtrnHedr.PtrnName2, PtrnHedr.PtrnName3}) {
      EXPECT_STRNE(title, "");
      EXPECT_TRUE(Utf8FromEuc(title).has_value());
    }
    for (const PTRNDATA& item : StoredItems()) {
      const bool worded =
          (item.Type >= TypeButton && item.Type <= TypeCheckBox) || item.Type == TypeFixedString;
      for (gint language = 0; worded && language < Languages; ++language) {
        EXPECT_STRNE(TextOf(item, language), "") << Describe(item);
        EXPECT_TRUE(Utf8FromEuc(TextOf(item, language)).has_value()) << Describe(item);
      }
    }
  }
}

TEST_P(SampleProject, KeepsEveryItemWithinItsLayout) {
  ForEachView([] {
    for (const PTRNDATA& item : StoredItems()) {
      const Box box = BoxOf(item);
      EXPECT_TRUE(box.Left >= 0 && box.Top >= 0 && box.Right <= PtrnHedr.Parm1[HedrSlot::Width] &&
                  box.Bottom <= PtrnHedr.Parm1[HedrSlot::Height])
          << Describe(item);
    }
  });
}

TEST_P(SampleProject, LetsNoTextRunIntoAnother) {
  ForEachView([] {
    const std::vector<PTRNDATA> items = StoredItems();
    std::vector<PTRNDATA> texts;
    std::copy_if(items.begin(), items.end(), std::back_inserter(texts), [](const PTRNDATA& item) {
      return PtrnDataType[item.Type] == 0 || item.Type == TypeButton ||
             item.Type == TypeScrollBar || item.Type == TypeSpinButton;
    });
    for (gsize one = 0; one < texts.size(); ++one) {
      for (gsize other = one + 1; other < texts.size(); ++other) {
        EXPECT_FALSE(Overlap(BoxOf(texts[one]), BoxOf(texts[other])))
            << Describe(texts[one]) << " and " << Describe(texts[other]);
      }
    }
  });
}

TEST_P(SampleProject, FitsCaptionsIntoButtons) {
  ForEachView([] {
    for (const PTRNDATA& item : StoredItems()) {
      if (item.Type != TypeButton) continue;
      const SIZE caption = GetTextSize(item.Parm[ButtonSlot::Font], TextOf(item, Language));
      const gint border = item.Parm[ButtonSlot::BorderWidth];
      const gint offset =
          item.Parm[ButtonSlot::TextPlacement] == 1 ? item.Parm[ButtonSlot::TextOffset] : border;
      EXPECT_LE(offset + caption.cx + border, item.Point2.x - item.Point1.x) << Describe(item);
      EXPECT_LE(caption.cy + 2 * border, item.Point2.y - item.Point1.y) << Describe(item);
    }
  });
}

TEST_P(SampleProject, NamesOnlyLayoutsPicturesAndMarksThatExist) {
  const std::set<std::string> layouts(names_.begin(), names_.end());
  for (const std::string& name : names_) {
    SCOPED_TRACE(Utf8(name.c_str()));
    Open(name);
    for (const PTRNDATA& item : StoredItems()) {
      const std::string opened = item.ID_Name;
      EXPECT_TRUE(opened.empty() || layouts.contains(opened)) << Describe(item);
      if (item.Type == TypeBitmap) {
        EXPECT_GT(FileSize(BmapPath, item.Text1, ""), 0) << Describe(item);
      }
      for (gint system = 0; item.Type == TypeMark && system < ColourSystems; ++system) {
        const auto& bits = MarkData[item.Parm[MarkSlot::Mark + system]].mark;
        EXPECT_TRUE(std::any_of(std::begin(bits), std::end(bits), [](guint8 b) { return b != 0; }))
            << Describe(item);
      }
    }
  }
  const auto drawn = std::count_if(std::begin(MarkData), std::end(MarkData), [](const auto& mark) {
    return std::any_of(std::begin(mark.mark), std::end(mark.mark), [](guint8 b) { return b != 0; });
  });
  EXPECT_GE(drawn, 20);
}

// What committing every item one by one would have left in the registry.
TEST_P(SampleProject, RegistersExactlyTheCodesThatItsItemsUse) {
  std::map<std::string, gint> slots;
  for (const std::string& name : names_) {
    Open(name);
    for (const PTRNDATA& item : StoredItems()) {
      if (item.ID_Code[0] == '\0') continue;
      gint& count = slots[item.ID_Code];
      count = std::max(count, item.ID_No + 1);
    }
  }
  const gint size = FileSize(ProjPath, "PtrnCode", "");
  ASSERT_EQ(static_cast<gsize>(size), (slots.size() + 1) * sizeof(PTRNCODE));
  std::vector<PTRNCODE> registry(slots.size() + 1);
  ASSERT_EQ(FileRead(ProjPath, "PtrnCode", "", registry.data(), size, 0), 1);
  EXPECT_STREQ(registry.front().ID_Code, "SYSTEM");
  EXPECT_EQ(+registry.front().DataCount, 100);
  std::map<std::string, gint> registered;
  for (gsize no = 1; no < registry.size(); ++no) {
    registered[registry[no].ID_Code] = registry[no].DataCount;
  }
  EXPECT_EQ(registered, slots);
}

TEST_P(SampleProject, LooksDifferentInEachColourSystem) {
  for (const std::string& name : names_) {
    SCOPED_TRACE(Utf8(name.c_str()));
    std::set<std::vector<guint32>> pictures;
    for (gint system = 0; system < ColourSystems; ++system) {
      Show(0, system);
      Open(name);
      Drawable picture(PtrnHedr.Parm1[HedrSlot::Width], PtrnHedr.Parm1[HedrSlot::Height]);
      DrawGc gc;
      DrawWindow1(&picture, &gc);
      std::vector<guint32> pixels;
      for (gint y = 0; y < picture.Height(); ++y) {
        pixels.insert(pixels.end(), picture.Row(y), picture.Row(y) + picture.Width());
      }
      pictures.insert(std::move(pixels));
    }
    // The exit window stands on a picture of its own and has one look.
    EXPECT_EQ(pictures.size(), PtrnHedr.BmapName[0] == '\0' ? 4U : 2U);
  }
}

// Saving the project's settings pushes its common look into the layouts: they have it already.
TEST_P(SampleProject, AlreadyHasTheLookThatItsSettingsAskFor) {
  TempFolder kept;
  TempFolder renewed;
  ASSERT_EQ(CopyFolder(ProjPath, kept.Path().c_str()), 1);
  ASSERT_EQ(CopyFolder(ProjPath, renewed.Path().c_str()), 1);
  ProjFileRenew(renewed.Path().c_str());
  for (const std::string& name : names_) {
    EXPECT_EQ(renewed.Read(name + ".ptn"), kept.Read(name + ".ptn")) << Utf8(name.c_str());
  }
}

// Brightness of a colour, 0..255.
gint Brightness(gint colour) {
  const guint32 pixel = DrawColr[colour].pixel;
  return static_cast<gint>(
      (((pixel >> 16) & 255) * 299 + ((pixel >> 8) & 255) * 587 + (pixel & 255) * 114) / 1000);
}

TEST_P(SampleProject, KeepsTextLegibleInEachColourSystem) {
  constexpr gint LeastContrast = 60;
  for (const std::string& name : names_) {
    Open(name);
    const std::vector<PTRNDATA> items = StoredItems();
    for (gint system = 0; system < ColourSystems; ++system) {
      for (const PTRNDATA& text : items) {
        if (text.Type < TypeFixedString || text.Type > TypeNumeric) continue;
        // The frame that is painted last under the text's start is its background.
        gint back = -1;
        for (const PTRNDATA& frame : items) {
          const Box box = BoxOf(frame);
          if (frame.Type == TypeFrame && box.Left <= text.Point1.x && text.Point1.x < box.Right &&
              box.Top <= text.Point1.y && text.Point1.y < box.Bottom) {
            back = frame.Parm[FrameSlot::AreaColour + system];
          }
        }
        if (back < 0) continue;
        EXPECT_GE(std::abs(Brightness(text.Parm[TextSlot::TextColour + system]) - Brightness(back)),
                  LeastContrast)
            << Utf8(name.c_str()) << ", colour system " << system << ": " << Describe(text);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Shipped, SampleProject,
                         testing::Values(Sample{"Sample", "WaterWorks"},
                                         Sample{"PowerSample", "PowerPlant"}),
                         [](const auto& sample) { return std::string(sample.param.Name); });

// The large one is measured by its size.
TEST(PowerPlant, HasFortyLayoutsAndThreeThousandItems) {
  const std::string folder = Program + "/PowerSample";
  const std::vector<std::string> names = LayoutNames(folder.c_str());
  EXPECT_EQ(names.size(), 40U);
  gsize items = 0;
  for (const std::string& name : names) {
    IntPtrnData();
    ASSERT_EQ(PtrnFileRead(folder.c_str(), name.c_str()), 1);
    items += StoredItems().size();
  }
  ExtPtrnData();
  EXPECT_EQ(items, 3000U);
}

}  // namespace
