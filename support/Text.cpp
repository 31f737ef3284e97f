#include "support/Text.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace {

class Converter {
 public:
  Converter(const char* to, const char* from) : handle_(iconv_open(to, from)) {}
  ~Converter() {
    if (IsOpen()) iconv_close(handle_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  std::optional<std::string> Convert(std::string_view text) {
    if (!IsOpen()) return std::nullopt;
    // Neither way does a character grow to more than twice its bytes.
    std::string result(text.size() * 2, '\0');
    char* in = const_cast<char*>(text.data());  // iconv only reads from it
    char* out = result.data();
    std::size_t in_left = text.size();
    std::size_t out_left = result.size();
    if (iconv(handle_, &in, &in_left, &out, &out_left) != 0 || in_left != 0) {
      iconv(handle_, nullptr, nullptr, nullptr, nullptr);
      return std::nullopt;
    }
    result.resize(result.size() - out_left);
    return result;
  }

 private:
  // NOLINTNEXTLINE(performance-no-int-to-ptr): this is how iconv_open tells its failure
  bool IsOpen() const { return handle_ != reinterpret_cast<iconv_t>(-1); }
  iconv_t handle_;
};

constexpr unsigned char KanaShift = 0x8E;        // one byte of half-width kana follows
constexpr unsigned char SupplementShift = 0x8F;  // two bytes of JIS X 0212 follow

bool IsPlain(unsigned char byte) {
  return byte < 0x80;
}

bool IsCharacterByte(unsigned char byte) {
  return byte >= 0xA1 && byte <= 0xFE;
}

// Bytes of the EUC-JP character at the front; 1 for a byte that begins no whole character.
std::size_t CharacterLength(std::string_view euc) {
  const auto lead = static_cast<unsigned char>(euc[0]);
  std::size_t length = 1;
  if (lead == KanaShift || IsCharacterByte(lead)) length = 2;
  if (lead == SupplementShift) length = 3;
  if (length > euc.size()) return 1;
  const auto trail = euc.substr(1, length - 1);
  return std::all_of(trail.begin(), trail.end(),
                     [](char byte) { return IsCharacterByte(static_cast<unsigned char>(byte)); })
             ? length
             : 1;
}

// The system's converter lets lone bytes 0x80..0x9F pass as control characters; no text has them,
// and UTF-8 would be taken for EUC-JP by them.
bool HasStrayBytes(std::string_view euc) {
  while (!euc.empty()) {
    const std::size_t length = CharacterLength(euc);
    if (length == 1 && !IsPlain(static_cast<unsigned char>(euc[0]))) return true;
    euc.remove_prefix(length);
  }
  return false;
}

// Characters that input methods produce for one that EUC-JP has under another code.
constexpr std::array<std::pair<std::string_view, std::string_view>, 7> LookAlikes = {{
    {"\uFF5E", "\u301C"},  // full-width tilde -> wave dash
    {"\uFF0D", "\u2212"},  // full-width hyphen-minus -> minus sign
    {"\u2014", "\u2015"},  // em dash -> horizontal bar
    {"\u2225", "\u2016"},  // parallel to -> double vertical line
    {"\uFFE0", "\u00A2"},  // full-width cent sign
    {"\uFFE1", "\u00A3"},  // full-width pound sign
    {"\uFFE2", "\u00AC"},  // full-width not sign
}};

std::string FoldLookAlikes(std::string_view utf8) {
  std::string folded;
  folded.reserve(utf8.size());
  while (!utf8.empty()) {
    const auto found = std::find_if(LookAlikes.begin(), LookAlikes.end(), [utf8](const auto& pair) {
      return utf8.starts_with(pair.first);
    });
    if (found != LookAlikes.end()) {
      folded += found->second;
      utf8.remove_prefix(found->first.size());
    } else {
      folded += utf8[0];
      utf8.remove_prefix(1);
    }
  }
  return folded;
}

std::string Escaped(std::string_view bytes) {
  constexpr char Digits[] = "0123456789ABCDEF";
  std::string text;
  for (const char plain : bytes) {
    const auto byte = static_cast<unsigned char>(plain);
    if (IsPlain(byte)) {
      text += plain;
    } else {
      text += {'\\', 'x', Digits[byte >> 4], Digits[byte & 0x0F]};
    }
  }
  return text;
}

}  // namespace

std::optional<std::string> Utf8FromEuc(std::string_view euc) {
  static Converter converter("UTF-8", "EUC-JP");
  if (HasStrayBytes(euc)) return std::nullopt;
  return converter.Convert(euc);
}

std::optional<std::string> EucFromUtf8(std::string_view utf8) {
  static Converter converter("EUC-JP", "UTF-8");
  const std::string folded = FoldLookAlikes(utf8);
  std::optional<std::string> euc = converter.Convert(folded);
  // The system's converter replaces or drops some characters silently (the yen sign becomes a
  // backslash): what does not come back as it was has no place in EUC-JP.
  if (!euc || Utf8FromEuc(*euc) != folded) return std::nullopt;
  return euc;
}

std::string DisplayText(std::string_view bytes) {
  if (std::optional<std::string> text = Utf8FromEuc(bytes)) return *std::move(text);
  if (g_utf8_validate(bytes.data(), static_cast<gssize>(bytes.size()), nullptr) != FALSE) {
    return std::string(bytes);
  }
  return Escaped(bytes);
}

std::string_view CutEuc(std::string_view euc, std::size_t limit) {
  if (euc.size() <= limit) return euc;
  std::size_t end = 0;
  for (;;) {
    const std::size_t length = CharacterLength(euc.substr(end));
    if (end + length > limit) return euc.substr(0, end);
    end += length;
  }
}

void CopyText(gchar* field, std::size_t size, std::string_view text) {
  if (size == 0) return;
  text = CutEuc(text.substr(0, text.find('\0')), size - 1);
  if (!text.empty()) std::memmove(field, text.data(), text.size());
  std::memset(field + text.size(), 0, size - text.size());
}

std::string_view FieldText(const gchar* field, std::size_t size) {
  return {field, strnlen(field, size)};
}
