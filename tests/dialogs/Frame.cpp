// The frame that runs dialogs: answers, refusals, and what closing from inside leaves alone.
#include <gtest/gtest.h>

#include <functional>

#include "dialogs/Kit.h"
#include "dialogs/frame/TableDialog.h"
#include "layout/Screen.h"
#include "tests/dialogs/Controls.h"
#include "tests/window/Widgets.h"

namespace {

constexpr const gchar* Title = "題名";

gint Answer(const TableDialog& dialog, std::function<void(GtkWidget*)> act) {
  const DialogAnswer answer(Title, std::move(act));
  return RunTableDialog(nullptr, dialog);
}

}  // namespace

TEST(Frame, TakesOverWhatIsConfirmedOnly) {
  gint taken = 0;
  const TableDialog dialog = {.Frame = {.Title = Title}, .Take = [&taken] { ++taken; }};
  EXPECT_EQ(Answer(dialog, PressButton(" 取消 ")), 0);
  EXPECT_EQ(Answer(dialog, CloseByManager), 0);
  EXPECT_EQ(taken, 0);
  EXPECT_EQ(Answer(dialog, PressButton(" 設定 ")), 1);
  EXPECT_EQ(taken, 1);
}

TEST(Frame, StaysWhileItsCheckRefuses) {
  gint asked = 0;
  gint taken = 0;
  const TableDialog dialog = {.Frame = {.Title = Title},
                              .Check = [&asked] { return ++asked == 2 ? 1 : 0; },
                              .Take = [&taken] { ++taken; }};
  EXPECT_EQ(Answer(dialog,
                   [&taken](GtkWidget* window) {
                     PressButton(" 設定 ")(window);
                     EXPECT_EQ(FindWindow(Title), window);
                     EXPECT_EQ(taken, 0);
                     PressButton(" 設定 ")(window);
                     EXPECT_EQ(FindWindow(Title), nullptr);
                   }),
            1);
  EXPECT_EQ(taken, 1);
}

// Such an answer confirms nothing.
TEST(Frame, GivesTheAnswerOfAnotherButton) {
  gint taken = 0;
  const TableDialog dialog = {.Frame = {.Title = Title},
                              .More = {{.Label = "他", .Answer = 7}},
                              .Take = [&taken] { ++taken; }};
  EXPECT_EQ(Answer(dialog, PressButton("他")), 7);
  EXPECT_EQ(taken, 0);
}

TEST(Frame, GivesTheOtherAnswerWhenItIsClosedWithoutAButton) {
  const DialogAnswer answer(Title, CloseByManager);
  EXPECT_EQ(RunDialog(nullptr, {.Title = Title, .Otherwise = -1}), -1);
}

TEST(Frame, ClosesNothingThatHasGone) {
  const TableDialog dialog = {.Frame = {.Title = Title}};
  EXPECT_EQ(Answer(dialog,
                   [](GtkWidget* window) {
                     g_object_ref(window);
                     CloseByManager(window);
                     CloseDialog(window, 1);
                     g_object_unref(window);
                   }),
            0);
}

TEST(Frame, ShowsItsWindowForAsLongAsItIsOpen) {
  GtkWidget* shown = nullptr;
  const TableDialog dialog = {.Frame = {.Title = Title, .Window = &shown}};
  Answer(dialog, [&shown](GtkWidget* window) {
    EXPECT_EQ(shown, window);
    CloseByManager(window);
  });
  EXPECT_EQ(shown, nullptr);
}

// The tool box stays open below the dialog for copies, and its swatches open their pickers.
TEST(Frame, WithoutSwatchesItIsNotTheParentOfTheirPickers) {
  GtkWidget* const parent = Dlg_ColrData_Parent;
  DLGPARM parm = {1, 2, 3, 4};
  const DialogAnswer answer("描画情報複写", [parent](GtkWidget* window) {
    EXPECT_EQ(Dlg_ColrData_Parent, parent);
    EXPECT_EQ(Dlg_NumrBox_Parent, window);
    CloseByManager(window);
  });
  EXPECT_EQ(Dlg_Copy_Move(nullptr, 0, "描画情報複写", &parm), 0);
}
