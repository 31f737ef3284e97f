#include "render/ShownPictures.h"

#include <algorithm>

#include "render/pictures/PictureFiles.h"

namespace {

ShownPictures* noting;

}  // namespace

ShownPictures::Noting::Noting(ShownPictures& pictures) : before_(noting) {
  noting = &pictures;
}

ShownPictures::Noting::~Noting() {
  noting = before_;
}

bool ShownPictures::Changed() const {
  return std::any_of(files_.begin(), files_.end(), [](const auto& file) {
    return PictureFileState(PicturePathInside(file.first.first, file.first.second)) != file.second;
  });
}

void ShownPictures::Note(const std::string& folder, const std::string& name,
                         const std::optional<FileState>& state) {
  // One that changed since it was first noted stays what it was: elsewhere it shows so.
  if (noting != nullptr) noting->files_.try_emplace({folder, name}, state);
}
