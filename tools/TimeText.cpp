#include "tools/TimeText.h"

#include <array>

namespace {

constexpr std::string_view Form = "0000-00-00 00:00:00";

bool HasForm(const std::string& text) {
  if (text.size() != Form.size()) return false;
  for (std::size_t k = 0; k < Form.size(); ++k) {
    const bool digit = text[k] >= '0' && text[k] <= '9';
    if (Form[k] == '0' ? !digit : text[k] != Form[k]) return false;
  }
  return true;
}

}  // namespace

std::optional<std::tm> ParseTime(const std::string& text) {
  if (!HasForm(text)) return std::nullopt;
  const auto number = [&text](std::size_t at, std::size_t digits) {
    return std::stoi(text.substr(at, digits));
  };
  std::tm time{};
  time.tm_year = number(0, 4) - 1900;
  time.tm_mon = number(5, 2) - 1;
  time.tm_mday = number(8, 2);
  time.tm_hour = number(11, 2);
  time.tm_min = number(14, 2);
  time.tm_sec = number(17, 2);
  // The library carries what runs over, so a time that is none comes back changed.
  std::tm carried = time;
  timegm(&carried);
  const auto fields = [](const std::tm& tm) {
    return std::array{tm.tm_year, tm.tm_mon, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec};
  };
  if (fields(carried) != fields(time)) return std::nullopt;
  return carried;
}
