// Any layout that the program writes comes back as it was.
#include <gtest/gtest.h>

#include <random>

#include "tests/layout/LayoutFixture.h"

namespace {

class LayoutFileRandomTest : public LayoutFixture {
 protected:
  gint Number() { return static_cast<gint>(random_()); }
  gint Below(gint limit) { return static_cast<gint>(random_() % static_cast<unsigned>(limit)); }
  // Any bytes but 0, at most `limit` of them.
  template <std::size_t Size>
  void FillText(gchar (&field)[Size], gint limit) {
    std::memset(field, 0, Size);
    const gint length = Below(3) == 0 ? 0 : Below(limit + 1);
    for (gint i = 0; i < length; ++i) field[i] = static_cast<gchar>(1 + Below(255));
  }
  void FillHeader() {
    for (gint i = 0; i < 30; ++i) PtrnHedr.Parm1[i] = Number();
    for (gint i = 0; i < 10; ++i) PtrnHedr.Parm2[i] = Number();
    PtrnHedr.Parm2[1] = 0;  // the grid is always off after reading
    FillText(PtrnHedr.PtrnName1, 81);
    FillText(PtrnHedr.PtrnName2, 81);
    FillText(PtrnHedr.PtrnName3, 81);
    FillText(PtrnHedr.LogoName, 21);
    FillText(PtrnHedr.BmapName, 21);
  }
  void AddItem() {
    PTRNDATA item{};
    item.Type = 1 + Below(15);
    for (gint i = 0; i < 30; ++i) item.Parm[i] = Number();
    FillText(item.Text1, 100);
    FillText(item.Text2, 100);
    FillText(item.Text3, 100);
    FillText(item.ID_Name, 80);
    FillText(item.ID_Code, 20);
    item.ID_Type = Number();
    item.ID_No = Number();
    item.UndfFlag = Below(2);
    AddPtrnData(&item);
  }

  std::mt19937 random_{20240501};
};

TEST_F(LayoutFileRandomTest, AThousandLayoutsReadAndWriteByteForByte) {
  for (gint layout = 0; layout < 1000; ++layout) {
    Clear();
    FillHeader();
    const gint items = Below(60);
    for (gint i = 0; i < items; ++i) AddItem();
    const std::string first = Written();
    ASSERT_EQ(Read(first), items > 0) << "layout " << layout;
    ASSERT_EQ(GetPtrnCount(), items) << "layout " << layout;
    ASSERT_EQ(Written(), first) << "layout " << layout;
  }
}

}  // namespace
