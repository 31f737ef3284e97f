// The builders of labels, numbers, radio buttons, check buttons and drop-down lists.
#include "dialogs/Kit.h"

#include <gtest/gtest.h>

#include "tests/dialogs/Controls.h"
#include "tests/dialogs/GridWindow.h"

namespace {

void SetActive(GtkWidget* button, bool active) {
  gtk_toggle_button_set_active(GTK_TOGGLE_BUTTON(button), active);
}

bool IsActive(GtkWidget* button) {
  return gtk_toggle_button_get_active(GTK_TOGGLE_BUTTON(button)) != FALSE;
}

gint ChildCount(GtkWidget* grid) {
  GList* children = gtk_container_get_children(GTK_CONTAINER(grid));
  const auto count = static_cast<gint>(g_list_length(children));
  g_list_free(children);
  return count;
}

constexpr DLG_STRING EndString = {-1, 0, 0, 0, nullptr, nullptr};
constexpr DLG_NUMRBOX EndNumrBox = {-1, 0, 0, 0, 0, 0, nullptr, nullptr, nullptr};
constexpr DLG_RADIOBUTN EndRadio = {-1, 0, 0, 0, nullptr, nullptr};
constexpr DLG_CHECKBUTN EndCheck = {-1, 0, 0, nullptr, nullptr};
constexpr DLG_COMBOBOX EndCombo = {-1, 0, 0, 0, nullptr, nullptr, nullptr};
const gchar* const Fruits[] = {"りんご", "みかん", "もも", "", ""};

}  // namespace

// Labels.

TEST(Kit, ATableThatBeginsWithItsEndBuildsNothing) {
  DLG_STRING rows[] = {EndString, {0, 0, 0, 0, "after the end", nullptr}};
  GridWindow form;
  Dlg_String(form.Window, form.Grid, rows);
  EXPECT_EQ(ChildCount(form.Grid), 0);
}

TEST(Kit, RowsStandInTheirCells) {
  DLG_STRING rows[] = {
      {0, 0, 0, 0, "左", nullptr}, {2, 1, 3, 1, "右", nullptr}, {-1, 0, 0, 0, nullptr, nullptr}};
  GridWindow form;
  Dlg_String(form.Window, form.Grid, rows);
  EXPECT_EQ(ChildCount(form.Grid), 2);
  ASSERT_NE(rows[0].label, nullptr);
  ASSERT_NE(rows[1].label, nullptr);
  EXPECT_EQ(PlaceOf(form.Grid, rows[0].label), (CellPlace{0, 0, 0}));
  EXPECT_EQ(PlaceOf(form.Grid, rows[1].label), (CellPlace{2, 1, 3}));
  EXPECT_EQ(LabelText(rows[0].label), "左");
  EXPECT_EQ(LabelText(rows[1].label), "右");
}

TEST(Kit, LabelsStandLeftOrRight) {
  DLG_STRING rows[] = {{0, 0, 0, 0, "左", nullptr}, {1, 0, 0, 7, "右", nullptr}, EndString};
  GridWindow form;
  Dlg_String(form.Window, form.Grid, rows);
  EXPECT_EQ(gtk_label_get_xalign(GTK_LABEL(rows[0].label)), 0.0F);
  EXPECT_EQ(gtk_label_get_xalign(GTK_LABEL(rows[1].label)), 1.0F);
}

TEST(Kit, ARowWithoutAColumnIsLeftOut) {
  DLG_STRING rows[] = {{0, -1, 0, 0, "hidden", nullptr}, {1, 0, 0, 0, "shown", nullptr}, EndString};
  GridWindow form;
  Dlg_String(form.Window, form.Grid, rows);
  EXPECT_EQ(ChildCount(form.Grid), 1);
  EXPECT_EQ(rows[0].label, nullptr);
}

