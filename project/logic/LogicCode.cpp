// The codes of all layouts, numbered: "PtrnCode" and "PtrnFlag" of the project folder.
#include <algorithm>
#include <limits>
#include <map>
#include <new>
#include <optional>
#include <string>

#include "layout/LayoutFile.h"
#include "layout/ProjectRecord.h"
#include "layout/Registry.h"
#include "project/LogicGeneration.h"
#include "project/logic/Generation.h"
#include "project/model/LayoutNames.h"
#include "support/FileTools.h"
#include "support/Files.h"
#include "support/Text.h"

namespace {

constexpr gchar FlagName[] = "PtrnFlag";

// The highest identification number met with each code, in the registry's order.
using CodeNumbers = std::map<std::string, gint, std::less<>>;

void CollectCode(CodeNumbers& codes, const PTRNDATA& item) {
  const std::string_view code = FieldText(item.ID_Code);
  const gint number = CodeSlots(item.ID_No) - 1;
  const auto known = codes.find(code);
  if (known == codes.end()) {
    codes.emplace(code, number);
  } else {
    known->second = std::max(known->second, number);
  }
}

// False when the layout is there and the system could not deliver it whole.
bool CollectLayout(CodeNumbers& codes, const std::string& name) {
  Layout layout;
  const LayoutReading reading = ReadLayoutFile(ProjPath, name.c_str(), layout);
  for (const PTRNDATA& item : layout.Items) CollectCode(codes, item);
  return reading != LayoutReading::Failed;
}

// All layouts of the project; nothing when one could not be read, as its codes would be lost.
std::optional<CodeNumbers> CollectProject() {
  const auto layouts = ListLayoutNames(ProjPath);
  if (!layouts) return std::nullopt;
  CodeNumbers codes;
  for (const std::string& name : *layouts) {
    if (!CollectLayout(codes, name)) return std::nullopt;
  }
  return codes;
}

// The registry that entering the codes one by one would give.
std::vector<PTRNCODE> NewRegistry(CodeNumbers codes) {
  codes.erase("");
  std::vector<PTRNCODE> registry{SystemCode()};
  const auto system = codes.extract(registry.front().ID_Code);
  if (!system.empty()) RegisterCode(registry, system.key(), system.mapped());
  registry.reserve(codes.size() + 1);
  for (const auto& [code, number] : codes) {
    PTRNCODE record{};
    CopyText(record.ID_Code, code);
    record.DataCount = CodeSlots(number);
    registry.push_back(record);
  }
  return registry;
}

// Gives each code its first slot; the number of all slots.
gint NumberCodes(std::vector<PTRNCODE>& registry) {
  gint64 slots = 0;
  for (PTRNCODE& record : registry) {
    record.DataNo = static_cast<gint>(slots);
    slots = std::min<gint64>(slots + record.DataCount, std::numeric_limits<gint>::max());
  }
  return static_cast<gint>(slots);
}

bool WriteFlagArea(gint slots) {
  const gchar last = 0;
  return FileWrite(ProjPath, FlagName, "", &last, 1, slots - 1) != 0;
}

struct WrittenCodes {
  bool Registry = false;
  bool Flags = false;
};

WrittenCodes WriteCodes() try {
  std::optional<CodeNumbers> codes = CollectProject();
  if (!codes) return {};
  std::vector<PTRNCODE> registry = NewRegistry(std::move(*codes));
  const gint slots = NumberCodes(registry);
  // The flags are as many as the registry numbers.
  if (WritePtrnCode(registry) == 0) return {};
  return {true, WriteFlagArea(slots)};
} catch (const std::bad_alloc&) {
  return {};
}

}  // namespace

void SetPtrnCode(const gchar* ptrnfile) {
  CodeNumbers codes;
  CollectLayout(codes, LayoutName(ptrnfile));
  for (const auto& [code, number] : codes) RegstPtrnCode(code.c_str(), number);
}

LogicProducts GenerateCodes() {
  const WrittenCodes written = WriteCodes();
  return {{JoinPath(ProjPath, CodeRegistryName, ""), WrittenIf(written.Registry)},
          {JoinPath(ProjPath, FlagName, ""), WrittenIf(written.Flags)}};
}

void LogicDataEdit1() {
  GenerateCodes();
}
