// One pair of functions for each kind of file: its bytes as JSON, and its bytes from JSON. They
// throw SourceError.
#pragma once

#include <string>
#include <string_view>

#include "tools/json/Json.h"

Json ShowLayout(std::string_view bytes);
std::string BuildLayout(const JsonSource& source);
Json ShowProject(std::string_view bytes);
std::string BuildProject(const JsonSource& source);
Json ShowPalette(std::string_view bytes);
std::string BuildPalette(const JsonSource& source);
Json ShowMarks(std::string_view bytes);
std::string BuildMarks(const JsonSource& source);
Json ShowRegistry(std::string_view bytes);
std::string BuildRegistry(const JsonSource& source);
Json ShowTexts(std::string_view bytes);
std::string BuildTexts(const JsonSource& source);
