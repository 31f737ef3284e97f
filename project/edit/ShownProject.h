// The open project as the windows have it.
#pragma once

#include <string_view>

// The project whose settings have been read becomes the open one, with its palette and its marks.
void EnterReadProject(std::string_view folder, std::string_view name);
// Menus and title tell of the open project.
void ShowProject();
