// A profile's file, loaded whole and stored whole; nothing is kept between two operations.
#pragma once

#include <glib.h>

#include <optional>
#include <string>

// Path of a profile; "" names the designer's own.
std::string ProfilePath(const gchar* profname);
// The text, "" for a missing or empty file; nothing when a file is there but cannot be read.
std::optional<std::string> LoadProfile(const std::string& path);
// Name of a numbered key.
std::string NumberedKey(const gchar* keyname, gint no);
