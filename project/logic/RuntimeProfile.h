// The text of the runtime profile.
#pragma once

#include <string>
#include <string_view>

#include "layout/ProjectRecord.h"

// A new profile with its sections and default keys.
std::string NewRuntimeProfile();
// Brings the project's settings and the designer profile's colours and fonts into a runtime
// profile. Keys that the user may set there are kept.
void UpdateRuntimeProfile(std::string& runtime, std::string_view designer, const PROJDATA& project,
                          std::string_view projectFolder);
