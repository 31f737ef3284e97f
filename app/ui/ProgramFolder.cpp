#include <unistd.h>

#include <climits>
#include <cstring>

#include "PtrnMisc.h"
#include "app/Window.h"

void SetProgramFolder(const gchar* program) {
  gchar executable[PATH_MAX] = "";
  if (program == nullptr || std::strchr(program, '/') == nullptr) {
    const ssize_t length = readlink("/proc/self/exe", executable, sizeof executable - 1);
    executable[length > 0 ? length : 0] = '\0';
    program = executable;
  }
  SplitPath(program, PathName, nullptr, nullptr);
}
