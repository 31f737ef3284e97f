#include "support/ProfileText.h"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "support/Text.h"

namespace {

constexpr std::size_t PieceSize = 256;
constexpr std::size_t TextLimit = 99;

// Two searches for one byte each are far faster than one for either.
std::size_t LineEnd(std::string_view text) {
  const std::size_t end = text.find('\n');
  return std::min(end, text.substr(0, end).find('\0'));
}

// Walks the lines; one of more than 256 bytes counts as several.
class LineReader {
 public:
  explicit LineReader(std::string_view profile) : profile_(profile) {}

  bool Next() {
    begin_ += length_;
    length_ = 0;
    if (begin_ >= profile_.size()) return false;
    const std::string_view piece = profile_.substr(begin_, PieceSize);
    const std::size_t end = LineEnd(piece);
    length_ = end == std::string_view::npos ? piece.size() : end + 1;
    text_ = piece.substr(0, end);
    text_ = text_.substr(0, text_.find(';'));
    while (text_.size() > 1 && (text_.back() == ' ' || text_.back() == '\t')) {
      text_.remove_suffix(1);
    }
    return true;
  }

  // The line as it counts: without its end, a comment and trailing blanks.
  std::string_view Text() const { return text_; }
  std::size_t Begin() const { return begin_; }
  // Where the next line begins, the rest of a long one passed over.
  std::size_t End() const {
    const std::size_t end = LineEnd(profile_.substr(begin_));
    return end == std::string_view::npos ? profile_.size() : begin_ + end + 1;
  }

 private:
  std::string_view profile_;
  std::string_view text_;
  std::size_t begin_ = 0;
  std::size_t length_ = 0;
};

bool IsHeader(std::string_view line, std::string_view section) {
  return line.starts_with('[') && line.substr(1).starts_with(section) &&
         line.substr(1 + section.size()).starts_with(']');
}

bool IsKeyLine(std::string_view line, std::string_view key) {
  return line.starts_with(key) && line.substr(key.size()).starts_with('=');
}

bool FindSection(LineReader& reader, std::string_view section) {
  if (section.empty()) return false;
  while (reader.Next()) {
    if (IsHeader(reader.Text(), section)) return true;
  }
  return false;
}

bool FindKey(LineReader& reader, std::string_view key) {
  if (key.empty()) return false;
  while (reader.Next()) {
    if (IsKeyLine(reader.Text(), key)) return true;
    if (reader.Text().starts_with('[')) return false;
  }
  return false;
}

bool IsDigit(char letter) {
  return g_ascii_isdigit(letter);
}

bool IsHexDigit(char letter) {
  return g_ascii_isxdigit(letter);
}

}  // namespace

std::optional<std::string> ProfileSearch(std::string_view profile, std::string_view section,
                                         std::string_view key) {
  LineReader reader(profile);
  if (!FindSection(reader, section) || !FindKey(reader, key)) return std::nullopt;
  return std::string(reader.Text().substr(key.size() + 1));
}

void SetProfileValue(std::string& profile, std::string_view section, std::string_view key,
                     std::string_view value) {
  std::string line;
  if (!key.empty()) line.append(key).append("=").append(value).append("\n");

  LineReader header(profile);
  if (FindSection(header, section)) {
    LineReader reader = header;
    if (FindKey(reader, key)) {
      profile.replace(reader.Begin(), reader.End() - reader.Begin(), line);
    } else {
      profile.insert(header.End(), line);
    }
  } else if (section.empty()) {
    profile.insert(0, line);
  } else {
    // A last line without its end gets the header joined to it.
    profile.append("[").append(section).append("]\n").append(line);
  }
}

bool DeleteProfileKey(std::string& profile, std::string_view section, std::string_view key) {
  LineReader reader(profile);
  if (!FindSection(reader, section) || !FindKey(reader, key)) return false;
  profile.erase(reader.Begin(), reader.End() - reader.Begin());
  return true;
}

std::string CommentedValue(std::string_view key, std::string_view text, gint column,
                           std::string_view comment) {
  const gint64 pad = column - static_cast<gint64>(key.size() + text.size() + 1);
  std::string value(text);
  value.append(pad < 0 ? 2 : static_cast<std::size_t>(pad), ' ');
  return value.append(comment);
}

FieldKind FieldKindOf(char letter) {
  switch (letter) {
    case 's':
    case 'S':
      return FieldKind::Text;
    case 'i':
    case 'I':
      return FieldKind::Decimal;
    case 'h':
    case 'H':
      return FieldKind::Hexadecimal;
    default:
      return FieldKind::None;
  }
}

std::string_view ProfileField(std::string_view value, std::size_t number) {
  for (; number > 0; --number) {
    const std::size_t comma = value.find(',');
    if (comma == std::string_view::npos) return {};
    value.remove_prefix(comma + 1);
  }
  return value.substr(0, value.find(','));
}

std::string_view CheckedField(std::string_view field, FieldKind kind) {
  if (kind == FieldKind::Text) return CutEuc(field, TextLimit);
  const auto allowed = kind == FieldKind::Hexadecimal ? IsHexDigit : IsDigit;
  // A sign is no digit, so negative numbers read as missing.
  return std::all_of(field.begin(), field.end(), allowed) ? field : std::string_view();
}

gint DecimalValue(std::string_view digits) {
  gint value = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return result.ec == std::errc::result_out_of_range ? G_MAXINT : value;
}

guint16 HexadecimalValue(std::string_view digits) {
  guint16 value = 0;
  digits = digits.substr(0, 4);
  std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
  return value;
}
