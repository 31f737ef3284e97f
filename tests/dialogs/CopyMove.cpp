// The dialog that asks how often and how far to copy, or how far to move.
#include <gtest/gtest.h>

#include <functional>

#include "layout/CopyDialogs.h"
#include "layout/Screen.h"
#include "tests/dialogs/Controls.h"
#include "tests/window/Widgets.h"

namespace {

constexpr const gchar* CopyTitle = "描画情報複写";
constexpr const gchar* MoveTitle = "描画情報移動";

GtkSpinButton* SpinAt(GtkWidget* dialog, gint line) {
  return GTK_SPIN_BUTTON(ControlAt(FindGrid(dialog), line, 1, GTK_TYPE_SPIN_BUTTON));
}

std::string LabelAt(GtkWidget* dialog, gint line) {
  return LabelText(ControlAt(FindGrid(dialog), line, 0, GTK_TYPE_LABEL));
}

bool Same(const DLGPARM& parm, gint cont, gint xdot, gint ydot, gint code) {
  return parm.cont == cont && parm.xdot == xdot && parm.ydot == ydot && parm.code == code;
}

}  // namespace

TEST(CopyMove, CopyAsksForFourNumbers) {
  DLGPARM parm = {1, 2, 3, 4};
  const DialogAnswer answer(CopyTitle, [](GtkWidget* dialog) {
    const struct {
      const gchar* Label;
      gint Value;
      gint Max;
    } rows[] = {{"複写箇数", 1, 99},
                {"Ｘ方向ドット数", 2, 9999},
                {"Ｙ方向ドット数", 3, 9999},
                {"識別番号", 4, 9999}};
    for (gint line = 0; line < 4; line++) {
      EXPECT_EQ(LabelAt(dialog, line), rows[line].Label);
      EXPECT_EQ(gtk_spin_button_get_value_as_int(SpinAt(dialog, line)), rows[line].Value);
      gdouble min = -1;
      gdouble max = -1;
      gtk_spin_button_get_range(SpinAt(dialog, line), &min, &max);
      EXPECT_EQ(min, 0);
      EXPECT_EQ(max, rows[line].Max);
      gtk_spin_button_set_value(SpinAt(dialog, line), 10 + line);
    }
    PressButton(" 複写 ")(dialog);
  });
  EXPECT_EQ(Dlg_ToolCopy(nullptr, &parm), 1);
  EXPECT_TRUE(Same(parm, 10, 11, 12, 13));
}

TEST(CopyMove, MoveAsksForTheTwoDistances) {
  DLGPARM parm = {1, 2, 3, 4};
  const DialogAnswer answer(MoveTitle, [](GtkWidget* dialog) {
    EXPECT_EQ(LabelAt(dialog, 0), "Ｘ方向ドット数");
    EXPECT_EQ(LabelAt(dialog, 1), "Ｙ方向ドット数");
    EXPECT_EQ(CountOf(dialog, GTK_TYPE_SPIN_BUTTON), 2);
    gtk_spin_button_set_value(SpinAt(dialog, 0), 20);
    gtk_spin_button_set_value(SpinAt(dialog, 1), 30);
    PressButton(" 移動 ")(dialog);
  });
  EXPECT_EQ(Dlg_AreaMove(nullptr, &parm), 1);
  EXPECT_TRUE(Same(parm, 1, 20, 30, 4));
}

TEST(CopyMove, AreaCopyIsTheCopyDialog) {
  DLGPARM parm = {1, 2, 3, 4};
  const DialogAnswer answer(CopyTitle, PressButton(" 複写 "));
  EXPECT_EQ(Dlg_AreaCopy(nullptr, &parm), 1);
}

TEST(CopyMove, CancelAndCloseLeaveTheNumbers) {
  for (const std::function<void(GtkWidget*)>& leave :
       {PressButton(" 取消 "), std::function<void(GtkWidget*)>(CloseByManager)}) {
    DLGPARM parm = {1, 2, 3, 4};
    const DialogAnswer answer(CopyTitle, [&leave](GtkWidget* dialog) {
      gtk_spin_button_set_value(SpinAt(dialog, 0), 50);
      leave(dialog);
    });
    EXPECT_EQ(Dlg_ToolCopy(nullptr, &parm), 0);
    EXPECT_TRUE(Same(parm, 1, 2, 3, 4));
  }
}

TEST(CopyMove, ReturnConfirmsATypedNumber) {
  DLGPARM parm = {1, 2, 3, 4};
  const DialogAnswer answer(CopyTitle, [](GtkWidget* dialog) {
    GtkWidget* spin = GTK_WIDGET(SpinAt(dialog, 1));
    gtk_entry_set_text(GTK_ENTRY(spin), "77");
    gtk_widget_activate(spin);
  });
  EXPECT_EQ(Dlg_ToolCopy(nullptr, &parm), 1);
  EXPECT_TRUE(Same(parm, 1, 77, 3, 4));
}

TEST(CopyMove, TheTitleIsTheCallers) {
  DLGPARM parm = {};
  const DialogAnswer answer("題名", CloseByManager);
  EXPECT_EQ(Dlg_Copy_Move(nullptr, 1, "題名", &parm), 0);
}
