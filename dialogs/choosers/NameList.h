// A one-column list of names; each row carries bytes of its own (a path, a record text) beside what
// it shows.
#pragma once

#include <gtk/gtk.h>

#include <string>

// A shown, empty list; assistive technology reads its name.
GtkWidget* NewNameList(const gchar* name);
// Appends a row that shows `label` (record or path bytes) and carries `bytes`.
void AddName(GtkWidget* list, const std::string& label, const std::string& bytes);
// Appends a greyed row that is neither selected nor taken and carries nothing; its tooltip gives
// the reason.
void AddUnusableName(GtkWidget* list, const std::string& label, const gchar* reason);
void ClearNames(GtkWidget* list);
// Has the dialog begin with the keyboard on the list, at its first row, which stays unselected.
void BeginOnNames(GtkWidget* list);
// What the selected row carries, "" when none is selected.
std::string SelectedName(GtkWidget* list);
// What the row at `path` carries, "" when there is none.
std::string NameAt(GtkWidget* list, GtkTreePath* path);
// Calls `changed` (selection, data) whenever another row or none is selected, but not when the list
// goes away.
void OnNameSelected(GtkWidget* list, GCallback changed, gpointer data);
