// Times as they are typed.
#pragma once

#include <ctime>
#include <optional>
#include <string>

// "YYYY-MM-DD HH:MM:SS" as a calendar time with its weekday; nothing when it is no such time.
std::optional<std::tm> ParseTime(const std::string& text);
