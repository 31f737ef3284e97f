#include "dialogs/toolbox/ToolBoxRows.h"

#include "dialogs/ToolBox.h"
#include "dialogs/kit/LatePress.h"
#include "dialogs/kit/Rows.h"

namespace {

void AddBrowseButton(GtkWidget* grid, const BrowseButton& browse, DLG_EDITBOX* entries) {
  GtkWidget* button = NewButton("参照");
  gtk_widget_set_halign(button, GTK_ALIGN_FILL);
  gtk_widget_set_valign(button, GTK_ALIGN_FILL);
  g_signal_connect(button, "clicked", G_CALLBACK(browse.Open), &entries[browse.Entry]);
  gtk_grid_attach(GTK_GRID(grid), button, browse.Culm, browse.Line, 1, 1);
  gtk_widget_show(button);
}

}  // namespace

PageRows& PageRows::Row(const gchar* label) {
  line_ = tables_.NextLine++;
  culm_ = 1;
  if (label != nullptr) tables_.String.Add(Rows::Label(line_, label));
  return *this;
}

PageRows& PageRows::InLine(gint line) {
  line_ = line;
  return *this;
}

PageRows& PageRows::InColumn(gint culm) {
  culm_ = culm;
  return *this;
}

PageRows::Columns PageRows::Take(gint width) {
  culm_ += width;
  return {culm_ - width, culm_ - 1};
}

void PageRows::AddColour(GrowingTable<DLG_COLRDATA>& table, gint slot) {
  table.Add(Rows::Colour(line_, Take(1).First, Parm(slot), ""));
}

PageRows& PageRows::Colour(gint slot) {
  AddColour(tables_.Colr, slot);
  return *this;
}

PageRows& PageRows::ColourPair(gint slot) {
  return Colour(slot).Colour(slot + 1);
}

PageRows& PageRows::SystemColours(gint slot) {
  ColourPair(slot);
  if (!variant_.FourSystems) return *this;
  for (const gint later : {2, 3})
    AddColour(isLaterLast_ ? tables_.LaterColr : tables_.Colr, slot + later);
  return *this;
}

PageRows& PageRows::SystemMarks(gint slot) {
  for (gint system = 0; system < 4; ++system) {
    const gint culm = Take(1).First;
    tables_.Mark.Add({line_, culm, culm, Parm(slot + system)});
  }
  return *this;
}

PageRows& PageRows::Number(gint* data, gint most) {
  tables_.Numr.Add(Rows::Number(line_, Take(1).First, data, 0, most, ""));
  return *this;
}

PageRows& PageRows::Choice(gint* item, const gchar* const* list) {
  const Columns columns = Take(4);
  tables_.Combo.Add(Rows::Choice(line_, columns.First, columns.Last, item, list));
  return *this;
}

PageRows& PageRows::Radio(gint slot, std::span<const gchar* const> values, gint width) {
  gint code = 0;
  for (const gchar* value : values) {
    const Columns columns = Take(width);
    tables_.Radio.Add({line_, columns.First, columns.Last, code++, Parm(slot), value});
  }
  return *this;
}

PageRows& PageRows::Check(gint* data, const gchar* text, gint width) {
  const Columns columns = Take(width);
  tables_.Check.Add(Rows::Check(line_, columns.First, columns.Last, data, text));
  return *this;
}

PageRows& PageRows::Entry(gchar* field, gint size, bool readOnly) {
  const Columns columns = Take(3);
  tables_.Edit.Add(Rows::Entry(line_, columns.First, columns.Last, field, size, readOnly));
  return *this;
}

PageRows& PageRows::Browse(Picker open) {
  tables_.Browse.push_back({line_, Take(1).First, open, tables_.Edit.Count() - 1});
  return *this;
}

void PageRows::Texts(std::span<const gchar* const> labels) {
  Row(labels[0]).Entry(PtrnData.Text1).InColumn(Language() + 4).Browse(ToolBox_Text1);
  if (Language() > 0) Row(labels[1]).Entry(PtrnData.Text2);
  if (Language() > 1) Row(labels[2]).Entry(PtrnData.Text3);
  tables_.Registers = true;
}

void BuildTables(GtkWidget* window, GtkWidget* grid, PageTables& tables) {
  BuildControls(window, grid,
                {.String = tables.String.Rows(),
                 .Edit = tables.Edit.Rows(),
                 .Numr = tables.Numr.Rows(),
                 .Combo = tables.Combo.Rows(),
                 .Radio = tables.Radio.Rows(),
                 .Check = tables.Check.Rows(),
                 .Colr = tables.Colr.Rows(),
                 .Mark = tables.Mark.Rows()});
  Dlg_ColrData(window, grid, tables.LaterColr.Rows());
  for (const BrowseButton& browse : tables.Browse)
    AddBrowseButton(grid, browse, tables.Edit.Rows());
}
