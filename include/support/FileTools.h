// What the file functions are made of, for code that holds whole files in memory.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

// Replaces the file by `offset` zero bytes and `content`, all or nothing: a temporary file ".…"
// beside it, flushed, renamed, the folder flushed. Where the folder refuses a new entry but the
// file itself can be written, it is written in place, and put back when that fails. False = failed,
// the old content stands; only when nothing but the last flush failed is the new content there,
// though not surely on the device. A link is followed and stays; one that leads nowhere is
// replaced.
bool ReplaceFile(const std::string& path, std::string_view content, std::size_t offset = 0);
// The same for a file whose write protection is its folder's to decide, as for a rename: it is
// replaced and stays protected.
bool ReplaceProtectedFile(const std::string& path, std::string_view content);
// Copies a regular file to another name, all or nothing, for nobody to read who could not read the
// file. What stands there is replaced, a link itself and not what it leads to. False = failed, what
// stood there stands.
bool CopyBeside(const std::string& path, const std::string& copy);
// True when there is nothing of that name. What cannot be looked at does not count as missing.
bool IsMissing(const std::string& path);
// The whole regular file, nothing when it cannot be read. A file larger than `limit` bytes counts
// as unreadable.
std::optional<std::string> ReadWholeFile(const std::string& path, std::size_t limit = 1u << 30);
// Calls `visit` with the name of every regular file of `folder` that matches the shell pattern, in
// the folder's own order; names that begin with "." are passed over. False when it cannot be
// read.
bool VisitFiles(const std::string& folder, const char* pattern,
                const std::function<void(const std::string& name)>& visit);
// MakePath without a limit on the length.
std::string JoinPath(std::string_view path, std::string_view name, std::string_view ext);