TEST(Kit, ControlsFillTheirCells) {
  DLG_STRING rows[] = {{0, 0, 0, 0, "左", nullptr}, EndString};
  GridWindow form;
  Dlg_String(form.Window, form.Grid, rows);
  EXPECT_TRUE(gtk_widget_get_hexpand(rows[0].label));
  EXPECT_TRUE(gtk_widget_get_vexpand(rows[0].label));
  EXPECT_EQ(gtk_widget_get_halign(rows[0].label), GTK_ALIGN_FILL);
  EXPECT_EQ(gtk_widget_get_valign(rows[0].label), GTK_ALIGN_FILL);
  EXPECT_TRUE(gtk_widget_get_visible(rows[0].label));
}

TEST(Kit, TheControlIsForgottenWithItsWindow) {
  DLG_STRING rows[] = {{0, 0, 0, 0, "左", nullptr}, EndString};
  GridWindow form;
  Dlg_String(form.Window, form.Grid, rows);
  gtk_container_remove(GTK_CONTAINER(form.Grid), rows[0].label);
  EXPECT_EQ(rows[0].label, nullptr);
}

TEST(Kit, NumbersAreShownInTheirWidth) {
  DLG_NUMERIC rows[] = {
      {0, 0, 0, 0, 5, 42, nullptr}, {1, 0, 0, 1, 2, -1234, nullptr}, {-1, 0, 0, 0, 0, 0, nullptr}};
  GridWindow form;
  Dlg_Numeric(form.Window, form.Grid, rows);
  EXPECT_EQ(LabelText(rows[0].numeric), "   42");
  EXPECT_EQ(LabelText(rows[1].numeric), "-1234");
  EXPECT_EQ(gtk_label_get_xalign(GTK_LABEL(rows[1].numeric)), 1.0F);
}

TEST(Kit, EachBuilderRemembersItsLatestParent) {
  DLG_STRING labels[] = {EndString};
  DLG_CHECKBUTN checks[] = {EndCheck};
  GridWindow form;
  Dlg_String(form.Window, form.Grid, labels);
  Dlg_CheckButn(form.Grid, form.Grid, checks);
  EXPECT_EQ(Dlg_String_Parent, form.Window);
  EXPECT_EQ(Dlg_CheckButn_Parent, form.Grid);
}

// Spin buttons.

TEST(Kit, SpinsWriteEachChange) {
  gint value = 7;
  DLG_NUMRBOX rows[] = {{0, 1, 1, 2, 99, 0, &value, "", nullptr}, EndNumrBox};
  GridWindow form;
  Dlg_NumrBox(form.Window, form.Grid, rows);
  auto* spin = GTK_SPIN_BUTTON(rows[0].spin);
  EXPECT_EQ(gtk_spin_button_get_value_as_int(spin), 7);
  gtk_spin_button_spin(spin, GTK_SPIN_STEP_FORWARD, 1);
  EXPECT_EQ(value, 8);
  gtk_spin_button_spin(spin, GTK_SPIN_PAGE_FORWARD, 5);
  EXPECT_EQ(value, 13);
  gtk_spin_button_set_value(spin, 55);
  EXPECT_EQ(value, 55);
}

TEST(Kit, SpinsTellTheirRange) {
  gint value = 10;
  DLG_NUMRBOX rows[] = {{0, 0, 0, 4, 9999, 10, &value, "", nullptr}, EndNumrBox};
  GridWindow form;
  Dlg_NumrBox(form.Window, form.Grid, rows);
  gchar* tooltip = gtk_widget_get_tooltip_text(rows[0].spin);
  EXPECT_STREQ(tooltip, "設定範囲 10 〜 9999");
  g_free(tooltip);
}

TEST(Kit, SpinsKeepToTheirRange) {
  gint value = 10;
  DLG_NUMRBOX rows[] = {{0, 0, 0, 4, 9999, 10, &value, "", nullptr}, EndNumrBox};
  GridWindow form;
  Dlg_NumrBox(form.Window, form.Grid, rows);
  auto* spin = GTK_SPIN_BUTTON(rows[0].spin);
  gtk_spin_button_spin(spin, GTK_SPIN_STEP_BACKWARD, 1);
  EXPECT_EQ(value, 10);
  gtk_spin_button_set_value(spin, 20000);
  EXPECT_EQ(value, 9999);
  EXPECT_FALSE(gtk_spin_button_get_wrap(spin));
  EXPECT_EQ(gtk_spin_button_get_digits(spin), 0U);
}

