// A layout file open for reading. Its counts are claims: nothing is believed before the bytes are
// there, and nothing is held in memory beyond one piece of the file.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "Types.h"
#include "support/FileHandle.h"

class LayoutInput {
 public:
  // Opens a regular file; anything else (a folder, a pipe) counts as not open.
  explicit LayoutInput(const std::string& path);

  bool IsOpen() const { return static_cast<bool>(file_); }
  gint64 Size() const { return size_; }
  // Reads exactly `size` bytes, at most PieceSize; false when the file ends before.
  bool Read(void* buffer, std::size_t size);
  // Starts the text block: the next `size` bytes. False when the file holds less.
  bool BeginTexts(gint size);
  // The next text of the block, at most `limit` of its bytes. A longer text is cut there, and what
  // is left of it past one more byte is taken for the next text. Past the end of the block texts
  // are empty. Valid until the next reading.
  std::string_view NextText(std::size_t limit);

  static constexpr std::size_t PieceSize = 16384;

 private:
  // Up to `size` bytes that lie ahead, fewer only at the end of the file.
  std::string_view Ahead(std::size_t size);

  FileHandle file_;
  gint64 size_ = 0;
  gint64 loaded_ = 0;    // bytes of the file that have come into the piece
  gint64 textLeft_ = 0;  // bytes of the text block that lie ahead
  std::array<char, PieceSize> piece_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
};
