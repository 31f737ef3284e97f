// Files and folders, named by folder, base name and extension. Paths are the file system's own
// bytes.
#pragma once

#include "Types.h"

// Capacity in bytes of the buffers that receive a path; longer results are cut.
constexpr gint PathSize = 258;

// Joins the three parts into `full` (at least PathSize bytes): one "/" between folder and name, one
// "." before the extension whether or not it brings its own. An empty part adds nothing.
void MakePath(gchar* full, const gchar* path, const gchar* name, const gchar* ext);
// Splits at the last "/" and at the first "." of the file part. Each output may be null; `path`
// takes PathSize bytes, `name` and `ext` PathSize bytes too.
void SplitPath(const gchar* full, gchar* path, gchar* name, gchar* ext);
// Reads exactly `size` bytes from byte `offset`. 1 = read; 0 = failed, the buffer is then all
// zeros.
gint FileRead(const gchar* path, const gchar* name, const gchar* ext, void* buffer, gint size,
              gint offset);
// Replaces the file as a whole by `offset` zero bytes and `size` bytes of `buffer`; a failure keeps
// the old content. 1 = written; 0 = failed, or `size` was 0 (the file is then empty).
gint FileWrite(const gchar* path, const gchar* name, const gchar* ext, const void* buffer,
               gint size, gint offset);
// Copies a whole file. 1 = copied; 0 = failed or the source is empty (nothing is written then).
gint FileCopy(const gchar* path1, const gchar* name1, const gchar* ext1, const gchar* path2,
              const gchar* name2, const gchar* ext2);
// Renames within a folder. 0 when the old name is missing or the new one exists.
gint FileRename(const gchar* path, const gchar* name1, const gchar* ext1, const gchar* name2,
                const gchar* ext2);
// 1 = the entry existed and is gone.
gint FileDelete(const gchar* path, const gchar* name, const gchar* ext);
// 1 when the path exists, be it file or folder.
gint FileExist(const gchar* path, const gchar* name, const gchar* ext);
// Size in bytes, -1 when the path does not exist. Sizes past 2 GiB report 2147483647.
gint FileSize(const gchar* path, const gchar* name, const gchar* ext);
// Number of regular files that match the shell pattern; hidden names do not count.
gint FileCount(const gchar* path, const gchar* ptrn);
// Makes the folder and all missing ones above it. 1 when it exists afterwards.
gint CreateFolder(const gchar* folder);
// Copies the regular files of `folder1`, hidden ones included, one level deep. Stops with 0 at the
// first file that cannot be copied (an empty one, too).
gint CopyFolder(const gchar* folder1, const gchar* folder2);
