#include "tools/json/Convert.h"

#include <algorithm>
#include <new>

#include "tools/json/Kinds.h"
#include "tools/json/NamedNumbers.h"

namespace {

struct KindRow {
  FileKind Kind;
  Json (*Show)(std::string_view bytes);
  std::string (*Build)(const JsonSource& source);
};

constexpr KindRow Kinds[] = {
    {FileKind::Layout, ShowLayout, BuildLayout},
    {FileKind::Project, ShowProject, BuildProject},
    {FileKind::Palette, ShowPalette, BuildPalette},
    {FileKind::Marks, ShowMarks, BuildMarks},
    {FileKind::Registry, ShowRegistry, BuildRegistry},
    {FileKind::Texts, ShowTexts, BuildTexts},
};

struct NameRow {
  std::string_view Name;
  FileKind Kind;
};

constexpr NameRow Names[] = {
    {"PtrnColr", FileKind::Palette},  {"PtrnMark", FileKind::Marks},
    {"PtrnCode", FileKind::Registry}, {"PtrnText1", FileKind::Texts},
    {"PtrnText2", FileKind::Texts},   {"PtrnText3", FileKind::Texts},
};

const KindRow& RowOf(FileKind kind) {
  return *std::find_if(std::begin(Kinds), std::end(Kinds),
                       [kind](const KindRow& row) { return row.Kind == kind; });
}

// Runs one conversion; whatever it throws becomes the reason.
template <class Function>
Conversion Guarded(Function function) {
  try {
    return {function(), ""};
  } catch (const SourceError& error) {
    return {std::nullopt, error.what()};
  } catch (const JsonSource::exception& error) {
    return {std::nullopt, error.what()};
  } catch (const std::bad_alloc&) {
    return {std::nullopt, "too large for the memory"};
  }
}

}  // namespace

std::optional<FileKind> KindOfFile(std::string_view name) {
  if (name.ends_with(".ptn")) return FileKind::Layout;
  if (name.ends_with(".prj")) return FileKind::Project;
  const auto found = std::find_if(std::begin(Names), std::end(Names),
                                  [name](const NameRow& row) { return row.Name == name; });
  if (found == std::end(Names)) return std::nullopt;
  return found->Kind;
}

Conversion JsonOfFile(FileKind kind, std::string_view bytes, Numbers numbers) {
  return Guarded([&] {
    Json shown = RowOf(kind).Show(bytes);
    if (numbers == Numbers::Named) NameNumbers(kind, shown);
    return PrintJson(shown);
  });
}

Conversion FileOfJson(FileKind kind, std::string_view json) {
  return Guarded([&] { return RowOf(kind).Build(JsonSource::parse(json)); });
}
