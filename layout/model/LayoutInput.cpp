#include "layout/model/LayoutInput.h"

#include <sys/stat.h>

#include <bit>
#include <cerrno>
#include <cstdint>
#include <cstring>

#include "support/Text.h"

namespace {

constexpr std::size_t TextLimit = 100;
constexpr std::size_t NameLimit = 80;
constexpr std::size_t CodeLimit = 20;
// The most bytes that the texts of one item take, terminators included.
constexpr std::size_t TextsLimit = 3 * (TextLimit + 1) + (NameLimit + 1) + (CodeLimit + 1);

// Texts are short: looked through and copied a word at a time they take half the time that a search
// and a copy take.
using Word = std::uint64_t;
static_assert(std::endian::native == std::endian::little);
static_assert(TextsLimit + sizeof(Word) <= FilePieces::MostAhead);

// Not 0 when the word has a zero byte; the lowest bit set is then the high bit of the first.
constexpr Word ZeroByteBits(Word word) {
  constexpr Word Ones = 0x0101010101010101;
  return (word - Ones) & ~word & (Ones << 7);
}

// Copies the text at `from` into an empty field, its terminator not; the length of the text, more
// than `limit` where no terminator stands up to there. Whole words are read.
template <std::size_t Size>
std::size_t CopyWords(gchar (&field)[Size], const char* from, std::size_t limit) {
  std::size_t at = 0;
  for (; at + sizeof(Word) <= Size; at += sizeof(Word)) {
    Word word;
    std::memcpy(&word, from + at, sizeof word);
    const Word zeros = ZeroByteBits(word);
    if (zeros != 0) {
      word &= (zeros ^ (zeros - 1)) >> 8;  // the bytes before the terminator
      std::memcpy(field + at, &word, sizeof word);
      return at + static_cast<std::size_t>(std::countr_zero(zeros)) / 8;
    }
    std::memcpy(field + at, &word, sizeof word);
  }
  for (; at <= limit && from[at] != '\0'; ++at) {
    field[at] = from[at];
  }
  return at;
}

// Copies the text at `from` into an empty field; where the next one begins.
template <std::size_t Size>
const char* TakeText(gchar (&field)[Size], const char* from, std::size_t limit) {
  const std::size_t length = CopyWords(field, from, limit);
  if (length <= limit) {
    return from + length + 1;
  }
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
    file_ = std::move(file);
    size_ = status.st_size;
  }
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
  const gint64 count = std::max<gint64>(wanted, 0);
  const gint64 held = std::clamp<gint64>((size_ - start) / record, 0, count);
  const gint64 textStart = start + record * held;
  recordsHeld_ = static_cast<gint>(held);
  holdsTexts_ = held == count && read.TextSize >= 0 && read.TextSize <= size_ - textStart;
  records_.Begin(file_, start, record * held);
  texts_.Begin(file_, textStart, holdsTexts_ ? read.TextSize : 0);
  return true;
}

bool LayoutInput::NextRecord(PTRNFILE& record) {
  std::memcpy(&record, records_.Ahead(sizeof record), sizeof record);
  return records_.Skip(sizeof record);
}

void LayoutInput::NextTexts(PTRNDATA& item) {
  const char* const begin = texts_.Ahead(TextsLimit + sizeof(Word));
  const char* from = begin;
  from = TakeText(item.Text1, from, TextLimit);
  from = TakeText(item.Text2, from, TextLimit);
  from = TakeText(item.Text3, from, TextLimit);
  from = TakeText(item.ID_Name, from, NameLimit);
  from = TakeText(item.ID_Code, from, CodeLimit);
  texts_.Skip(static_cast<std::size_t>(from - begin));
}