TEST(Kit, ASpinLeavesAValueOutOfItsRangeUntilItIsChanged) {
  gint value = 123456;
  DLG_NUMRBOX rows[] = {{0, 0, 0, 2, 99, 0, &value, "", nullptr}, EndNumrBox};
  GridWindow form;
  Dlg_NumrBox(form.Window, form.Grid, rows);
  form.Show();
  EXPECT_EQ(value, 123456);
  EXPECT_EQ(EntryText(rows[0].spin), "123456");
  gtk_widget_activate(rows[0].spin);
  EXPECT_EQ(value, 123456);
  EXPECT_EQ(EntryText(rows[0].spin), "123456");
  gtk_spin_button_spin(GTK_SPIN_BUTTON(rows[0].spin), GTK_SPIN_STEP_BACKWARD, 1);
  EXPECT_EQ(value, 99);
  EXPECT_EQ(EntryText(rows[0].spin), "99");
}

// What a spin button of a range stores and shows after a number was typed into it.
struct TypedNumber {
  gint Stored;
  std::string Shown;
};
TypedNumber TypeIntoSpin(gint value, gint min, gint max, const gchar* text) {
  DLG_NUMRBOX rows[] = {{0, 0, 0, 4, max, min, &value, "", nullptr}, EndNumrBox};
  GridWindow form;
  Dlg_NumrBox(form.Window, form.Grid, rows);
  EXPECT_EQ(EntryText(rows[0].spin), std::to_string(value));
  gtk_entry_set_text(GTK_ENTRY(rows[0].spin), text);
  gtk_widget_activate(rows[0].spin);
  return {value, EntryText(rows[0].spin)};
}

TEST(Kit, ASpinTakesATypedNumberThatItsRangeEndsWith) {
  const TypedNumber typed = TypeIntoSpin(0, 10, 9999, "10");
  EXPECT_EQ(typed.Stored, 10);
  EXPECT_EQ(typed.Shown, "10");
}

TEST(Kit, ASpinBringsATypedNumberIntoItsRange) {
  const TypedNumber typed = TypeIntoSpin(0, 10, 9999, "3");
  EXPECT_EQ(typed.Stored, 10);
  EXPECT_EQ(typed.Shown, "10");
}

TEST(Kit, ASpinTakesATypedNumberWhenItIsLeft) {
  EXPECT_EQ(TypeIntoSpin(7, 0, 99, "42").Stored, 42);
}

TEST(Kit, ACaptionStandsLeftOfItsSpin) {
  gint value = 0;
  DLG_NUMRBOX rows[] = {{0, 0, 0, 2, 99, 0, &value, "高さ", nullptr}, EndNumrBox};
  GridWindow form;
  Dlg_NumrBox(form.Window, form.Grid, rows);
  GtkWidget* box = gtk_widget_get_parent(rows[0].spin);
  GtkWidget* caption = FindLabel(box, "高さ");
  ASSERT_NE(caption, nullptr);
  gint position = -1;
  gtk_container_child_get(GTK_CONTAINER(box), caption, "position", &position, nullptr);
  EXPECT_EQ(position, 0);
  EXPECT_EQ(gtk_box_get_spacing(GTK_BOX(box)), 5);
}

// Radio buttons.

TEST(Kit, RadioButtonsOfOneVariableFormAGroup) {
  gint value = 1;
  DLG_RADIOBUTN rows[] = {
      {0, 0, 0, 0, &value, "零"}, {0, 1, 1, 1, &value, "一"}, {0, 2, 2, 5, &value, "五"}, EndRadio};
  GridWindow form;
  Dlg_RadioButn(form.Window, form.Grid, rows);
  GtkWidget* one = FindLabel(form.Grid, "一");
  GtkWidget* five = FindLabel(form.Grid, "五");
  EXPECT_TRUE(IsActive(one));
  SetActive(five, true);
  EXPECT_EQ(value, 5);
  EXPECT_FALSE(IsActive(one));
}

