// A folder of a test's own, gone with everything in it when the test ends.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

class TempFolder {
 public:
  explicit TempFolder(
      const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
    std::string pattern = (parent / "varnix-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = pattern;
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  // The folder itself, without a trailing "/", and the path of an entry in it.
  const std::string& Path() const { return path_; }
  std::string Path(std::string_view name) const { return path_ + "/" + std::string(name); }

  // Writes a file as given and returns its path; `name` may lead through missing folders.
  std::string Write(std::string_view name, std::string_view bytes) const {
    const std::string path = Path(name);
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path);
    return path;
  }
  // The file's bytes; a missing file is an error of the test.
  std::string Read(std::string_view name) const {
    std::ifstream file(Path(name), std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + Path(name));
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }
  bool Exists(std::string_view name) const {
    return std::filesystem::exists(std::filesystem::symlink_status(Path(name)));
  }

 private:
  std::string path_;
};
