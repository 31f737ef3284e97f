// The picture files that a painted layout shows.
#pragma once

#include <sys/types.h>

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "Types.h"

// What tells one state of a file from another.
struct FileState {
  dev_t Device;
  ino_t Inode;
  off_t Size;
  gint64 Seconds;
  gint64 Nanoseconds;

  bool operator==(const FileState&) const = default;
};

class ShownPictures {
 public:
  // While it lives, every picture file that is painted is noted, and every one that should be and
  // is not there.
  class Noting {
   public:
    explicit Noting(ShownPictures& pictures);
    ~Noting();
    Noting(const Noting&) = delete;
    Noting& operator=(const Noting&) = delete;

   private:
    ShownPictures* before_;
  };

  void Clear() { files_.clear(); }
  // Whether one of the files has changed, come or gone since it was noted.
  bool Changed() const;

  // Called for every picture file that is painted. `state`: none where there is no such file.
  static void Note(const std::string& folder, const std::string& name,
                   const std::optional<FileState>& state);

 private:
  // By folder and name.
  std::map<std::pair<std::string, std::string>, std::optional<FileState>> files_;
};
