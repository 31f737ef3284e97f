#include "layout/model/LayoutInput.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstring>

#include "support/Text.h"

LayoutInput::LayoutInput(const std::string& path) {
  FileHandle file = FileHandle::OpenToRead(path.c_str());
  struct stat status;
  if (file && fstat(file.Get(), &status) == 0 && S_ISREG(status.st_mode)) {
    file_ = std::move(file);
    size_ = status.st_size;
  }
}

std::string_view LayoutInput::Ahead(std::size_t size) {
  if (end_ - begin_ < size) {
    std::memmove(piece_.data(), piece_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
    const ssize_t come = file_.ReadAt(piece_.data() + end_, PieceSize - end_, loaded_);
    if (come > 0) {
      end_ += static_cast<std::size_t>(come);
      loaded_ += come;
    }
  }
  return {piece_.data() + begin_, std::min(size, end_ - begin_)};
}

bool LayoutInput::Read(void* buffer, std::size_t size) {
  const std::string_view bytes = Ahead(size);
  if (bytes.size() < size) {
    return false;
  }
  std::memcpy(buffer, bytes.data(), size);
  begin_ += size;
  return true;
}

bool LayoutInput::BeginTexts(gint size) {
  const gint64 position = loaded_ - static_cast<gint64>(end_ - begin_);
  if (size < 0 || size > size_ - position) {
    return false;
  }
  textLeft_ = size;
  return true;
}

std::string_view LayoutInput::NextText(std::size_t limit) {
  const auto most = static_cast<std::size_t>(std::min<gint64>(textLeft_, gint64(limit) + 1));
  const std::string_view bytes = Ahead(most);
  const std::size_t end = std::min(bytes.find('\0'), bytes.size());
  const std::size_t taken = std::min(end + 1, bytes.size());
  begin_ += taken;
  textLeft_ -= static_cast<gint64>(taken);
  return CutEuc(bytes.substr(0, end), limit);
}
