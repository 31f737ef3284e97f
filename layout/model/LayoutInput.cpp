#include "layout/model/LayoutInput.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>

#include "support/Text.h"

LayoutInput::LayoutInput(const std::string& path) {
  // A pipe of that name must not hold the program up.
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) {
    return;
  }
  struct stat status {};
  if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)) {
    File.reset(fdopen(descriptor, "rb"));
    FileSize = status.st_size;
  }
  if (!File) {
    close(descriptor);
  }
}

bool LayoutInput::Read(void* buffer, std::size_t size) {
  if (std::fread(buffer, 1, size, File.get()) != size) {
    return false;
  }
  Position += static_cast<gint64>(size);
  return true;
}

bool LayoutInput::BeginTexts(gint size) {
  if (size < 0 || size > FileSize - Position) {
    return false;
  }
  TextLeft = size;
  return true;
}

int LayoutInput::NextTextByte() {
  if (TextLeft == 0) {
    return 0;
  }
  --TextLeft;
  const int byte = getc_unlocked(File.get());
  return byte == EOF ? 0 : byte;
}

void LayoutInput::ReadText(gchar* field, std::size_t limit) {
  std::size_t length = 0;
  while (const int byte = NextTextByte()) {
    field[length++] = static_cast<gchar>(byte);
    if (length > limit) {
      length = CutEuc(std::string_view(field, length), limit).size();
      break;
    }
  }
  std::memset(field + length, 0, limit + 2 - length);
}
