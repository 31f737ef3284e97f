// What the fuzz targets share: a program folder and a project folder that hold only what a target
// puts there, and a check that ends the run.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "support/FileTools.h"
#include "tests/common/TempFolder.h"

// Calls a target with each input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

inline std::string_view InputText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Takes the first line off the input.
inline std::string_view TakeLine(std::string_view& input) {
  const std::string_view line = input.substr(0, input.find('\n'));
  input.remove_prefix(std::min(line.size() + 1, input.size()));
  return line;
}

// What must hold for every input.
inline void Require(bool holds) {
  if (!holds) std::abort();
}

// The program folder and the open project "Plant", in one temporary folder.
class FuzzFolder {
 public:
  static const FuzzFolder& Get() {
    static const FuzzFolder folder;
    return folder;
  }
  // Puts a file there; what it held before is gone. Nothing is flushed, as millions follow.
  void Write(const char* name, std::string_view bytes) const {
    const int file = open(folder_.Path(name).c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    Require(file >= 0 &&
            write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()) &&
            close(file) == 0);
  }
  std::string Read(const char* name) const {
    return ReadWholeFile(folder_.Path(name)).value_or("");
  }

 private:
  FuzzFolder() {
    g_strlcpy(PathName, folder_.Path().c_str(), sizeof PathName);
    EnterProject(folder_.Path(), "Plant");
  }

  TempFolder folder_;
};
