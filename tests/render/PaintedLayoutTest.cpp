// A picture kept up to date part by part equals one painted anew.
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <random>

#include "render/PaintedLayout.h"
#include "render/pictures/PictureFiles.h"
#include "tests/render/ItemSamples.h"
#include "tests/render/SampleLayout.h"

namespace {

constexpr gint Width = 320;
constexpr gint Height = 240;

class PaintedLayouts : public testing::Test {
 protected:
  PaintedLayouts() {
    DrawSceneMarks();
    SetHeader(Width, Height);
    for (gint no = 0; no < 45; ++no) {
      const PTRNDATA item = AnyItem();
      AddPtrnData(&item);
    }
    painted_.Paint(picture_);
  }

  gint Pick(gint low, gint high) { return std::uniform_int_distribution<gint>(low, high)(random_); }

  // Corners in any order, partly outside, and widths from none to too wide.
  PTRNDATA AnyItem() {
    const gint type = Pick(1, 15);
    const gint x1 = Pick(-40, Width), y1 = Pick(-40, Height);
    const gint x2 = x1 + Pick(-60, 90), y2 = y1 + Pick(-60, 90);
    const gint width = Pick(0, 3) * Pick(0, 9), place = Pick(0, 2);
    PTRNDATA item = Item(type, x1, y1, x2, y2, width, place);
    item.Parm[ItemSlot::TopLayer] = Pick(0, 1);
    return item;
  }
  PTRNDATA Item(gint type, gint x1, gint y1, gint x2, gint y2, gint width, gint place) {
    switch (type) {
      case TypeFrame:
        return FrameItem(x1, y1, x2, y2, width);
      case TypeLine:
        return LineItem(x1, y1, x2, y2, Pick(0, 2), width, place);
      case TypeRectangle:
      case TypeEllipse:
        return ShapeItem(type, x1, y1, x2, y2, Pick(0, 1), width, place);
      case TypeBarGraph:
        return BarItem(x1, y1, x2, y2, Pick(0, 1), width, Pick(0, 4));
      case TypeFixedString:
        return TextItem(type, x1, y1, Font16, {{TextSlot::BackEnabled, Pick(0, 1)}}, "水位 level");
      case TypeVariableString:
      case TypeNumeric:
        return TextItem(type, x1, y1, Font24, {{TextSlot::Length, Pick(0, 12)}});
      case TypeButton:
        return ButtonItem(x1, y1, x2, y2, Font16, width, "運転開始");
      case TypeRadioButton:
      case TypeCheckBox:
        return ChoiceItem(type, x1, y1, Font16, Pick(0, 1), "自動");
      case TypeBitmap:
        return BitmapItem(x1, y1, x2, y2, Pick(0, 1));
      case TypeMark:
        return MarkItem(x1, y1, x2, y2, SceneMark::Disc32x32, Pick(0, 1));
      case TypeScrollBar:
        return ScrollItem(x1, y1, x2, y2, Pick(0, 1), Pick(0, 4), Pick(0, 1), Pick(0, 1));
      default:
        return MakeItem(type, x1, y1, x2, y2);
    }
  }

  void ExpectUpToDate(const std::string& after) {
    const auto fresh = PaintLayout();
    for (gint y = 0; y < Height; ++y) {
      ASSERT_EQ(std::memcmp(picture_.Row(y), fresh->Row(y), Width * sizeof(guint32)), 0)
          << after << ", row " << y;
    }
  }
  bool PaintsTheWhole() {
    const std::vector<DrawnBox> boxes = painted_.Paint(picture_);
    return boxes.size() == 1 && boxes[0].x1 == 0 && boxes[0].y1 == 0 && boxes[0].x2 == Width &&
           boxes[0].y2 == Height;
  }
  // Another change of an item each time.
  void Change() {
    ++changes_;
    const PTRNDATA item = FrameItem(100 + changes_, 100, 140, 130, 2);
    SetPtrnData(3, &item);
  }

