#include "tools/InputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include "layout/LayoutFile.h"
#include "layout/ProjectRecord.h"
#include "support/RecordBytes.h"
#include "support/Resource.h"
#include "support/Text.h"
#include "tools/Report.h"

namespace {

// No list of codes or texts that people enter comes near this size.
constexpr std::size_t ListFileLimit = 16u << 20;

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

// A regular file open for reading.
struct InputFile {
  std::unique_ptr<std::FILE, FileCloser> File;
  guint64 Size = 0;
  std::string Error;
};

InputFile OpenInput(const std::string& path) {
  // A pipe of that name must not hold the tool up.
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) return {nullptr, 0, std::strerror(errno)};
  struct stat status {};
  if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
    close(descriptor);
    return {nullptr, 0, "not a regular file"};
  }
  InputFile input{nullptr, static_cast<guint64>(status.st_size), ""};
  input.File.reset(fdopen(descriptor, "rb"));
  if (!input.File) {
    close(descriptor);
    input.Error = std::strerror(errno);
  }
  return input;
}

std::string ReadHead(InputFile& input, guint64 limit) {
  std::string bytes(static_cast<std::size_t>(std::min(input.Size, limit)), '\0');
  std::rewind(input.File.get());
  bytes.resize(std::fread(bytes.data(), 1, bytes.size(), input.File.get()));
  return bytes;
}

std::optional<guint64> SizeOfLayout(std::string_view head) {
  PTRNHEDR header;
  if (!FillRecords(&header, 1, head)) return std::nullopt;
  return LayoutFileSize(header);
}

// The bytes that a file of this kind takes, nothing when it is not whole.
std::optional<guint64> SizeOfKind(FileKind kind, InputFile& input) {
  switch (kind) {
    case FileKind::Layout:
      return SizeOfLayout(ReadHead(input, sizeof(PTRNHEDR)));
    case FileKind::Project:
      return sizeof(PROJFILE);
    case FileKind::Palette:
      return sizeof(COLRDATA) * ColrCount;
    case FileKind::Marks:
      return sizeof(MARKDATA) * MarkCount;
    case FileKind::Registry:
    case FileKind::Texts:
      break;
  }
  return input.Size;
}

}  // namespace

std::string_view BaseName(std::string_view path) {
  return path.substr(path.rfind('/') + 1);
}

std::string FolderName(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string_view::npos) return ".";
  return std::string(path.substr(0, std::max<std::size_t>(slash, 1)));
}

std::optional<std::string> EucPath(const std::string& path) {
  const std::string_view base = BaseName(path);
  const auto euc = EucFromUtf8(base);
  if (!euc) return std::nullopt;
  return path.substr(0, path.size() - base.size()) + *euc;
}

std::string ExistingPath(const std::string& path) {
  const auto euc = EucPath(path);
  const bool useEuc = euc && access(path.c_str(), F_OK) != 0 && access(euc->c_str(), F_OK) == 0;
  return useEuc ? *euc : path;
}

FileBytes ReadFileOfKind(FileKind kind, const std::string& path) {
  InputFile input = OpenInput(path);
  if (!input.File) return {std::nullopt, input.Error};
  const auto size = SizeOfKind(kind, input);
  if (!size || *size > input.Size) return {std::nullopt, "not whole: cut short or damaged"};
  const bool list = kind == FileKind::Registry || kind == FileKind::Texts;
  if (list && *size > ListFileLimit) return {std::nullopt, "too large for a list"};
  std::string bytes = ReadHead(input, *size);
  if (bytes.size() < *size) return {std::nullopt, "cannot be read to its end"};
  return {std::move(bytes), ""};
}

std::optional<Layout> ReadLayout(const std::string& path) {
  // So version control names the side where the file does not exist.
  if (path == "/dev/null") return Layout{};
  const FileBytes input = ReadFileOfKind(FileKind::Layout, ExistingPath(path));
  std::optional<Layout> layout;
  if (input.Bytes) layout = DecodeLayout(*input.Bytes);
  if (!layout) Refuse(path, input.Error);
  return layout;
}
