// What is known about each parameter of an item, a layout header or a project: one row each.
#pragma once

#include <array>
#include <span>

#include "Types.h"

struct PTRNDATA;

// What tells the values of one parameter apart; the number is that of its slots.
enum class Spread {
  One = 1,
  EvenOdd = 2,    // one for the even and one for the odd colour systems
  Languages = 3,  // one for each language
  Systems = 4,    // one for each colour system
};

// What the numbers stand for.
enum class Unit { Number, Dots, Characters, Colour, Font, Mark, Choice };

// What a dialog lets a user enter. A record may hold anything.
struct ValueRange {
  Unit Kind;
  gint Least;
  gint Most;
  const gchar* const* Values = nullptr;  // texts of the values from 0 on, ended by ""; null = none
};

constexpr gint NoSlot = -1;
constexpr gint NoMessage = -1;

// Whether a limit counts depends on another parameter of the same record, or on nothing.
struct Condition {
  gint Slot = NoSlot;
  bool Set = true;
};
constexpr Condition While(gint slot) {
  return {slot, true};
}

constexpr Condition Unless(gint slot) {
  return {slot, false};
}

// The values that are accepted, and what is told about others.
struct Limit {
  gint Least = G_MININT;
  gint Message = NoMessage;     // of ErrorMessage; items alone have numbered messages
  const gchar* Text = nullptr;  // of the others
  Condition Counts = {};
  gint Most = G_MAXINT;

  constexpr bool IsSet() const { return Least != G_MININT || Most != G_MAXINT; }
};

struct Parameter {
  const char* Name;  // by which sources and findings call it: that of its constant
  gint Slot;         // the first one
  Spread Over;
  const gchar*
      Label;  // in the words of the dialogs; null for a coordinate, whose point is told whole
  ValueRange Range;
  std::array<Limit, 2> Limits = {};

  constexpr gint Count() const { return static_cast<gint>(Over); }
  constexpr bool Holds(gint slot) const { return slot >= Slot && slot < Slot + Count(); }
};

// The name of a constant and the constant: the first two columns of its row.
#define NAMED_SLOT(group, name) #name, group::name

// The parameters of an item type, the common ones included, in the order of their slots; empty for
// an unknown type.
std::span<const Parameter> ItemParameters(gint type);
// Those of PTRNHEDR.Parm1 and Parm2.
std::span<const Parameter> HeaderParameters();
std::span<const Parameter> ViewParameters();
// Those of PROJDATA.Parm1 to Parm4: of the project itself, the look of its parent windows and of
// its child windows, and what all its layouts have in common.
std::span<const Parameter> ProjectParameters();
std::span<const Parameter> ParentParameters();
std::span<const Parameter> ChildParameters();
std::span<const Parameter> CommonParameters();

// The parameter that a slot belongs to; null when none has it.
const Parameter* FindParameter(std::span<const Parameter> parameters, gint slot);
// That of an item type.
const Parameter* FindParameter(gint type, gint slot);

// A limit that is not kept and the parameter that breaks it.
struct BrokenLimit {
  const Parameter* Broken = nullptr;
  const Limit* By = nullptr;
};
// The limit that is told first: that of the lowest message, then of the lowest slot. `values` are
// the record's numbers; both pointers are null when all limits are kept.
BrokenLimit FindBrokenLimit(std::span<const Parameter> parameters, std::span<const gint> values);
// That of an item.
BrokenLimit FindBrokenLimit(const PTRNDATA& item);
