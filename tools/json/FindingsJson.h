// Findings of the project check as JSON text.
#pragma once

#include <span>
#include <string>

#include "project/check/Check.h"

// A list of objects "Code", "Layout", "Item", "Type", "Field", "Message"; "Layout" is null for the
// project itself, "Item" and "Type" are null for a whole layout.
std::string JsonOfFindings(std::span<const Finding> findings);
