#include "dialogs/toolbox/ToolBoxRows.h"

#include <algorithm>

#include "dialogs/ToolBox.h"
#include "dialogs/kit/LatePress.h"
#include "dialogs/kit/Rows.h"
#include "support/Resource.h"

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

PageRows& PageRows::Row() {
  line_ = tables_.NextLine++;
  culm_ = 1;
  needsLabel_ = true;
  return *this;
}

PageRows& PageRows::Row(const gchar* label) {
  Row();
  AddLabel(label);
  return *this;
}

void PageRows::AddLabel(const gchar* label) {
  tables_.String.Add(Rows::Label(tables_.NextLine - 1, label));
  needsLabel_ = false;
}

const Parameter& PageRows::Labelling(gint slot) {
  const Parameter& parameter = *FindParameter(variant_.Type, slot);
  if (needsLabel_) AddLabel(parameter.Label);
  return parameter;
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

PageRows& PageRows::Colours(gint slot) {
  const Parameter& parameter = Labelling(slot);
  const gint shown = variant_.FourSystems ? 4 : 2;
  for (gint value = 0; value < std::min(parameter.Count(), shown); ++value) {
    auto& table = isLaterLast_ && value >= 2 ? tables_.LaterColr : tables_.Colr;
    table.Add(Rows::Colour(line_, Take(1).First, Parm(slot + value), ""));
  }
  return *this;
}

PageRows& PageRows::Marks(gint slot) {
  const Parameter& parameter = Labelling(slot);
  for (gint value = 0; value < parameter.Count(); ++value) {
    const gint culm = Take(1).First;
    tables_.Mark.Add({line_, culm, culm, Parm(slot + value)});
  }
  return *this;
}

PageRows& PageRows::Number(gint slot) {
  const ValueRange& range = Labelling(slot).Range;
  tables_.Numr.Add(Rows::Number(line_, Take(1).First, Parm(slot), range.Least, range.Most, ""));
  return *this;
}

PageRows& PageRows::Number(gint* data, gint most) {
  tables_.Numr.Add(Rows::Number(line_, Take(1).First, data, 0, most, ""));
  return *this;
}

PageRows& PageRows::Choice(gint slot) {
  const ValueRange& range = Labelling(slot).Range;
  return Choice(Parm(slot), range.Kind == Unit::Font ? FontNameList : range.Values);
}

PageRows& PageRows::Choice(gint* item, const gchar* const* list) {
  const Columns columns = Take(4);
  tables_.Combo.Add(Rows::Choice(line_, columns.First, columns.Last, item, list));
  return *this;
}

PageRows& PageRows::Radio(gint slot, gint width) {
  const gchar* const* values = Labelling(slot).Range.Values;
  for (gint code = 0; *values[code] != '\0'; ++code) {
    const Columns columns = Take(width);
    tables_.Radio.Add({line_, columns.First, columns.Last, code, Parm(slot), values[code]});
  }
  return *this;
}

PageRows& PageRows::Check(gint slot, gint width) {
  return Check(Parm(slot), FindParameter(variant_.Type, slot)->Label, width);
}

PageRows& PageRows::Check(gint slot, const gchar* text, gint width) {
  Labelling(slot);
  return Check(Parm(slot), text, width);
}

PageRows& PageRows::CursorKeys(gint slot) {
  Labelling(slot);
  return Check(&CusrUp, "↑", 1)
      .Check(&CusrDown, "↓", 1)
      .Check(&CusrLeft, "←", 1)
      .Check(&CusrRight, "→", 1);
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
  for (const BrowseButton& browse : tables.Browse) {
    AddBrowseButton(grid, browse, tables.Edit.Rows());
  }
}
