// The layouts of a project folder.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Names without ".ptn", in the folder's own order. Read as a whole, so that work on the files does
// not disturb the listing.
std::vector<std::string> LayoutNames(const std::string& folder);
// The same; nothing when the folder cannot be read.
std::optional<std::vector<std::string>> ListLayoutNames(const std::string& folder);
// The layout's name of a file name: without its ".ptn".
std::string LayoutName(std::string_view file);
