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
files=$(mktemp -d "$out/files.XXXXXX")
trap 'rm -rf "$files"' EXIT
chmod 755 "$files"

build_layouts() { # FOLDER OUT: each layout is named by its first title
  local file name
  for file in "$1"/*.json; do
    name=$(LC_ALL=C sed -n 's/^ *"PtrnName1": "\(.*\)",$/\1/p' "$file")
    "$tool" build --euc-name "$file" "$2/$name.ptn"
  done
}

mkdir -p "$files"/{Sample/Bitmap,VarnixData/{Bitmap,Ptrn}}
iconv -f UTF-8 -t EUC-JP "$data/profile/VarnixMaster.ini" >"$files/VarnixMaster.ini"
cp "$data"/artwork/start/*.bmp "$data/artwork/icon/VarnixMaster.png" "$files"
cp "$data"/artwork/bitmap/* "$files/Sample/Bitmap"
cp "$data"/artwork/bitmap/{logo.png,water.bmp} "$files/VarnixData/Bitmap"

sample=$data/sample
"$tool" build "$sample/project.json" "$files/Sample/WaterWorks.prj"
"$tool" build "$sample/palette.json" "$files/Sample/PtrnColr"
"$tool" build "$sample/marks.json" "$files/Sample/PtrnMark"
"$tool" build "$sample/codes.json" "$files/Sample/PtrnCode"
for list in 1 2 3; do
  "$tool" build "$sample/texts$list.json" "$files/Sample/PtrnText$list"
done
build_layouts "$sample/layouts" "$files/Sample"
build_layouts "$data/template" "$files/VarnixData/Ptrn"

tar -C "$files" --sort=name --owner=0 --group=0 --numeric-owner --mtime=@0 --mode=u+rw,go=rX -cf - . |
  gzip -9n >"$out/files.tar.gz"
cp "$files/VarnixMaster.ini" "$out"
sha256sum <"$out/files.tar.gz" | cut -d' ' -f1 >"$out/stamp"
