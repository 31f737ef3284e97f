// Dialogs that edit a working copy and take it over when they are confirmed.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "dialogs/frame/DialogFrame.h"
#include "dialogs/kit/ControlTables.h"

struct TableDialog {
  DialogFrame Frame = {};  // its `Build` adds what stands below the tables' grid; no buttons
  std::optional<ControlTables> Tables = {};
  guint ColumnSpacing = 20;
  // Adds to the tables' grid what they do not hold, before its controls are named.
  std::function<void(GtkWidget* grid)> Complete = {};
  // The row whose entry begins with the keyboard; null = the first control.
  const DLG_EDITBOX* First = nullptr;
  const gchar* Ok = " 設定 ";
  bool ReturnPressesOk = true;
  std::vector<DialogButton> More = {};  // between the one that confirms and the one that cancels
  const gchar* Cancel = " 取消 ";
  // 0 refuses, when it has told the reason, and the dialog stays.
  std::function<gint()> Check = {};
  // Takes the working copy over when the dialog is confirmed, before it closes.
  std::function<void()> Take = {};
};

// 1 = confirmed and taken over, 0 = cancelled or closed; an answer of the dialog's other controls.
gint RunTableDialog(GtkWidget* parent, const TableDialog& dialog);
