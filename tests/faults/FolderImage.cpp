#include "tests/faults/FolderImage.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

std::string BytesOf(const std::string& file) {
  std::ifstream input(file, std::ios::binary | std::ios::ate);
  std::string bytes(static_cast<std::size_t>(std::max<std::streamoff>(input.tellg(), 0)), '\0');
  input.seekg(0).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

namespace {

void WriteBytes(const fs::path& file, const std::string& bytes) {
  std::ofstream output(file, std::ios::binary | std::ios::trunc);
  output.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

}  // namespace

FolderImage ImageOf(const std::string& folder) {
  FolderImage image;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    const std::string name = entry.path().string().substr(folder.size() + 1);
    if (entry.is_directory()) {
      image[name + "/"] = "";
    } else {
      image[name] = BytesOf(entry.path());
    }
  }
  return image;
}

void Restore(const std::string& folder, const FolderImage& image) {
  const FolderImage found = ImageOf(folder);
  for (const auto& [name, bytes] : found) {
    if (image.count(name) == 0) fs::remove_all(folder + "/" + name);
  }
  for (const auto& [name, bytes] : image) {
    const auto old = found.find(name);
    if (name.back() == '/') {
      fs::create_directories(folder + "/" + name);
    } else if (old == found.end() || old->second != bytes) {
      WriteBytes(folder + "/" + name, bytes);
    }
  }
}