TEST(Kit, ReturningToAnEarlierVariableStartsAGroupOfItsOwn) {
  gint first = 0;
  gint second = 0;
  DLG_RADIOBUTN rows[] = {{0, 0, 0, 0, &first, "a0"},  {0, 1, 1, 1, &first, "a1"},
                          {1, 0, 0, 0, &second, "b0"}, {1, 1, 1, 1, &second, "b1"},
                          {2, 0, 0, 2, &first, "a2"},  EndRadio};
  GridWindow form;
  Dlg_RadioButn(form.Window, form.Grid, rows);
  const auto groupSize = [&form](const gchar* label) {
    return g_slist_length(
        gtk_radio_button_get_group(GTK_RADIO_BUTTON(FindLabel(form.Grid, label))));
  };
  EXPECT_EQ(groupSize("a0"), 2U);
  EXPECT_EQ(groupSize("b0"), 2U);
  EXPECT_EQ(groupSize("a2"), 1U);
  SetActive(FindLabel(form.Grid, "b1"), true);
  EXPECT_EQ(first, 0);
  EXPECT_EQ(second, 1);
}

TEST(Kit, ARadioGroupKeepsAValueThatNoButtonStandsFor) {
  gint value = 9;
  DLG_RADIOBUTN rows[] = {{0, 0, 0, 0, &value, "零"}, {0, 1, 1, 1, &value, "一"}, EndRadio};
  GridWindow form;
  Dlg_RadioButn(form.Window, form.Grid, rows);
  EXPECT_EQ(value, 9);
  SetActive(FindLabel(form.Grid, "一"), true);
  EXPECT_EQ(value, 1);
}

// Check buttons.

TEST(Kit, ACheckButtonWritesOneAndZero) {
  gint flag = 0;
  DLG_CHECKBUTN rows[] = {{0, 0, 0, &flag, "点滅"}, EndCheck};
  GridWindow form;
  Dlg_CheckButn(form.Window, form.Grid, rows);
  GtkWidget* button = FindLabel(form.Grid, "点滅");
  EXPECT_FALSE(IsActive(button));
  SetActive(button, true);
  EXPECT_EQ(flag, 1);
  SetActive(button, false);
  EXPECT_EQ(flag, 0);
}

TEST(Kit, ACheckButtonOfAnyOtherValueIsUnchecked) {
  gint flag = 2;
  DLG_CHECKBUTN rows[] = {{0, 0, 0, &flag, "点滅"}, EndCheck};
  GridWindow form;
  Dlg_CheckButn(form.Window, form.Grid, rows);
  GtkWidget* button = FindLabel(form.Grid, "点滅");
  EXPECT_FALSE(IsActive(button));
  EXPECT_EQ(flag, 2);
  SetActive(button, true);
  EXPECT_EQ(flag, 1);
  SetActive(button, false);
  EXPECT_EQ(flag, 0);
}

TEST(Kit, AnOutleftCheckButtonLeavesItsFlag) {
  gint flag = 2;
  DLG_CHECKBUTN rows[] = {{0, -1, 0, &flag, "点滅"}, EndCheck};
  GridWindow form;
  Dlg_CheckButn(form.Window, form.Grid, rows);
  EXPECT_EQ(ChildCount(form.Grid), 0);
  EXPECT_EQ(flag, 2);
}

// Drop-down lists.

