// A layout file open for reading. Its counts are claims: nothing is believed before the bytes are
// there, and nothing is held in memory beyond a piece of its records and one of its texts.
#pragma once

#include <string>
#include <string_view>

#include "layout/Records.h"
#include "layout/model/file/FilePieces.h"
#include "layout/model/file/FileSource.h"

class LayoutInput {
 public:
  // Opens a regular file; anything else (a folder, a pipe) counts as not open.
  explicit LayoutInput(const std::string& path);
  // Reads from the bytes of a file, which must stay meanwhile.
  explicit LayoutInput(std::string_view bytes) : file_(bytes) {}

  // True when the system could not deliver what is there; a file that is missing, forbidden or no
  // regular one is merely not open.
  bool Failed() const { return failed_ || records_.Failed() || texts_.Failed(); }
  bool IsOpen() const { return file_.IsOpen(); }
  // The header, untouched, and goes to the first record and its texts. False when the file ends
  // before; what follows here is not for such a file.
  bool ReadHeader(PTRNHEDR& header);
  // Number of whole records that the file holds, at most as many as the header counts.
  gint RecordsHeld() const { return recordsHeld_; }
  // Whether the file holds all that the header counts. Without, all texts are empty.
  bool HoldsTexts() const { return holdsTexts_; }
  // Fills an empty item with the next record and its five texts; false past the last record, and
  // where the file has become shorter meanwhile. A text too long for its field is cut, and what is
  // left of it past one more byte is taken for the next text. Past the end of the block texts are
  // empty.
  bool NextItem(PTRNDATA& item);

 private:
  void TakeTexts(PTRNDATA& item);

  FileSource file_;
  bool failed_ = false;
  gint recordsHeld_ = 0;
  bool holdsTexts_ = false;
  FilePieces records_;
  FilePieces texts_;
};
