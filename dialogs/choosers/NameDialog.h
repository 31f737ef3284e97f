// Dialogs around a list of names.
#pragma once

#include <functional>
#include <string>

#include "Types.h"
#include "dialogs/choosers/NameList.h"
#include "dialogs/frame/DialogFrame.h"

struct NameDialog {
  DialogFrame Frame = {};   // its `Build` comes last, when all is in place
  const gchar* Names = "";  // what assistive technology reads of the list
  SIZE Room = {480, 260};   // of the list, in dots
  // Fill the list, and the content above and below it.
  std::function<void(GtkWidget* list)> Fill = {};
  std::function<void(const DialogWindow& dialog)> Above = {};
  std::function<void(const DialogWindow& dialog)> Below = {};
  bool BeginOnList = false;  // the keyboard begins at its first row, which stays unselected
  // Called whenever another row or none is selected, with what it carries, "" for none.
  std::function<void(const std::string& name)> Selected = {};
  // Called for a row that is pressed twice or Return is pressed on, with what it carries.
  std::function<void(GtkWidget* list, const std::string& name)> Taken = {};
};

// Builds the dialog over `parent`, runs it and returns its answer.
gint RunNameDialog(GtkWidget* parent, NameDialog dialog);