TEST(Kit, ADropDownListShowsAndWritesItsEntry) {
  gint item = 1;
  DLG_COMBOBOX rows[] = {{0, 1, 4, 0, &item, Fruits, "果物"}, EndCombo};
  GridWindow form;
  Dlg_ComboBox(form.Window, form.Grid, rows);
  GtkWidget* combo = ControlAt(form.Grid, 0, 1, GTK_TYPE_COMBO_BOX_TEXT);
  ASSERT_NE(combo, nullptr);
  EXPECT_EQ(ComboText(combo), "みかん");
  EXPECT_EQ(gtk_tree_model_iter_n_children(gtk_combo_box_get_model(GTK_COMBO_BOX(combo)), nullptr),
            3);
  EXPECT_NE(FindLabel(form.Grid, "果物"), nullptr);
  gtk_combo_box_set_active(GTK_COMBO_BOX(combo), 2);
  EXPECT_EQ(item, 2);
}

TEST(Kit, AnIndexPastTheListShowsTheFirstEntry) {
  gint item = 4;
  DLG_COMBOBOX rows[] = {{0, 0, 0, 0, &item, Fruits, ""}, EndCombo};
  GridWindow form;
  Dlg_ComboBox(form.Window, form.Grid, rows);
  EXPECT_EQ(ComboText(ControlAt(form.Grid, 0, 0, GTK_TYPE_COMBO_BOX_TEXT)), "りんご");
  EXPECT_EQ(item, 4);
}

TEST(Kit, AnIndexEqualToTheCountShowsNothing) {
  gint item = 3;
  DLG_COMBOBOX rows[] = {{0, 0, 0, 0, &item, Fruits, ""}, EndCombo};
  GridWindow form;
  Dlg_ComboBox(form.Window, form.Grid, rows);
  GtkWidget* combo = ControlAt(form.Grid, 0, 0, GTK_TYPE_COMBO_BOX_TEXT);
  EXPECT_EQ(ComboText(combo), "");
  EXPECT_EQ(item, 3);
  gtk_combo_box_set_active(GTK_COMBO_BOX(combo), 0);
  EXPECT_EQ(item, 0);
}

TEST(Kit, ANegativeIndexIsKept) {
  gint item = -3;
  DLG_COMBOBOX rows[] = {{0, 0, 0, 0, &item, Fruits, ""}, EndCombo};
  GridWindow form;
  Dlg_ComboBox(form.Window, form.Grid, rows);
  EXPECT_EQ(item, -3);
}

TEST(Kit, AnEmptyListLeavesOnlyTheCaption) {
  gint item = 0;
  const gchar* const nothing[] = {"", ""};
  DLG_COMBOBOX rows[] = {{0, 0, 0, 0, &item, nothing, "果物"}, EndCombo};
  GridWindow form;
  Dlg_ComboBox(form.Window, form.Grid, rows);
  EXPECT_EQ(ControlAt(form.Grid, 0, 0, GTK_TYPE_COMBO_BOX_TEXT), nullptr);
  EXPECT_NE(FindLabel(form.Grid, "果物"), nullptr);
}

TEST(Kit, AnEditableListTakesOnlyTextsOfItsOwn) {
  gint item = 1;
  DLG_COMBOBOX rows[] = {{0, 0, 0, 1, &item, Fruits, ""}, EndCombo};
  GridWindow form;
  Dlg_ComboBox(form.Window, form.Grid, rows);
  GtkWidget* entry = ControlAt(form.Grid, 0, 0, GTK_TYPE_ENTRY);
  ASSERT_NE(entry, nullptr);
  EXPECT_EQ(EntryText(entry), "みかん");
  gtk_entry_set_text(GTK_ENTRY(entry), "なし");
  EXPECT_EQ(item, 1);
  gtk_entry_set_text(GTK_ENTRY(entry), "もも");
  EXPECT_EQ(item, 2);
}

TEST(Kit, AListThatIsNotEditableHasNoEntry) {
  gint item = 1;
  DLG_COMBOBOX rows[] = {{0, 0, 0, 0, &item, Fruits, ""}, EndCombo};
  GridWindow form;
  Dlg_ComboBox(form.Window, form.Grid, rows);
  EXPECT_EQ(ControlAt(form.Grid, 0, 0, GTK_TYPE_ENTRY), nullptr);
}
