// The section of the tool box that all types share, and the point read-outs.
#include <map>
#include <tuple>

#include "dialogs/ToolBox.h"
#include "dialogs/ToolBoxWindow.h"
#include "dialogs/frame/Accessible.h"
#include "dialogs/kit/Cells.h"
#include "dialogs/toolbox/ToolBoxRows.h"
#include "layout/ItemSlots.h"
#include "layout/Screen.h"
#include "support/ConstantLists.h"

GtkWidget* ToolBox_Label1 = nullptr;
GtkWidget* ToolBox_Label2 = nullptr;

namespace {

constexpr const gchar* StartName = "始点";
constexpr const gchar* PositionName = "位置";
constexpr const gchar* EndName = "終点";

struct CommonVariant {
  gint Line;
  bool OnePoint;
  bool Registers;

  bool operator<(const CommonVariant& other) const {
    return std::tie(Line, OnePoint, Registers) <
           std::tie(other.Line, other.OnePoint, other.Registers);
  }
};

void DescribeCommon(PageRows& rows, const CommonVariant& variant) {
  rows.Row(variant.OnePoint ? PositionName : StartName)
      .InColumn(3)
      .Check(Parm(ItemSlot::TopLayer), "TOP", 1);
  if (!variant.OnePoint) rows.Row(EndName);
  rows.ContinueAt(variant.Line);
  rows.Row("処理種別").Choice(ItemInt(offsetof(PTRNDATA, ID_Type)), IDCodeList);
  rows.Row("画面名称").Entry(PtrnData.ID_Name, true).Browse(ToolBox_Page);
  rows.Row("識別コード").Entry(PtrnData.ID_Code).Browse(ToolBox_Code);
  rows.Row().Number(ItemInt(offsetof(PTRNDATA, ID_No)), 9999);
  rows.Row().Check(ItemInt(offsetof(PTRNDATA, UndfFlag)), "後で設定", 3);
  if (variant.Registers) {
    rows.Row().Check(ItemInt(offsetof(PTRNDATA, RegstFlag)), "文字列一覧へ登録", 3);
  }
  rows.Row().Check(ItemInt(offsetof(PTRNDATA, CheckFlag)), "次回からの初期値として保存", 3);
}

PageTables& CommonTables(const CommonVariant& variant) {
  static std::map<CommonVariant, PageTables> known;
  const auto [found, isNew] = known.try_emplace(variant);
  if (isNew) {
    PageRows rows(found->second, {}, 0);
    DescribeCommon(rows, variant);
  }
  return found->second;
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
  const bool onePoint = flag1 != 0;
  PageTables& tables = CommonTables({line, onePoint, flag2 != 0});
  AddReadOut(table, &ToolBox_Label1, 0, onePoint ? PositionName : StartName);
  KeepWidget(&ToolBox_Label2, nullptr);
  if (!onePoint) AddReadOut(table, &ToolBox_Label2, 1, EndName);
  BuildTables(gtk_widget_get_toplevel(table), table, tables);
  // Its row has no label.
  SetAccessibleName(tables.Numr.Rows()->spin, "識別番号");
  SetToolBoxPoint();
}

void SetToolBoxPoint() {
  if (ToolBox == nullptr) return;
  ShowPoint(ToolBox_Label1, PtrnData.Point1);
  ShowPoint(ToolBox_Label2, PtrnData.Point2);
}
