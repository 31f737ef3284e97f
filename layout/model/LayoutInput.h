// A layout file open for reading. Its counts are claims: nothing is believed before the bytes are
// there, and nothing is held in memory beyond one record or one text.
#pragma once

#include <cstdio>
#include <memory>
#include <string>

#include "Types.h"

class LayoutInput {
 public:
  // Opens a regular file; anything else (a folder, a pipe) counts as not open.
  explicit LayoutInput(const std::string& path);

  bool IsOpen() const { return File != nullptr; }
  gint64 Size() const { return FileSize; }
  // Reads exactly `size` bytes; false when the file ends before.
  bool Read(void* buffer, std::size_t size);
  // Starts the text block: the next `size` bytes. False when the file holds less.
  bool BeginTexts(gint size);
  // The next text of the block into `field`, at most `limit` of its bytes (field is larger by two).
  // A longer text is cut there, and what is left of it past one more byte is taken for the next
  // text. Past the end of the block texts are empty.
  void ReadText(gchar* field, std::size_t limit);

 private:
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  int NextTextByte();

  std::unique_ptr<std::FILE, Closer> File;
  gint64 FileSize = 0;
  gint64 Position = 0;
  gint64 TextLeft = 0;
};
