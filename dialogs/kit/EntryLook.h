// What an entry shows about itself: how much it takes, why it did not take a text, that it takes
// none.
#pragma once

#include <gtk/gtk.h>

#include <string>

constexpr const gchar* EntryTakesNoMore = "文字数の上限を超えるため入力できません。";
constexpr const gchar* EntryTookAPart = "文字数の上限までを入力しました。残りは入りません。";

// The tooltip of an entry that has nothing else to say.
void SetEntryHint(GtkWidget* entry, const std::string& hint);
// Marks the entry and gives the reason in its tooltip, until the mark is taken away.
void MarkEntry(GtkWidget* entry, const gchar* reason);
// Shows the hint again.
void UnmarkEntry(GtkWidget* entry);
// Lets an entry be read and copied from, not written in, and look so.
void MakeReadOnly(GtkWidget* entry);
