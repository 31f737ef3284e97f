// The folder that a typed path means, in the file system's own bytes.
#pragma once

#include <string>

// The folder that `text`, UTF-8, names after the user changed it from what shows for `folder`. What
// is left of that keeps its bytes. A name typed behind it is one that is there and shows so, else a
// new one: EUC-JP below an EUC-JP name that can hold it, else UTF-8.
std::string TypedFolder(const std::string& text, const std::string& folder);
