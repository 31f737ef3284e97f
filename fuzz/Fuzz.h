// What the fuzz targets share: a program folder and a project folder that hold only what a target
// puts there, and a check that ends the run.
#pragma once

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
  // Puts a file there; what it held before is gone.
  void Write(const char* name, std::string_view bytes) const {
    Require(FileWrite(folder_.Path().c_str(), name, "", bytes.data(),
                      static_cast<gint>(bytes.size()), 0) == 1 ||
            bytes.empty());
  }
  std::string Read(const char* name) const {
    return ReadWholeFile(folder_.Path(name)).value_or("");
  }

 private:
  FuzzFolder() {
    g_strlcpy(PathName, folder_.Path().c_str(), sizeof PathName);
    g_strlcpy(ProjPath, folder_.Path().c_str(), sizeof ProjPath);
    g_strlcpy(ProjName, "Plant", sizeof ProjName);
    ProjFlag = 1;
    SetBmapPath();
  }

  TempFolder folder_;
};
