// A layout is painted as a value, whatever else is open.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "layout/Layout.h"
#include "tests/render/SampleLayout.h"

namespace {

std::vector<guint32> PixelsOf(const Drawable& picture) {
  std::vector<guint32> pixels;
  for (gint y = 0; y < picture.Height(); ++y) {
    for (gint x = 0; x < picture.Width(); ++x) pixels.push_back(picture.At(x, y));
  }
  return pixels;
}

class LayoutValue : public testing::Test {
 protected:
  LayoutValue() {
    DrawSceneMarks();
    Scene::FixClock();
  }

  // What is open, as it has never been painted.
  static Layout Copy() {
    const auto stored = ViewAllPtrnData();
    return {PtrnHedr, ItemArray(stored.begin(), stored.end())};
  }
  static std::vector<guint32> Painted(Layout& layout) {
    Drawable picture(layout.Header.Parm1[HedrSlot::Width], layout.Header.Parm1[HedrSlot::Height]);
    DrawGc gc;
    DrawLayout(&picture, &gc, layout.Header, layout.Items);
    DrawGridData(&picture, &gc, layout.Header);
    return PixelsOf(picture);
  }

 private:
  Scene scene_;
  SceneBitmaps bitmaps_;
};

TEST_F(LayoutValue, LooksAsWhenItIsOpen) {
  MakeSampleLayout();
  PtrnHedr.Parm2[ViewSlot::Zoom] = 2;
  PtrnHedr.Parm2[ViewSlot::GridShown] = 1;
  PtrnHedr.Parm2[ViewSlot::GridColour] = Ink::Red;
  Layout one = Copy();
  Layout other = Copy();
  other.Header.Parm1[HedrSlot::WorkAreaColour] = Ink::Navy;
  other.Items.resize(1);
  const auto picture = PaintLayout();
  DrawGc gc;
  DrawGridData(picture.get(), &gc);
  const Layout painted = Copy();

  // Another layout is open while the two are painted.
  IntPtrnData();
  PtrnHedr = PTRNHEDR{};
  SetHeader(40, 30);
  AddItems({TextItem(TypeFixedString, 2, 2, Font12, {}, "水位")});
  EXPECT_EQ(Painted(one), PixelsOf(*picture));
  EXPECT_NE(Painted(other), PixelsOf(*picture));
  EXPECT_EQ(PtrnHedr.Parm1[HedrSlot::Width], 40);
  ASSERT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(+ViewPtrnData(0)->Size.cx, 0) << "it has not been painted";
  for (std::size_t no = 0; no < one.Items.size(); ++no) {
    EXPECT_EQ(+one.Items[no].Size.cx, +painted.Items[no].Size.cx) << no;
    EXPECT_EQ(+one.Items[no].Size.cy, +painted.Items[no].Size.cy) << no;
  }
  const auto text = std::find_if(one.Items.begin(), one.Items.end(),
                                 [](const PTRNDATA& item) { return item.Type == TypeFixedString; });
  EXPECT_GT(+text->Size.cx, 0);
}

}  // namespace
