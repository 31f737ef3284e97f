#include <set>

#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/LayoutFile.h"
#include "layout/ProjectRecord.h"
#include "layout/ProjectSlots.h"
#include "support/FileTools.h"
#include "support/Text.h"
#include "tools/Commands.h"
#include "tools/InputFile.h"
#include "tools/OpenProject.h"
#include "tools/Report.h"

namespace {

constexpr const char* KindNames[] = {"parent", "child", "other"};

std::string Number(gint number) {
  return std::to_string(number);
}

std::string SizeText(gint width, gint height) {
  return Number(width) + "x" + Number(height);
}

std::string Line(const char* label, const std::string& text) {
  std::string line = label;
  line.resize(18, ' ');
  return line + text + "\n";
}

std::string OrNone(const std::string& text) {
  return text.empty() ? std::string("(none)") : text;
}

std::string ProjectLines() {
  const SIZE display = DisplaySize(ProjData.Parm1[ProjectSlot::DisplaySize]);
  const gint languages = ProjData.Parm1[ProjectSlot::Languages];
  return Line("Project:", DisplayText(ProjName)) + Line("Folder:", ShownPath(ProjPath)) +
         Line("Program folder:", OrNone(ShownPath(ProjData.ProgPath))) +
         Line("Display:", SizeText(display.cx, display.cy)) +
         Line("Languages:", Number(TextIndex(languages) + 1)) +
         Line("Colour systems:", ProjData.Parm1[ProjectSlot::ColourSystems] == 0 ? "2" : "4") +
         Line("Logo:", OrNone(DisplayText(ProjData.LogoName))) +
         Line("Start layout:", OrNone(DisplayText(ProjData.PtrnStart))) +
         Line("Stop layout:", OrNone(DisplayText(ProjData.PtrnStop)));
}

// What the layouts hold together.
struct Totals {
  std::size_t Items = 0;
  std::size_t Undefined = 0;
  std::set<std::string> Codes;
};

std::string LayoutLine(const std::string& name, const Layout& layout, Totals& totals) {
  std::size_t undefined = 0;
  std::set<std::string> codes;
  for (const PTRNDATA& item : layout.Items) {
    undefined += item.UndfFlag != 0;
    if (item.ID_Code[0] != '\0') codes.insert(DisplayText(FieldText(item.ID_Code)));
  }
  totals.Items += layout.Items.size();
  totals.Undefined += undefined;
  const std::size_t count = codes.size();
  totals.Codes.merge(codes);
  const PTRNHEDR& header = layout.Header;
  const gint kind = header.Parm1[HedrSlot::Kind];
  return "  " + DisplayText(name) + ": " + KindNames[kind == 0 || kind == 1 ? kind : 2] + ", " +
         SizeText(header.Parm1[HedrSlot::Width], header.Parm1[HedrSlot::Height]) + ", items " +
         std::to_string(layout.Items.size()) + ", undefined " + std::to_string(undefined) +
         ", codes " + std::to_string(count) + "\n";
}

}  // namespace

int RunInfo(const std::string& project) {
  if (!OpenProject(project)) return ExitFailed;
  std::string lines;
  Totals totals;
  int result = ExitDone;
  const std::vector<std::string> names = SortedLayouts();
  for (const std::string& name : names) {
    const std::string path = JoinPath(ProjPath, name, "ptn");
    const FileBytes input = ReadFileOfKind(FileKind::Layout, path);
    const auto layout = input.Bytes ? DecodeLayout(*input.Bytes) : std::nullopt;
    if (layout) {
      lines += LayoutLine(name, *layout, totals);
    } else {
      lines += "  " + DisplayText(name) + ": unreadable\n";
      result = Fail(path, input.Error);
    }
  }
  std::string codes;
  for (const std::string& code : totals.Codes) codes += "  " + code + "\n";
  const int printed = Print(ProjectLines() + Line("Layouts:", std::to_string(names.size())) +
                            lines + Line("Items:", std::to_string(totals.Items)) +
                            Line("Undefined items:", std::to_string(totals.Undefined)) +
                            Line("Codes:", std::to_string(totals.Codes.size())) + codes);
  return result == ExitDone ? printed : result;
}
