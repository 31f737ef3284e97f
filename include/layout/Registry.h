// The project's code registry "PtrnCode" and string lists "PtrnText1".."PtrnText3".
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "layout/Records.h"

// The registry's file in the project folder.
constexpr gchar CodeRegistryName[] = "PtrnCode";

// Enters a code with room for identification number `no`, or widens its entry. Makes the registry
// with its "SYSTEM" record when it is missing; an empty code enters nothing more.
void RegstPtrnCode(const gchar* code, gint no);
// Appends a text to a string list unless it is there: k = 2 goes to "PtrnText1", 3 to "PtrnText2",
// any other to "PtrnText3".
void RegstPtrnText(const gchar* text, gint k);
// The texts of that list, none of one that is missing or cannot be read.
std::vector<PTRNTEXT> ReadPtrnText(gint k);

// The same rule on a registry held in memory. True when something changed.
bool RegisterCode(std::vector<PTRNCODE>& registry, std::string_view code, gint no);
// Data slots that a code with identification number `no` needs, at most as many as a record can
// count; a negative number counts as 0.
gint CodeSlots(gint no);
// A new registry: the record that reserves the system's 100 slots.
PTRNCODE SystemCode();
// The records of the registry file, none when it is missing; nothing when it is there but cannot be
// read.
std::optional<std::vector<PTRNCODE>> LoadPtrnCode();
// The same, with none for a file that cannot be read.
std::vector<PTRNCODE> ReadPtrnCode();
// Writes all records at once; 1 or 0.
gint WritePtrnCode(const std::vector<PTRNCODE>& registry);
