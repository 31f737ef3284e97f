#include "tests/road/RoadTest.h"

#include <gtest/gtest.h>
#include <malloc.h>
#include <unistd.h>

#include <fstream>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "app/Window.h"
#include "dialogs/ToolBox.h"
#include "tests/tools/Tool.h"

RoadTest::RoadTest() {
  CopyText(PathName, Folder.Path());
  // As if every panel had been moved beside the canvas before.
  ToolBox_PointFlag = 1;
  for (POINT& place : ToolBox_PointData) place = {1050, 300};
}

void RoadTest::NewLayout(gint width, gint height) {
  ChooseMenu(MenuBar(), {"ファイル", "レイアウトの新規作成", "その他"});
  const Panel settings("レイアウト情報の設定［その他］");
  ASSERT_NE(settings.Window(), nullptr);
  settings.Enter(Cell{"領域の大きさ", 1}, width);
  settings.Enter(Cell{"領域の大きさ", 2}, height);
  settings.Enter(Cell{"レイアウト名", 1}, LayoutName);
  settings.PickColour({"作業領域", 1}, 5);
  settings.Press(" 設定 ");
  ASSERT_TRUE(See([&] {
    return PtrnFlag == 2 && gtk_widget_get_allocated_width(PtrnDraw) >= width &&
           gtk_widget_get_allocated_height(PtrnDraw) >= height;
  }));
  Settle();
}

nlohmann::json RoadTest::Saved(const std::string& name) const {
  const std::string file = std::string(ProjPath) + "/" + EucFromUtf8(name).value() + ".ptn";
  const ToolRun run = RunTool({"show", file});
  EXPECT_EQ(run.Code, 0) << run.Err;
  return nlohmann::json::parse(run.Code == 0 ? run.Out : R"({"Items": [{}]})");
}

void DragOnCanvas(gint x1, gint y1, gint x2, gint y2) {
  PointAt(PtrnDraw, x1, y1);
  ButtonDown(LeftButton);
  DragTo(PtrnDraw, (x1 + x2) / 2, (y1 + y2) / 2);
  DragTo(PtrnDraw, x2, y2);
  ButtonUp(LeftButton);
}

void ClickCanvas(gint x, gint y, Button button) {
  PointAt(PtrnDraw, x, y);
  ClickHere(button);
}

void SaveByKey() {
  PressKey(GDK_KEY_s, {GDK_KEY_Control_L});
  EXPECT_TRUE(See([] { return PtrnFlag == 1; })) << "not saved";
}

guint WindowCount() {
  return Look([] {
    GList* windows = gtk_window_list_toplevels();
    const guint count = g_list_length(windows);
    g_list_free(windows);
    return count;
  });
}

Memory MemoryNow() {
  Settle();
  return Look([] {
    const struct mallinfo2 info = mallinfo2();
    std::ifstream file("/proc/self/statm");
    gint64 all = 0;
    gint64 resident = 0;
    gint64 shared = 0;
    file >> all >> resident >> shared;
    return Memory{static_cast<gint64>(info.uordblks + info.hblkhd),
                  (resident - shared) * sysconf(_SC_PAGESIZE)};
  });
}
