// All that a folder holds, to be compared with and to be brought back.
#pragma once

#include <map>
#include <string>

// Bytes of each file by its path within the folder; folders end with "/" and have none.
using FolderImage = std::map<std::string, std::string>;

// Bytes of a file, none when it cannot be read.
std::string BytesOf(const std::string& file);
FolderImage ImageOf(const std::string& folder);
// Makes the folder hold that and nothing else.
void Restore(const std::string& folder, const FolderImage& image);
