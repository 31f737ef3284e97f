#include "tools/Report.h"

#include <cstdio>

#include "support/Text.h"
#include "tools/Commands.h"

std::string ShownPath(std::string_view path) {
  const bool utf8 = g_utf8_validate(path.data(), static_cast<gssize>(path.size()), nullptr);
  return utf8 ? std::string(path) : DisplayText(path);
}

int Fail(std::string_view file, std::string_view reason) {
  const std::string line = "varnixtool: " + ShownPath(file) + ": " + std::string(reason) + "\n";
  std::fputs(line.c_str(), stderr);
  return ExitFailed;
}

bool Refuse(std::string_view file, std::string_view reason) {
  Fail(file, reason);
  return false;
}

int Print(std::string_view text) {
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (written && std::fflush(stdout) == 0) return ExitDone;
  return Fail("standard output", "cannot be written");
}
