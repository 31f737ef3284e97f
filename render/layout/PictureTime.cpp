#include <optional>

#include "render/LayoutPicture.h"
#include "render/layout/Calendar.h"

namespace {

std::optional<std::tm> fixedTime;

}  // namespace

void SetPictureTime(const std::tm* time) {
  fixedTime = time != nullptr ? std::optional<std::tm>(*time) : std::nullopt;
}

std::tm PictureTime() {
  if (fixedTime) return *fixedTime;
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return local;
}
