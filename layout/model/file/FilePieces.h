// A stretch of a file, read from its beginning to its end in large pieces.
#pragma once

#include <algorithm>
#include <array>

#include "Types.h"
#include "layout/model/file/FileSource.h"

class FilePieces {
 public:
  // Goes to the `size` bytes from `offset` on. The source must stay meanwhile.
  void Begin(const FileSource& file, gint64 offset, gint64 size);
  // The next `size` bytes, at most MostAhead; zeros where the stretch or the file ends before.
  // Valid until the next call.
  const char* Ahead(std::size_t size);
  // Passes over bytes that were asked for; false when they go past the end.
  bool Skip(std::size_t size);
  // Whether the system could not deliver a piece.
  bool Failed() const { return failed_; }

  static constexpr std::size_t MostAhead = 512;

 private:
  static constexpr std::size_t PieceSize = 65536;

  void Refill();

  const FileSource* file_ = nullptr;
  gint64 next_ = 0;  // place in the file of the bytes that have not come yet
  gint64 left_ = 0;  // number of those bytes
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  bool failed_ = false;
  std::array<char, PieceSize + MostAhead> piece_;
};

inline const char* FilePieces::Ahead(std::size_t size) {
  if (end_ - begin_ < size && left_ > 0) Refill();
  return piece_.data() + begin_;
}

inline bool FilePieces::Skip(std::size_t size) {
  const std::size_t passed = std::min(size, end_ - begin_);
  begin_ += passed;
  return passed == size;
}
