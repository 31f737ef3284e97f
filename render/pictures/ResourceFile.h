// A table of the open project that is one file of its folder: the palette, the marks.
#pragma once

#include <algorithm>
#include <string>

#include "layout/ProjectRecord.h"
#include "support/FileTools.h"
#include "support/Files.h"
#include "support/KeptResources.h"

template <typename Table>
class ResourceFile {
 public:
  ResourceFile(const gchar* name, Table& table) : name_(name), table_(table) {}

  // Leaves zeros when the file is missing, short or unreadable.
  void Load() {
    const bool read = FileRead(ProjPath, name_, "", &table_, Size, 0) != 0;
    unread_ = !read && FileSize(ProjPath, name_, "") >= Size ? Path() : std::string();
  }
  // The zeros that stand for a file that is there but could not be read do not replace it. Without
  // a folder there is no project to write to, and a new project's table is none of the open one's.
  // False when the file does not hold the table now.
  bool Save() const {
    if (ProjPath[0] == '\0' || ResourcesAreNewProjects() || (unread_ == Path() && IsBlank())) {
      return false;
    }
    return FileWrite(ProjPath, name_, "", &table_, Size, 0) != 0;
  }

 private:
  static constexpr gint Size = sizeof(Table);

  std::string Path() const { return JoinPath(ProjPath, name_, ""); }
  bool IsBlank() const {
    const auto* bytes = reinterpret_cast<const char*>(&table_);
    return std::all_of(bytes, bytes + Size, [](char byte) { return byte == 0; });
  }

  const gchar* name_;
  Table& table_;
  std::string unread_;
};
