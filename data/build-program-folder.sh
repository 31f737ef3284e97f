#!/usr/bin/env bash
# Builds what the program folder holds beside the executables: profile, templates, pictures and the
# sample project. A file is put there only when its source has changed since the last build, so work
# done in the folder (the profile's known projects, edited sample layouts) survives a rebuild.
set -euo pipefail

[ $# -eq 3 ] || {
  echo "usage: build-program-folder.sh PROGRAM_FOLDER VARNIXTOOL STATE_FOLDER" >&2
  exit 2
}
mkdir -p "$1" "$3"
program=$(cd "$1" && pwd)
tool=$2
state=$(cd "$3" && pwd)
data=$(cd "$(dirname "$0")" && pwd)

# Two builds of the same folder at once take turns.
exec 9>"$state/lock"
flock 9
shipped=$state/shipped
fresh=$(mktemp -d "$state/fresh.XXXXXX")
trap 'rm -rf "$fresh"' EXIT

# Our own paths go in as the file system spells them; everything else becomes EUC-JP.
with_program_folder() {
  local path
  path=$(printf '%s' "$program" | LC_ALL=C sed 's/[&|\\]/\\&/g')
  LC_ALL=C sed "s|@PROGRAM_FOLDER@|$path|g"
}

build_layouts() { # FOLDER OUT: each layout is named by its first title
  local file name
  for file in "$1"/*.json; do
    name=$(LC_ALL=C sed -n 's/^ *"PtrnName1": "\(.*\)",$/\1/p' "$file")
    "$tool" build --euc-name "$file" "$2/$name.ptn"
  done
}

mkdir -p "$fresh"/{Sample/Bitmap,SampleProgram,VarnixData/{Bitmap,Ptrn}}
iconv -f UTF-8 -t EUC-JP "$data/profile/VarnixMaster.ini" | with_program_folder >"$fresh/VarnixMaster.ini"
cp "$data"/artwork/start/*.bmp "$data/artwork/icon/VarnixMaster.png" "$fresh"
cp "$data"/artwork/bitmap/* "$fresh/Sample/Bitmap"
cp "$data"/artwork/bitmap/{logo.png,water.bmp} "$fresh/VarnixData/Bitmap"

sample=$data/sample
with_program_folder <"$sample/project.json" >"$fresh/project.json"
"$tool" build "$fresh/project.json" "$fresh/Sample/WaterWorks.prj"
rm "$fresh/project.json"
"$tool" build "$sample/palette.json" "$fresh/Sample/PtrnColr"
"$tool" build "$sample/marks.json" "$fresh/Sample/PtrnMark"
"$tool" build "$sample/codes.json" "$fresh/Sample/PtrnCode"
for list in 1 2 3; do
  "$tool" build "$sample/texts$list.json" "$fresh/Sample/PtrnText$list"
done
build_layouts "$sample/layouts" "$fresh/Sample"
build_layouts "$data/template" "$fresh/VarnixData/Ptrn"

mkdir -p "$shipped"
(cd "$fresh" && find . -type d -print0) | while IFS= read -r -d '' folder; do
  mkdir -p "$program/$folder"
done
(cd "$fresh" && find . -type f -print0) | while IFS= read -r -d '' file; do
  if [ ! -e "$program/$file" ] || ! cmp -s "$fresh/$file" "$shipped/$file"; then
    cp "$fresh/$file" "$program/$file.new"
    mv "$program/$file.new" "$program/$file"
  fi
done
# What is no longer shipped goes, unless it was changed there.
(cd "$shipped" && find . -type f -print0) | while IFS= read -r -d '' file; do
  if [ ! -e "$fresh/$file" ] && cmp -s "$shipped/$file" "$program/$file"; then
    rm "$program/$file"
  fi
done
rm -rf "$shipped"
mv "$fresh" "$shipped"