  Scene scene_;
  SceneBitmaps bitmaps_;
  std::mt19937 random_{7};
  Drawable picture_{Width, Height};
  PaintedLayout painted_;
  gint changes_ = 0;
};

TEST_F(PaintedLayouts, FollowEveryChangeOfAnItem) {
  for (int round = 0; round < 300; ++round) {
    const gint no = Pick(0, GetPtrnCount() - 1);
    const PTRNDATA item = AnyItem();
    SetPtrnData(no, &item);
    painted_.Paint(picture_);
    ExpectUpToDate("change to type " + std::to_string(item.Type) + " in round " +
                   std::to_string(round));
    if (HasFatalFailure()) return;
  }
}

TEST_F(PaintedLayouts, FollowItemsThatComeAndGo) {
  for (int round = 0; round < 60; ++round) {
    if (Pick(0, 1) == 0) {
      DelPtrnData(Pick(0, GetPtrnCount() - 1));
    } else {
      const PTRNDATA item = AnyItem();
      AddPtrnData(&item);
    }
    painted_.Paint(picture_);
    ExpectUpToDate("round " + std::to_string(round));
    if (HasFatalFailure()) return;
  }
}

TEST_F(PaintedLayouts, PaintTheOldAndTheNewBoxAlone) {
  IntPtrnData();
  PTRNDATA item = FrameItem(10, 20, 50, 40, 2);
  AddPtrnData(&item);
  painted_.Paint(picture_);
  item = FrameItem(200, 100, 230, 150, 2);
  SetPtrnData(0, &item);
  const std::vector<DrawnBox> boxes = painted_.Paint(picture_);
  ASSERT_EQ(boxes.size(), 2u);
  // Border lines end one dot further than the area.
  EXPECT_EQ((std::vector{boxes[0].x1, boxes[0].y1, boxes[0].x2, boxes[0].y2}),
            (std::vector{10, 20, 51, 41}));
  EXPECT_EQ((std::vector{boxes[1].x1, boxes[1].y1, boxes[1].x2, boxes[1].y2}),
            (std::vector{200, 100, 231, 151}));
}

// A text of blanks shows nothing, yet it has an extent by which it is picked.
TEST_F(PaintedLayouts, MeasureAnItemThatShowsNothing) {
  IntPtrnData();
  PTRNDATA item = FrameItem(10, 20, 50, 40, 2);
  AddPtrnData(&item);
  painted_.Paint(picture_);
  item = TextItem(TypeFixedString, 100, 100, Font16, {}, "    ");
  AddPtrnData(&item);
  painted_.Paint(picture_);
  GetPtrnData(1, &item);
  EXPECT_EQ(+item.Size.cx, 3 * 8);
  EXPECT_EQ(+item.Size.cy, 0);
}

// An item over the clock is painted with the time of its change; the rest of the clock must not
// stay behind.
TEST_F(PaintedLayouts, FollowTheClockWithAChangedItem) {
  SetTitleArea(24, "配水池");
  PtrnHedr.Parm1[HedrSlot::DateFormat] = 3;
  std::tm time{};
  time.tm_year = 126;
  SetPictureTime(&time);
  painted_.Paint(picture_);
  for (const gint x : {20, Width - 90, Width - 40}) {
    time.tm_hour = (time.tm_hour + 11) % 24;
    time.tm_min = (time.tm_min + 23) % 60;
    SetPictureTime(&time);
    const PTRNDATA item = FrameItem(x, 4, x + 30, 60, 1);
    SetPtrnData(3, &item);
    EXPECT_FALSE(PaintsTheWhole()) << x;
    ExpectUpToDate("item at " + std::to_string(x));
  }
}

TEST_F(PaintedLayouts, LeaveTheClockAloneWhileItShowsTheSame) {
  IntPtrnData();
  SetTitleArea(24, "配水池");
  PtrnHedr.Parm1[HedrSlot::DateFormat] = 2;
  std::tm time{};
  SetPictureTime(&time);
  PTRNDATA item = FrameItem(10, 40, 50, 60, 2);
  AddPtrnData(&item);
  painted_.Paint(picture_);
  time.tm_sec = 59;
  SetPictureTime(&time);
  item = FrameItem(200, 100, 230, 150, 2);
  SetPtrnData(0, &item);
  EXPECT_EQ(painted_.Paint(picture_).size(), 2u);
}

// Whatever lies across the edges of a small surface.
TEST_F(PaintedLayouts, TilesOfAnySizeEqualTheWhole) {
  const auto whole = PaintLayout();
  for (const auto& [width, height] : {std::pair{7, 5}, std::pair{3, 40}, std::pair{50, 2}}) {
    for (gint top = 0; top < Height; top += height) {
      for (gint left = 0; left < Width; left += width) {
        Drawable tile(width, height, left, top);
        DrawGc gc;
        DrawWindow1(&tile, &gc);
        for (gint row = 0; row < std::min(height, Height - top); ++row) {
          const auto length = static_cast<std::size_t>(std::min(width, Width - left));
          ASSERT_EQ(
              std::memcmp(tile.Row(row), whole->Row(top + row) + left, length * sizeof(guint32)), 0)
              << "row " << row << " of the tile at " << left << ", " << top;
        }
      }
    }
  }
}

// The items that show a picture are not those that are changed.
class PaintedPictures : public PaintedLayouts {
 protected:
  PaintedPictures() {
    IntPtrnData();
    Add(FrameItem(10, 200, 30, 230, 2));
    Add(BitmapItem(200, 100, 264, 148, 0));
    Paint(Ink::Red);
    painted_.Paint(picture_);
  }
  static void Add(const PTRNDATA& item) { AddPtrnData(&item); }
  // Puts a picture of one colour in place of a file, as a new file.
  void Paint(gint colour, const std::string& name = "house.png") {
    Drawable picture(8, 6);
    PaintBack(picture, colour);
    WritePng(picture, Path(name).c_str());
  }
  static std::string Path(const std::string& name) { return std::string(BmapPath) + "/" + name; }
  void MoveTheFrame() {
    PTRNDATA item;
    GetPtrnData(0, &item);
    item.Point1.x += 5;
    item.Point2.x += 5;
    SetPtrnData(0, &item);
  }
  void ExpectShown(gint x, gint y, gint colour) {
    MoveTheFrame();
    painted_.Paint(picture_);
    EXPECT_EQ(picture_.At(x, y), InkPixel[colour]);
    ExpectUpToDate("another picture");
  }
};

TEST_F(PaintedPictures, FollowAFileThatIsReplaced) {
  ExpectShown(230, 120, Ink::Red);
  Paint(Ink::Green);
  ExpectShown(230, 120, Ink::Green);
  Paint(Ink::Blue);
  ExpectShown(230, 120, Ink::Blue);
}

TEST_F(PaintedPictures, FollowAFileThatGoesAndComes) {
  std::filesystem::remove(Path("house.png"));
  ExpectShown(230, 120, Ink::Cream);
  Paint(Ink::Green);
  ExpectShown(230, 120, Ink::Green);
}

TEST_F(PaintedPictures, FollowTheFileOfAnItemThatCameLater) {
  Paint(Ink::Red, "later.png");
  PTRNDATA item = BitmapItem(20, 20, 84, 68, 0);
  CopyText(item.Text1, "later.png");
  Add(item);
  ExpectShown(50, 40, Ink::Red);
  Paint(Ink::Green, "later.png");
  ExpectShown(50, 40, Ink::Green);
}

TEST_F(PaintedPictures, FollowLogoAndBackground) {
  SetTitleArea(24, "配水池");
  PtrnHedr.Parm1[HedrSlot::LogoShown] = 1;
  CopyText(PtrnHedr.LogoName, "logo.png");
  CopyText(PtrnHedr.BmapName, "ground.png");
  Paint(Ink::Red, "logo.png");
  Paint(Ink::Red, "ground.png");
  const gint height = FontHeight[PtrnHedr.Parm1[HedrSlot::TitleFont]];
  const gint middle = (24 - height) / 2 + height / 2;
  ExpectShown(middle, middle, Ink::Red);
  Paint(Ink::Green, "logo.png");
  ExpectShown(middle, middle, Ink::Green);
  Paint(Ink::Blue, "ground.png");
  ExpectShown(150, 150, Ink::Blue);
}

TEST_F(PaintedPictures, PaintAPartWhileTheFilesStayTheSame) {
  MoveTheFrame();
  EXPECT_FALSE(PaintsTheWhole());
  Paint(Ink::Green);
  MoveTheFrame();
  EXPECT_TRUE(PaintsTheWhole());
  MoveTheFrame();
  EXPECT_FALSE(PaintsTheWhole()) << "the new file is known now";
}

// A picture that no item shows any more is of no account.
TEST_F(PaintedPictures, ForgetAFileThatIsNotShown) {
  DelPtrnData(1);
  EXPECT_FALSE(PaintsTheWhole());
  EXPECT_TRUE(PaintsTheWhole()) << "nothing changed";
  Paint(Ink::Green);
  MoveTheFrame();
  EXPECT_FALSE(PaintsTheWhole());
}

TEST_F(PaintedPictures, PaintAPartWhenAPictureChangedThatIsPaintedElsewhere) {
  Paint(Ink::Red, "elsewhere.png");
  Drawable elsewhere(8, 6);
  DrawGc gc;
  DrawBmap(&elsewhere, &gc, 0, 0, 8, 6, -1, BmapPath, "elsewhere.png");
  ASSERT_EQ(elsewhere.At(4, 3), InkPixel[Ink::Red]);
  Paint(Ink::Green, "elsewhere.png");
  MoveTheFrame();
  EXPECT_FALSE(PaintsTheWhole());
}

// One place shows it as it was, the other as it is.
TEST_F(PaintedPictures, AFileThatIsReplacedBetweenItsTwoPlacesHasChanged) {
  const std::optional<FileState> old = PictureFileState(Path("house.png"));
  Paint(Ink::Green);
  const std::optional<FileState> present = PictureFileState(Path("house.png"));
  ShownPictures shown;
  const ShownPictures::Noting noting(shown);
  ShownPictures::Note(BmapPath, "house.png", present);
  EXPECT_FALSE(shown.Changed());
  shown.Clear();
  ShownPictures::Note(BmapPath, "house.png", old);
  ShownPictures::Note(BmapPath, "house.png", present);
  EXPECT_TRUE(shown.Changed());
}

TEST_F(PaintedLayouts, PaintTheWholeWhenNothingChanged) {
  EXPECT_TRUE(PaintsTheWhole());
}

TEST_F(PaintedLayouts, PaintTheWholeWhenAllItemsChanged) {
  for (gint no = 0; no < GetPtrnCount(); ++no) {
    const PTRNDATA item = AnyItem();
    SetPtrnData(no, &item);
  }
  EXPECT_TRUE(PaintsTheWhole());
  ExpectUpToDate("all items");
}

TEST_F(PaintedLayouts, PaintAPartWhenOneItemChanged) {
  Change();
  EXPECT_FALSE(PaintsTheWhole());
  Change();
  EXPECT_FALSE(PaintsTheWhole());
}

// What the picture shows besides its items, each changed together with one item.
class PaintedLooks : public PaintedLayouts {
 protected:
  template <typename Change>
  void ExpectWhole(Change change) {
    painted_.Paint(picture_);
    PaintedLayouts::Change();
    change();
    EXPECT_TRUE(PaintsTheWhole());
    ExpectUpToDate("change of the look");
  }
};

TEST_F(PaintedLooks, Palette) {
  ExpectWhole([] { DrawColr[Ink::Cream] = DrawColr[Ink::Red]; });
}

// A gradation is made from the palette itself.
TEST_F(PaintedLooks, PaletteOfAGradation) {
  PtrnHedr.Parm1[HedrSlot::Gradation] = 1;
  ExpectWhole([] { ColrData[Ink::Cream].red = 0; });
}

TEST_F(PaintedLooks, ColourSystem) {
  ExpectWhole([] { ColorCode = 1; });
}

TEST_F(PaintedLooks, Language) {
  ExpectWhole([] { ::Language = 1; });
}

TEST_F(PaintedLooks, Header) {
  ExpectWhole([] { PtrnHedr.Parm1[HedrSlot::WorkAreaColour] = Ink::Sky; });
}

TEST_F(PaintedLooks, View) {
  ExpectWhole([] { PtrnHedr.Parm2[ViewSlot::GridColour] = Ink::Sky; });
}

TEST_F(PaintedLooks, TitlesOfAllLanguages) {
  SetTitleArea(24, "配水池");
  ExpectWhole([] { CopyText(PtrnHedr.PtrnName1, Euc("浄水場")); });
  ::Language = 1;
  ExpectWhole([] { CopyText(PtrnHedr.PtrnName2, "Plant"); });
  ::Language = 2;
  ExpectWhole([] { CopyText(PtrnHedr.PtrnName3, "Werk"); });
}

TEST_F(PaintedLooks, Logo) {
  SetTitleArea(24, "配水池");
  PtrnHedr.Parm1[HedrSlot::LogoShown] = 1;
  ExpectWhole([] { CopyText(PtrnHedr.LogoName, "house.png"); });
  ExpectWhole([] { PtrnHedr.LogoName[0] = '\0'; });
}

TEST_F(PaintedLooks, Background) {
  ExpectWhole([] { CopyText(PtrnHedr.BmapName, "house.png"); });
  ExpectWhole([] { PtrnHedr.BmapName[0] = '\0'; });
}

TEST_F(PaintedLooks, BitmapFolder) {
  const PTRNDATA item = BitmapItem(200, 100, 264, 148, 0);
  AddPtrnData(&item);
  const TempFolder empty;
  ExpectWhole([&] { g_strlcpy(BmapPath, empty.Path().c_str(), sizeof BmapPath); });
}

TEST_F(PaintedLooks, Mark) {
  ExpectWhole([] {
    MarkData[SceneMark::Disc32x32].mark[0] ^= 0xff;
    SetDrawMark();
  });
}

TEST_F(PaintedLooks, Font) {
  ExpectWhole([] {
    g_strlcpy(FontName[Font16], FontName[Font24], sizeof FontName[Font16]);
    SetDrawFont();
  });
}

TEST_F(PaintedLooks, FontHeight) {
  ExpectWhole([] { FontHeight[Font16] = 40; });
}

}  // namespace
