// The program's files as JSON text and back, all in memory.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// The kinds of file, told by their names.
enum class FileKind { Layout, Project, Palette, Marks, Registry, Texts };

// The kind that a file of this base name holds: "*.ptn", "*.prj", "PtrnColr", "PtrnMark",
// "PtrnCode", "PtrnText1".."PtrnText3".
std::optional<FileKind> KindOfFile(std::string_view name);

// A result, or the reason why there is none.
struct Conversion {
  std::optional<std::string> Result;
  std::string Error;
};

// How the parameters of layouts and projects are shown: as the lists of numbers that records hold,
// or under their names.
enum class Numbers { Listed, Named };

// JSON (UTF-8) of a file's bytes. Texts that are not EUC-JP are shown as well as can be.
Conversion JsonOfFile(FileKind kind, std::string_view bytes, Numbers numbers = Numbers::Listed);
// A file's bytes of JSON; the reason names place and field, as in "Items[2].Text1: …".
Conversion FileOfJson(FileKind kind, std::string_view json);
