#include "layout/model/file/FilePieces.h"

#include <cstring>

void FilePieces::Begin(const FileSource& file, gint64 offset, gint64 size) {
  file_ = &file;
  next_ = offset;
  left_ = size;
  begin_ = 0;
  end_ = 0;
  failed_ = false;
  Refill();
}

void FilePieces::Refill() {
  std::memmove(piece_.data(), piece_.data() + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
  const gint64 room = static_cast<gint64>(PieceSize - end_);
  const auto wanted = static_cast<std::size_t>(std::min(left_, room));
  const ssize_t come = file_->ReadAt(piece_.data() + end_, wanted, next_);
  if (come > 0) {
    end_ += static_cast<std::size_t>(come);
    next_ += come;
    left_ -= come;
  } else {
    failed_ = come < 0;
    left_ = 0;
  }
  std::memset(piece_.data() + end_, 0, MostAhead);
}
