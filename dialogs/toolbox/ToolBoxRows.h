// The rows of a tool box page, told in the order in which they read, and the control tables that
// they make. Every control is bound to the item in hand, PtrnData.
#pragma once

#include <cstddef>
#include <span>
#include <tuple>
#include <vector>

#include "dialogs/kit/ControlTables.h"
#include "layout/Parameters.h"
#include "layout/Store.h"

using Picker = void (*)(GtkWidget* widget, DLG_EDITBOX* edit);

// A browse button, the picker it opens and the row of the entries' table that takes the choice.
struct BrowseButton {
  gint Line;
  gint Culm;
  Picker Open;
  gsize Entry;
};

// A control table that grows; its end row is always in place.
template <class Row>
class GrowingTable {
 public:
  void Add(const Row& row) { rows_.insert(rows_.end() - 1, row); }
  gsize Count() const { return rows_.size() - 1; }
  // Null without rows.
  Row* Rows() { return Count() == 0 ? nullptr : rows_.data(); }

 private:
  static Row End() {
    Row end = {};
    end.line = -1;
    return end;
  }
  std::vector<Row> rows_ = {End()};
};

// The tables of a page or of the section that all pages share. Controls keep pointers into them.
struct PageTables {
  GrowingTable<DLG_STRING> String;
  GrowingTable<DLG_EDITBOX> Edit;
  GrowingTable<DLG_NUMRBOX> Numr;
  GrowingTable<DLG_COMBOBOX> Combo;
  GrowingTable<DLG_RADIOBUTN> Radio;
  GrowingTable<DLG_CHECKBUTN> Check;
  GrowingTable<DLG_COLRDATA> Colr;
  GrowingTable<DLG_COLRDATA> LaterColr;  // of a frame: ToolGbox_Colr2
  GrowingTable<DLG_MARKDATA> Mark;
  std::vector<BrowseButton> Browse;
  gint NextLine = 0;       // below the last row
  bool Registers = false;  // its text can go to the string list
};

// What a page's rows depend on.
struct PageVariant {
  gint Type = 0;      // code
  gint Language = 0;  // 0..2, the last one shown
  bool FourSystems = false;

  bool operator<(const PageVariant& other) const {
    return std::tie(Type, Language, FourSystems) <
           std::tie(other.Type, other.Language, other.FourSystems);
  }
};

// The integer at a byte offset of the item in hand. Formed by bytes, as the record is packed.
inline gint* ItemInt(gsize offset) {
  return static_cast<gint*>(static_cast<void*>(reinterpret_cast<char*>(&PtrnData) + offset));
}

inline gint* Parm(gint slot) {
  return ItemInt(offsetof(PTRNDATA, Parm) + static_cast<gsize>(slot) * sizeof(gint));
}

// Takes a page's rows down: lines and, from the label on, columns count themselves.
class PageRows {
 public:
  PageRows(PageTables& tables, const PageVariant& variant, gint firstLine)
      : tables_(tables), variant_(variant) {
    ContinueAt(firstLine);
  }
  gint Language() const { return variant_.Language; }

  // Begins the next row; the controls that follow stand in it from the second column on. Without a
  // label of its own a row bears that of its first parameter, unless a check button tells it.
  PageRows& Row();
  PageRows& Row(const gchar* label);
  // The next row is this line.
  void ContinueAt(gint line) { tables_.NextLine = line; }
  // The row's controls go on in this line, or in this column, instead.
  PageRows& InLine(gint line);
  PageRows& InColumn(gint culm);
  // The colours of systems 3 and 4 are built after all other controls, and a screen reader finds
  // them there.
  void BuildLaterColoursLast() { isLaterLast_ = true; }

  // Controls of a parameter of the type, in the range and with the values of its row.
  // A swatch for each of its values, those for colour systems that the project has.
  PageRows& Colours(gint slot);
  // A swatch for each of its values, whatever colour systems the project has.
  PageRows& Marks(gint slot);
  PageRows& Number(gint slot);
  // A drop-down list, four columns wide.
  PageRows& Choice(gint slot);
  // A radio button per value, each some columns wide.
  PageRows& Radio(gint slot, gint width = 1);
  PageRows& Check(gint slot, gint width = 2);
  PageRows& Check(gint slot, const gchar* text, gint width = 2);
  // A check button per cursor key.
  PageRows& CursorKeys(gint slot);

  // Controls of other fields. A number 0..most.
  PageRows& Number(gint* data, gint most);
  PageRows& Choice(gint* item, const gchar* const* list);
  PageRows& Check(gint* data, const gchar* text, gint width);
  // An entry of a text field, as long as the field takes; three columns wide.
  template <gsize Size>
  PageRows& Entry(gchar (&field)[Size], bool readOnly = false) {
    return Entry(field, static_cast<gint>(Size) - 2, readOnly);
  }
  // A browse button for the row's entry.
  PageRows& Browse(Picker open);
  // A row for the text of each language shown. Kept: the browse button serves the first alone, and
  // stands a column further out with each further language.
  void Texts(std::span<const gchar* const> labels);

 private:
  // Columns of a control.
  struct Columns {
    gint First;
    gint Last;
  };
  Columns Take(gint width);
  void AddLabel(const gchar* label);
  // The row of a type's parameter, which labels the page's row when nothing else does.
  const Parameter& Labelling(gint slot);
  PageRows& Entry(gchar* field, gint size, bool readOnly);

  PageTables& tables_;
  PageVariant variant_;
  gint line_ = 0;
  gint culm_ = 1;
  bool needsLabel_ = false;
  bool isLaterLast_ = false;
};

// Adds the rows of a type's page.
void DescribePage(PageRows& page, gint type);
// Builds the controls and browse buttons of tables into a grid.
void BuildTables(GtkWidget* window, GtkWidget* grid, PageTables& tables);
