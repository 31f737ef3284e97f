#!/usr/bin/env bash
# Makes what is shipped for a program folder: OUT/files.tar.gz holds profile, templates, pictures and the
# sample projects, whose EUC-JP names no package tool has to spell; OUT/VarnixMaster.ini is the profile
# once more, for the companion tool; OUT/stamp changes when any of it does. The profile holds
# @PROGRAM_FOLDER@ where the path of the program folder goes, and the projects have no program folder
# yet: fill-program-folder.sh puts both in.
set -euo pipefail

[ $# -eq 2 ] || {
  echo "usage: make-shipped-files.sh OUT VARNIXTOOL" >&2
  exit 2
}
mkdir -p "$1"
out=$(cd "$1" && pwd)
tool=$2
data=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d "$out/making.XXXXXX")
trap 'rm -rf "$work"' EXIT
files=$work/files

build_layouts() { # FOLDER OUT: each layout is named by its first title
  local file name
  for file in "$1"/*.json; do
    name=$(LC_ALL=C sed -n 's/^ *"PtrnName1": "\(.*\)",$/\1/p' "$file")
    "$tool" build --euc-name "$file" "$2/$name.ptn"
  done
}

build_project() { # SOURCES PROJECT_FILE: with the palette and the marks that both samples share
  local folder=${2%/*} list
  mkdir -p "$folder/Bitmap"
  "$tool" build "$1/project.json" "$2"
  "$tool" build "$data/samples/water/palette.json" "$folder/PtrnColr"
  "$tool" build "$data/samples/water/marks.json" "$folder/PtrnMark"
  "$tool" build "$1/codes.json" "$folder/PtrnCode"
  for list in 1 2 3; do "$tool" build "$1/texts$list.json" "$folder/PtrnText$list"; done
  build_layouts "$1/layouts" "$folder"
}

mkdir -p "$files/VarnixData"/{Bitmap,Ptrn}
iconv -f UTF-8 -t EUC-JP "$data/profile/VarnixMaster.ini" >"$files/VarnixMaster.ini"
cp "$data"/artwork/start/*.bmp "$data/artwork/icon/VarnixMaster.png" "$files"
cp "$data"/artwork/bitmap/{logo.png,water.bmp} "$files/VarnixData/Bitmap"
build_layouts "$data/template" "$files/VarnixData/Ptrn"

build_project "$data/samples/water" "$files/Sample/WaterWorks.prj"
cp "$data"/artwork/bitmap/* "$files/Sample/Bitmap"

python3 -B "$data/samples/power/make_project.py" "$work/power"
build_project "$work/power" "$files/PowerSample/PowerPlant.prj"
cp "$data/artwork/bitmap/logo.png" "$files/PowerSample/Bitmap"

tar -C "$files" --sort=name --owner=0 --group=0 --numeric-owner --mtime=@0 --mode=u+rw,go=rX -cf - . |
  gzip -9n >"$out/files.tar.gz"
cp "$files/VarnixMaster.ini" "$out"
sha256sum <"$out/files.tar.gz" | cut -d' ' -f1 >"$out/stamp"
