// A small project without findings, for tests to spoil.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "layout/ItemSlots.h"
#include "project/check/Check.h"

// Palette of the project.
enum CheckColour { Black = 0, White = 1, AlsoWhite = 2, Grey = 3 };

// Every character is 8 dots wide and 16 high; fonts 0 and 1 exist, and three pictures.
inline CheckSurroundings PlainSurroundings() {
  CheckSurroundings plain;
  plain.ItemExtent = [](gint, const PTRNDATA& item) {
    const auto length = item.Type == TypeFixedString ? static_cast<gint>(std::strlen(item.Text1))
                                                     : gint{item.Parm[TextSlot::Length]};
    return SIZE{8 * length, 16};
  };
  plain.TextExtent = [](gint, gint, const gchar* text) {
    return SIZE{8 * static_cast<gint>(std::strlen(text)), 16};
  };
  plain.FontExists = [](gint, gint font) { return font == 0 || font == 1; };
  plain.Picture = [](const std::string& name) {
    if (name == "broken.png") return PictureState::Unreadable;
    return name == "good.png" ? PictureState::Good : PictureState::Missing;
  };
  return plain;
}

inline PTRNDATA CheckedItem(gint type, gint x1, gint y1, gint x2 = 0, gint y2 = 0) {
  PTRNDATA item{};
  item.Type = type;
  item.Point1 = {x1, y1};
  item.Point2 = {x2, y2};
  return item;
}

inline PTRNDATA FixedString(gint x, gint y, const char* text) {
  PTRNDATA item = CheckedItem(TypeFixedString, x, y);
  std::strcpy(item.Text1, text);
  return item;
}

inline PTRNDATA Button(const char* caption) {
  PTRNDATA item = CheckedItem(TypeButton, 10, 10, 100, 40);
  item.Parm[ButtonSlot::FaceColour] = Grey;
  item.Parm[ButtonSlot::BorderWidth] = 2;
  std::strcpy(item.Text1, caption);
  return item;
}

// Black digits.
inline PTRNDATA Numeric(const char* code, gint number) {
  PTRNDATA item = CheckedItem(TypeNumeric, 10, 60);
  item.Parm[TextSlot::Length] = 4;
  std::strcpy(item.ID_Code, code);
  item.ID_No = number;
  return item;
}

// A mark in the first, the second and the other colour systems.
inline PTRNDATA Mark(gint first, gint second, gint third) {
  PTRNDATA item = CheckedItem(TypeMark, 10, 10, 50, 50);
  item.Parm[MarkSlot::Mark] = first;
  item.Parm[MarkSlot::Mark + 1] = second;
  item.Parm[MarkSlot::Mark + 2] = item.Parm[MarkSlot::Mark + 3] = third;
  return item;
}

// A single-language project of an "other" layout "Main" of 200 x 100 dots that it starts with.
inline CheckedProject PlainProject() {
  CheckedProject project;
  project.Name = "Plant";
  std::strcpy(project.Settings.PtrnStart, "Main");
  CheckedLayout layout;
  layout.Name = "Main";
  layout.Header.Parm1[HedrSlot::Kind] = 2;
  layout.Header.Parm1[HedrSlot::Width] = 200;
  layout.Header.Parm1[HedrSlot::Height] = 100;
  layout.Header.Parm1[HedrSlot::WorkAreaColour] = White;
  std::strcpy(layout.Header.PtrnName1, "Main");
  project.Layouts.push_back(layout);
  project.Palette[White] = {65535, 65535, 65535};
  project.Palette[AlsoWhite] = {65280, 65535, 65400};  // the same high bytes
  project.Palette[Grey] = {32768, 32768, 32768};
  project.MarkDrawn[7] = true;
  project.Surroundings = PlainSurroundings();
  return project;
}

inline CheckedProject ProjectWith(const std::vector<PTRNDATA>& items) {
  CheckedProject project = PlainProject();
  project.Layouts[0].Items.assign(items.begin(), items.end());
  return project;
}

inline void Register(CheckedProject& project, const char* code, gint slots) {
  PTRNCODE record{};
  std::strcpy(record.ID_Code, code);
  record.DataCount = slots;
  project.Registry.push_back(record);
}

// What the rule of this code finds, run by itself: a fault in another rule changes nothing here.
inline std::vector<Finding> FindingsOf(const char* code, const CheckedProject& project) {
  for (const CheckRule& rule : CheckRules()) {
    if (std::strcmp(rule.Code, code) == 0) return RunCheckRule(rule, project);
  }
  ADD_FAILURE() << "no rule is called " << code;
  return {};
}

// The same as "layout item field".
inline std::vector<std::string> Found(const char* code, const CheckedProject& project) {
  std::vector<std::string> found;
  for (const Finding& finding : FindingsOf(code, project)) {
    EXPECT_STREQ(finding.Code, code);
    EXPECT_NE(finding.Message, "");
    found.push_back((finding.Layout.empty() ? "-" : finding.Layout) + " " +
                    (finding.Item < 0 ? "-" : std::to_string(finding.Item)) + " " + finding.Field);
  }
  return found;
}
