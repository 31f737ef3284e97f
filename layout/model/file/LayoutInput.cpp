#include "layout/model/file/LayoutInput.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstring>

#include "layout/LayoutFile.h"
#include "layout/model/file/StoredItem.h"
#include "layout/model/file/TextWords.h"
#include "support/Text.h"

namespace {

// The most bytes that the texts of one item take, terminators included.
constexpr std::size_t TextsLimit =
    3 * (TextLimit::Text + 1) + (TextLimit::Name + 1) + (TextLimit::Code + 1);

static_assert(TextsLimit + sizeof(TextWord) <= FilePieces::MostAhead);

// Copies the text at `from` into an empty field, its terminator not; the length of the text, more
// than `limit` where no terminator stands up to there. Whole words are read.
template <std::size_t Size>
std::size_t FillField(gchar (&field)[Size], const char* from, std::size_t limit) {
  std::size_t at = CopyFullWords(field, from, Size);
  if (at + sizeof(TextWord) <= Size) {
    const TextWord word = WordAt(from + at);
    const TextWord zeros = ZeroByteBits(word);
    PutWord(field + at, word & (zeros ^ (zeros - 1)) >> 8);  // the bytes before the terminator
    return at + BytesBeforeZero(word);
  }
  for (; at <= limit && from[at] != '\0'; ++at) field[at] = from[at];
  return at;
}

// Copies the text at `from` into an empty field; where the next one begins.
template <std::size_t Size>
const char* TakeText(gchar (&field)[Size], const char* from, std::size_t limit) {
  // Most are empty, and a foreseen branch need not wait for the length.
  if (*from == '\0') return from + 1;
  const std::size_t length = FillField(field, from, limit);
  if (length <= limit) return from + length + 1;
  CopyText(field, CutEuc({from, length}, limit));
  return from + limit + 1;
}

// Why a name cannot be opened though nothing is wrong with the system.
bool IsRefusal(int error) {
  return error == ENOENT || error == ENOTDIR || error == EACCES || error == EPERM ||
         error == ENAMETOOLONG || error == ELOOP || error == ENXIO;
}

}  // namespace

LayoutInput::LayoutInput(const std::string& path) {
  FileHandle file = FileHandle::OpenToRead(path.c_str());
  struct stat status;
  if (!file || fstat(file.Get(), &status) != 0) {
    failed_ = !IsRefusal(errno);
  } else if (S_ISREG(status.st_mode)) {
    file_ = FileSource(std::move(file), status.st_size);
  }
}

std::optional<gint64> LayoutFileSize(const PTRNHEDR& header) {
  if (header.DataCount < 0 || header.TextSize < 0) return std::nullopt;
  return gint64{sizeof(PTRNHEDR)} + gint64{header.DataCount} * gint64{sizeof(PTRNFILE)} +
         header.TextSize;
}

bool LayoutInput::ReadHeader(PTRNHEDR& header) {
  PTRNHEDR read;
  const ssize_t come = file_.ReadAt(&read, sizeof read, 0);
  if (come != static_cast<ssize_t>(sizeof read)) {
    failed_ = come < 0;
    return false;
  }
  header = read;
  constexpr gint64 start = sizeof(PTRNHEDR);
  constexpr gint64 record = sizeof(PTRNFILE);
  const gint64 wanted = read.DataCount;
  const gint64 held =
      std::clamp<gint64>((file_.Size() - start) / record, 0, std::max<gint64>(wanted, 0));
  const std::optional<gint64> whole = LayoutFileSize(read);
  recordsHeld_ = static_cast<gint>(held);
  holdsTexts_ = whole && *whole <= file_.Size();
  records_.Begin(file_, start, record * held);
  texts_.Begin(file_, start + record * held, holdsTexts_ ? read.TextSize : 0);
  return true;
}

bool LayoutInput::NextItem(PTRNDATA& item) {
  TakeRecord(item, records_.Ahead(sizeof(PTRNFILE)));
  TakeTexts(item);
  return records_.Skip(sizeof(PTRNFILE));
}

void LayoutInput::TakeTexts(PTRNDATA& item) {
  const char* const begin = texts_.Ahead(TextsLimit + sizeof(TextWord));
  const char* from = begin;
  from = TakeText(item.Text1, from, TextLimit::Text);
  from = TakeText(item.Text2, from, TextLimit::Text);
  from = TakeText(item.Text3, from, TextLimit::Text);
  from = TakeText(item.ID_Name, from, TextLimit::Name);
  from = TakeText(item.ID_Code, from, TextLimit::Code);
  texts_.Skip(static_cast<std::size_t>(from - begin));
}
