// A profile's file, loaded whole and stored whole; nothing is kept between two operations.
#pragma once

#include <glib.h>

#include <functional>
#include <optional>
#include <string>

// Far above any profile; keeps a foreign file from being searched for keys.
constexpr std::size_t ProfileLimit = 16u << 20;

// Path of a profile; "" names the designer's own.
std::string ProfilePath(const gchar* profname);
// The text, "" for a missing or empty file; nothing when a file is there but cannot be read.
std::optional<std::string> LoadProfile(const std::string& path);
// Loads the profile, lets `change` alter it and replaces the file when that returns true. Another
// program that changes it meanwhile waits, so that neither undoes what the other has stored. A
// profile that is there but cannot be read is left alone; a failure is not reported.
void ChangeProfile(const std::string& path,
                   const std::function<bool(std::string& profile)>& change);
// Name of a numbered key.
std::string NumberedKey(const gchar* keyname, gint no);
