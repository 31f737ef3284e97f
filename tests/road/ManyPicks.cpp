#include <gtest/gtest.h>

#include <iostream>

#include "PtrnData.h"
#include "app/Window.h"
#include "dialogs/ToolBox.h"
#include "tests/road/RoadTest.h"

namespace {

class ManyPicks : public RoadTest {};

// Picks two items in turn with real clicks; each pick opens the tool box anew. A user in haste
// waits for no panel; now and then one is looked at.
void PickInTurn(gint times) {
  constexpr gint Looks = 10;
  for (gint i = 0; i < times; i++) {
    const gint item = i % 2;
    // Lets the other item go, then picks this one.
    ClickFast(PtrnDraw, 40 + 100 * item, 60, 2);
    ASSERT_TRUE(See([item] { return PtrnMode == ModeSelected && PtrnNo == item; })) << i;
    if (i % Looks != 0) continue;
    Settle();
    ASSERT_TRUE(See([] { return ToolBox != nullptr && gtk_widget_get_mapped(ToolBox) != FALSE; }));
  }
}

TEST_F(ManyPicks, DeepenNoStackAndKeepNothing) {
#ifdef __SANITIZE_ADDRESS__
  // Freed memory is held back here, so its amount tells nothing; leaks are found at the end.
  constexpr bool MemoryTells = false;
  constexpr gint Picks = 200;
  constexpr gint WarmUp = 50;
#else
  constexpr bool MemoryTells = true;
  constexpr gint Picks = 2000;
  constexpr gint WarmUp = 200;
#endif
  constexpr gint64 BytesPerPick = 1024;
  Play([this] {
    NewLayout(640, 480);
    Look([] {
      for (const gint x : {40, 140}) {
        PTRNDATA item = BoxItem(x, 40, x + 40, 80, 8);
        item.Type = TypeSpinButton;
        AddPtrnData(&item);
      }
      DrawRequest(1);
    });
    ClickCanvas(40, 60);
    PickInTurn(WarmUp);
    const Memory before = MemoryNow();
    const gint depth = Look([] { return g_main_depth(); });
    const guint windows = WindowCount();
    PickInTurn(Picks - WarmUp);
    const Memory after = MemoryNow();
    EXPECT_EQ(Look([] { return g_main_depth(); }), depth);
    EXPECT_EQ(WindowCount(), windows);
    std::cout << before.InUse << " bytes in use, " << before.Resident << " resident; "
              << Picks - WarmUp << " picks later " << after.InUse - before.InUse << " and "
              << after.Resident - before.Resident << " more" << std::endl;
    if (MemoryTells) {
      EXPECT_LT(after.InUse - before.InUse, (Picks - WarmUp) * BytesPerPick);
      EXPECT_LT(after.Resident - before.Resident, (Picks - WarmUp) * BytesPerPick);
    }
  });
}

}  // namespace
