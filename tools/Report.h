// What the tool prints.
#pragma once

#include <string>
#include <string_view>

// Path bytes as UTF-8.
std::string ShownPath(std::string_view path);
// Tells the reason on standard error. Returns ExitFailed.
int Fail(std::string_view file, std::string_view reason);
// The same in functions that tell success: returns false.
bool Refuse(std::string_view file, std::string_view reason);
// Prints to standard output; ExitDone, or ExitFailed when it cannot be written.
int Print(std::string_view text);
