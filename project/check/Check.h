// What in a project would hurt when its runtime program runs. Rules are pure functions over loaded
// files; they write nothing.
#pragma once

#include <array>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "layout/Layout.h"
#include "layout/ProjectRecord.h"
#include "support/Resource.h"

// A layout of the project.
struct CheckedLayout : Layout {
  std::string Name;  // as on disk, without ".ptn"
  gint Dropped = 0;  // records of no known type
};

enum class PictureState { Good, Missing, Unreadable };

// What the rules ask of fonts and files.
struct CheckSurroundings {
  // Extent of a one-point item as painted, of a text, and whether a font exists, in a language.
  std::function<SIZE(gint language, const PTRNDATA& item)> ItemExtent;
  std::function<SIZE(gint language, gint font, const gchar* text)> TextExtent;
  std::function<bool(gint language, gint font)> FontExists;
  // A file of the project's bitmap folder.
  std::function<PictureState(const std::string& name)> Picture;
};

// Everything that is checked.
struct CheckedProject {
  std::string Name;  // as on disk, without ".prj"
  PROJDATA Settings{};
  std::vector<CheckedLayout> Layouts;
  std::vector<std::string> Unreadable;  // layouts whose files are not whole
  std::vector<PTRNCODE> Registry;       // empty when there is none
  std::array<COLRDATA, ColrCount> Palette{};
  std::vector<bool> MarkDrawn = std::vector<bool>(MarkCount);  // by mark number
  CheckSurroundings Surroundings;
};

// Something found. Texts are UTF-8.
struct Finding {
  const char* Code;     // stable, names the rule
  std::string Layout;   // "" = the project itself
  gint Item = -1;       // index in store order, -1 = the layout itself
  gint Type = 0;        // of the item
  std::string Field;    // record field or parameter slot
  std::string Message;  // English
};

class FindingList;

struct CheckRule {
  const char* Code;
  const char* Meaning;
  void (*Find)(const CheckedProject& project, FindingList& findings);
};

// All rules.
std::span<const CheckRule> CheckRules();
// What one rule finds, and what all find: the project's own findings first, then by layout and
// item.
std::vector<Finding> RunCheckRule(const CheckRule& rule, const CheckedProject& project);
std::vector<Finding> CheckProject(const CheckedProject& project);
// The rule whose findings make generated sources that do not compile.
const CheckRule& SourceNameRule();

// The open project's files, layouts in the order of their names.
CheckedProject LoadCheckedProject();
// The open project's fonts and pictures. Measuring changes the language shown; the palette and
// fonts must have been set up (InitDrawData).
CheckSurroundings ProjectSurroundings();
