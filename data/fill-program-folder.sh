#!/usr/bin/env bash
# Fills a program folder with what is shipped, or brings an older one up to date, and keeps what was
# changed there: the profile's keys, single files, and each sample project as a whole. With --renew,
# which is for builds, a file whose source has changed is replaced all the same.
#
# STATE_FOLDER remembers what was shipped before; that alone tells changed from outdated. Every file is
# replaced in one step and the memory last, so a run that was cut short is completed by the next one.
set -euo pipefail
export LC_ALL=C

renew=
[ "${1:-}" != --renew ] || {
  renew=1
  shift
}
[ $# -eq 3 ] || {
  echo "usage: fill-program-folder.sh [--renew] PROGRAM_FOLDER SHIPPED STATE_FOLDER" >&2
  exit 2
}
scripts=$(cd "$(dirname "$0")" && pwd)
mkdir -p "$1" "$3"
program=$(cd "$1" && pwd)
source=$2
state=$(cd "$3" && pwd)
# The designer and its projects have 257 bytes for the path of a file in the folder.
if [ ${#program} -gt 230 ] || [[ $program = *$'\n'* ]]; then
  echo "fill-program-folder.sh: the path is too long or has a line end: $program" >&2
  exit 1
fi

# Two at once take turns.
exec 9>"$state/lock"
flock 9
old=$state/shipped
# A run that was cut short may have left its copy, and may have taken away the memory without having
# put the new one in its place.
rm -rf "$state"/fresh.*
[ ! -d "$state/replaced" ] || [ -d "$old" ] || mv "$state/replaced" "$old"

stamp="$(cat "$source/stamp") $program"
if [ -z "$renew" ] && [ -f "$program/VarnixMaster.ini" ] && [ -f "$state/stamp" ] &&
  [ "$(cat "$state/stamp")" = "$stamp" ]; then
  exit 0
fi
fresh=$(mktemp -d "$state/fresh.XXXXXX")
trap 'rm -rf "$fresh"' EXIT
mkdir -p "$old"

same() { cmp -s "$1" "$2"; }

put() { # FILE PATH: makes PATH a copy of FILE in one step
  cp "$1" "${2%/*}/.${2##*/}.new"
  mv "${2%/*}/.${2##*/}.new" "$2"
}

list_files() { # FOLDER LIST: writes its files to LIST, each ended by a zero byte
  (cd "$1" && find . -type f -print0) >"$2"
}

make_fresh() {
  local path project
  # Named on its command line, tar would read signs into both paths.
  (cd "$fresh" && tar -xz --no-same-owner) <"$source/files.tar.gz"
  path=$(printf '%s' "$program" | sed 's/[&|\\]/\\&/g')
  sed -i "s|@PROGRAM_FOLDER@|$path|g" "$fresh/VarnixMaster.ini"
  # A sample's program folder stands beside it; its path is the project's field ProgPath.
  for project in "$fresh"/*/*.prj; do
    path=${project%/*}
    path=$program/${path##*/}Program
    printf '%s' "$path" | dd of="$project" bs=1 seek=364 conv=notrunc status=none
    mkdir -p "$path"
  done
  (cd "$fresh" && find . -type d -print0) | while IFS= read -r -d '' path; do
    mkdir -p "$program/$path"
  done
}

changed_by_user() { # FILE, relative: neither as shipped before nor as shipped now
  if [ -e "$program/$1" ]; then
    ! same "$program/$1" "$old/$1" && ! same "$program/$1" "$fresh/$1"
  else
    [ -e "$old/$1" ] && [ -e "$fresh/$1" ]
  fi
}

project_changed_by_user() { # FOLDER, relative
  local file
  while IFS= read -r -d '' file; do
    [[ $file != "./$1/"* ]] || ! changed_by_user "$file" || return 0
  done <"$state/old-files"
  return 1
}

wanted() { # FILE, relative, not in a sample that was changed
  [ -e "$program/$1" ] || return 0
  if [ -n "$renew" ]; then
    ! same "$fresh/$1" "$old/$1"
  else
    ! same "$fresh/$1" "$program/$1" && ! changed_by_user "$1"
  fi
}

# The designer changes its profile under a lock of the folder and is not made to wait for long.
update_profile() {
  local profile=$program/VarnixMaster.ini merged=$state/profile
  exec 8<"$program"
  flock -w 1 8 || true
  if [ ! -e "$profile" ]; then
    put "$fresh/VarnixMaster.ini" "$profile"
  else
    [ -e "$old/VarnixMaster.ini" ] || : >"$old/VarnixMaster.ini"
    awk -f "$scripts/merge-profile.awk" \
      "$old/VarnixMaster.ini" "$fresh/VarnixMaster.ini" "$profile" >"$merged"
    same "$merged" "$profile" || put "$merged" "$profile"
    rm "$merged"
  fi
  exec 8<&-
}

make_fresh
list_files "$old" "$state/old-files"
list_files "$fresh" "$state/fresh-files"
kept=()
for project in "$fresh"/*/*.prj; do
  folder=${project%/*}
  folder=${folder##*/}
  if [ -z "$renew" ] && project_changed_by_user "$folder"; then kept+=("./$folder/"); fi
done
is_kept() { # FILE, relative
  local folder
  for folder in "${kept[@]}"; do [[ $1 != "$folder"* ]] || return 0; done
  return 1
}

update_profile
while IFS= read -r -d '' file; do
  if [ "$file" != ./VarnixMaster.ini ] && ! is_kept "$file" && wanted "$file"; then
    put "$fresh/$file" "$program/$file"
  fi
done <"$state/fresh-files"
# What is no longer shipped goes, unless it was changed there.
while IFS= read -r -d '' file; do
  if [ ! -e "$fresh/$file" ] && ! is_kept "$file" && same "$old/$file" "$program/$file"; then
    rm "$program/$file"
  fi
done <"$state/old-files"

rm -rf "$state/replaced"
mv "$old" "$state/replaced"
mv "$fresh" "$old"
rm -rf "$state/replaced" "$state/old-files" "$state/fresh-files"
printf '%s\n' "$stamp" >"$state/stamp"
