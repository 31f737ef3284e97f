// The section of the tool box that all types share, and the point read-outs.
#include "Constant.h"
#include "dialogs/ToolBoxWindow.h"
#include "dialogs/frame/Accessible.h"
#include "dialogs/kit/Cells.h"
#include "dialogs/toolbox/ToolBoxPage.h"
#include "dialogs/toolbox/ToolBoxRows.h"
#include "dialogs/toolbox/ToolBoxTables.h"
#include "layout/Screen.h"

GtkWidget* ToolBox_Label1 = nullptr;
GtkWidget* ToolBox_Label2 = nullptr;

namespace {

gint* const ItemUndf = ItemInt(offsetof(PTRNDATA, UndfFlag));
gint* const ItemRegst = ItemInt(offsetof(PTRNDATA, RegstFlag));
gint* const ItemCheck = ItemInt(offsetof(PTRNDATA, CheckFlag));

}  // namespace

// Rows get their lines from ToolBox_Comn, where line 0 stands here.
DLG_STRING ToolComn_String[] = {
    Label(0, "始点"),     Label(0, "位置"),       Label(1, "終点"), Label(0, "処理種別"),
    Label(0, "画面名称"), Label(0, "識別コード"), EndString};
DLG_COMBOBOX ToolComn_Combo[] = {Choice(0, ItemInt(offsetof(PTRNDATA, ID_Type)), IDCodeList),
                                 EndComboBox};
DLG_EDITBOX ToolComn_Edit[] = {Entry(0, PtrnData.ID_Name, true), Entry(0, PtrnData.ID_Code, false),
                               EndEditBox};
DLG_NUMRBOX ToolComn_Numr[] = {Number(0, 1, ItemInt(offsetof(PTRNDATA, ID_No)), 9999), EndNumrBox};
DLG_CHECKBUTN ToolComn_Check[] = {
    Check(0, 3, 3, Parm(ItemSlot::TopLayer), "TOP"), Check(0, 1, 3, ItemUndf, "後で設定"),
    Check(0, 1, 3, ItemRegst, "文字列一覧へ登録"),
    Check(0, 1, 3, ItemCheck, "次回からの初期値として保存"), EndCheckButn};

namespace {

void ShowIf(gint* culm1, gint culm, bool shown) {
  *culm1 = shown ? culm : -1;
}

void SetCommonRows(gint line, bool onePoint, bool registers) {
  ShowIf(&ToolComn_String[0].culm1, 0, !onePoint);
  ShowIf(&ToolComn_String[1].culm1, 0, onePoint);
  ShowIf(&ToolComn_String[2].culm1, 0, !onePoint);
  for (gint k = 0; k < 3; ++k) ToolComn_String[3 + k].line = line + k;
  ToolComn_Combo[0].line = line;
  ToolComn_Edit[0].line = line + 1;
  ToolComn_Edit[1].line = line + 2;
  ToolComn_Numr[0].line = line + 3;
  ToolComn_Check[1].line = line + 4;
  ToolComn_Check[2].line = line + 5;
  ShowIf(&ToolComn_Check[2].culm1, 1, registers);
  ToolComn_Check[3].line = line + (registers ? 6 : 5);
}

// In digits of one width, so that figures stand below each other and do not dance.
GtkWidget* NewReadOut() {
  GtkWidget* label = NewLabel("");
  PangoAttrList* look = pango_attr_list_new();
  pango_attr_list_insert(look, pango_attr_family_new("monospace"));
  gtk_label_set_attributes(GTK_LABEL(label), look);
  pango_attr_list_unref(look);
  return label;
}

// A label that changes has its whole window laid out anew. The read-outs change at every motion of
// a drag, in a room that stays the same: the layout ends at a box of their own.
GtkWidget* NewFixedRoom(GtkWidget* content) {
  GtkWidget* room = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
  G_GNUC_BEGIN_IGNORE_DEPRECATIONS
  gtk_container_set_resize_mode(GTK_CONTAINER(room), GTK_RESIZE_QUEUE);
  G_GNUC_END_IGNORE_DEPRECATIONS
  gtk_box_pack_start(GTK_BOX(room), content, TRUE, TRUE, 0);
  return room;
}

// One page has a swatch in the same cell; the figures step aside for it.
void AddReadOut(GtkWidget* table, GtkWidget** slot, gint line, const gchar* name) {
  GtkWidget* shared = gtk_grid_get_child_at(GTK_GRID(table), 1, line);
  GtkRequisition room = {0, 0};
  if (shared != nullptr) gtk_widget_get_preferred_size(shared, nullptr, &room);
  KeepWidget(slot, NewReadOut());
  SetAccessibleName(*slot, name);
  if (shared != nullptr) gtk_widget_set_margin_start(*slot, room.width + 8);
  PlaceControl(table, NewFixedRoom(*slot), line, 1, 2);
}

void ShowPoint(GtkWidget* label, const POINT& point) {
  if (label == nullptr) return;
  gchar text[32];
  const gint length = g_snprintf(text, sizeof text, "%5d / %5d", point.x, point.y);
  const bool otherRoom = length != static_cast<gint>(strlen(gtk_label_get_text(GTK_LABEL(label))));
  gtk_label_set_text(GTK_LABEL(label), text);
  if (otherRoom) gtk_widget_queue_resize(gtk_widget_get_parent(gtk_widget_get_parent(label)));
}

}  // namespace

void ToolBox_Comn(GtkWidget* table, gint line, gint flag1, gint flag2) {
  GtkWidget* window = gtk_widget_get_toplevel(table);
  SetCommonRows(line, flag1 != 0, flag2 != 0);
  AddReadOut(table, &ToolBox_Label1, 0, ToolComn_String[flag1 == 0 ? 0 : 1].text);
  KeepWidget(&ToolBox_Label2, nullptr);
  if (flag1 == 0) AddReadOut(table, &ToolBox_Label2, 1, ToolComn_String[2].text);
  Dlg_String(window, table, ToolComn_String);
  Dlg_EditBox(window, table, ToolComn_Edit);
  Dlg_NumrBox(window, table, ToolComn_Numr);
  // Its row has no label.
  SetAccessibleName(ToolComn_Numr[0].spin, "識別番号");
  Dlg_ComboBox(window, table, ToolComn_Combo);
  Dlg_CheckButn(window, table, ToolComn_Check);
  SetToolBoxPoint();
  AddBrowseButton(table, {line + 1, 4, ToolBox_Page, &ToolComn_Edit[0]});
  AddBrowseButton(table, {line + 2, 4, ToolBox_Code, &ToolComn_Edit[1]});
}

void SetToolBoxPoint() {
  if (ToolBox == nullptr) return;
  ShowPoint(ToolBox_Label1, PtrnData.Point1);
  ShowPoint(ToolBox_Label2, PtrnData.Point2);
}
