#include <string>

#include "app/Window.h"
#include "support/Text.h"

namespace {

// Bytes of the title in the encoding of the records.
constexpr std::size_t TitleLimit = 179;

std::string CutTitle(const std::string& title) {
  const std::optional<std::string> record = EucFromUtf8(title);
  if (record && record->size() > TitleLimit) {
    return Utf8FromEuc(CutEuc(*record, TitleLimit)).value_or(std::string());
  }
  return title;
}

}  // namespace

void SetWindTitle(const gchar* projname, const gchar* ptrnname) {
  std::string title = "レイアウト作成";
  if (projname[0] != '\0') {
    title += "  [" + DisplayText(projname);
    if (ptrnname[0] != '\0') title += " / " + DisplayText(ptrnname);
    title += "]";
  }
  if (PtrnWnd != nullptr) gtk_window_set_title(GTK_WINDOW(PtrnWnd), CutTitle(title).c_str());
}
