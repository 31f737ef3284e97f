// A project file's bytes and its record.
#pragma once

#include <optional>
#include <string_view>

#include "project/ProjectRecord.h"

// The record of a project file, nothing when it is cut short. Its texts may lack terminators.
std::optional<PROJFILE> DecodeProject(std::string_view bytes);
