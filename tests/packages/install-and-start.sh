#!/usr/bin/env bash
# install-and-start.sh BUILD_FOLDER: makes both packages, installs them into empty folders and starts
# what they hold, as a new user does and as one who upgrades. Needs a display of its own.
set -euo pipefail
build=$1
work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$work"' EXIT
root=$work/root
export HOME="$work/家 of a user"
unset XDG_DATA_HOME
data=$HOME/.local/share/VarnixMaster
title='^レイアウト作成  \[WaterWorks\]$'

fail() {
  echo "FAILED: $*" >&2
  [ ! -s "$work/complaints" ] || cat "$work/complaints" >&2
  exit 1
}
step() { echo "-- $*"; }
expect() { # TEXT COMMAND...
  local text=$1
  shift
  "$@" || fail "$text"
}

started=()
start() { # LAUNCHER
  "$1" 2>>"$work/complaints" &
  started+=($!)
}
windows() { xdotool search --onlyvisible --name "$title" 2>/dev/null || true; }
has_keyboard() { # LIST
  local active
  active=$(xdotool getactivewindow 2>/dev/null) && [ "$active" = "$(xdotool getwindowfocus 2>/dev/null)" ] &&
    "$1" | grep -qx "$active"
}
# Presses the key in whichever of the listed windows has the keyboard and waits until one is gone.
press_away() { # KEY LIST
  local key=$1 list=$2 count
  count=$("$list" | wc -l)
  until has_keyboard "$list"; do
    xdotool windowactivate "$("$list" | head -n 1)" 2>/dev/null || true
    sleep 0.05
  done
  xdotool key "$key"
  until [ "$("$list" | wc -l)" -lt "$count" ]; do sleep 0.05; done
}
# Waits until every started program shows its window, closes them all by the menu key and takes their
# exit codes.
close_all() {
  local pid
  until [ "$(windows | wc -l)" -eq ${#started[@]} ]; do
    for pid in "${started[@]}"; do kill -0 "$pid" 2>/dev/null || fail "the program ended"; done
    sleep 0.05
  done
  while [ -n "$(windows)" ]; do press_away ctrl+q windows; done
  for pid in "${started[@]}"; do wait "$pid" || fail "the program ended with $?"; done
  started=()
  [ ! -s "$work/complaints" ] || fail "the program complained"
}

step "make the packages"
(cd "$work" && cpack --config "$build/CPackConfig.cmake" -B "$work/packages") >"$work/log" 2>&1 ||
  { cat "$work/log" >&2 && fail "cpack"; }
deb=$(echo "$work"/packages/*.deb)
portable=$(echo "$work"/packages/*.tar.gz)

step "look at the .deb"
lintian --allow-root --fail-on error,warning "$deb" >"$work/log" 2>&1 ||
  { cat "$work/log" >&2 && fail "lintian"; }
for font in xfonts-base xfonts-shinonome xfonts-kappa20 xfonts-mplus fonts-ipafont-gothic; do
  expect "no dependency on $font" grep -q "$font" <(dpkg-deb -f "$deb" Depends)
done
expect "no dependency on GTK" grep -q "libgtk-3-0" <(dpkg-deb -f "$deb" Depends)
dpkg-deb -x "$deb" "$root"
desktop-file-validate "$root/usr/share/applications/VarnixMaster.desktop"
expect "no Japanese name" grep -q '^Name\[ja\]=' "$root/usr/share/applications/VarnixMaster.desktop"
for page in VarnixMaster varnixtool; do
  LC_ALL=C.UTF-8 MANROFFSEQ='' man --warnings -l "$root/usr/share/man/man1/$page.1.gz" \
    >"$work/page" 2>"$work/log"
  [ ! -s "$work/log" ] || fail "$page.1: $(cat "$work/log")"
  expect "$page.1 tells nothing" grep -q "SYNOPSIS" "$work/page"
done

step "two first starts at once"
mkdir -p "$HOME"
start "$root/usr/bin/VarnixMaster"
start "$root/usr/bin/VarnixMaster"
close_all
expect "no window size in the profile" grep -aq '^WINDOW=' "$data/VarnixMaster.ini"
expect "the sample fails its check" \
  "$root/usr/bin/varnixtool" check "$data/Sample/WaterWorks.prj" >/dev/null

step "file types"
update-mime-database "$root/usr/share/mime" 2>"$work/log"
type_of() { # FILE
  XDG_DATA_DIRS=$root/usr/share:/usr/local/share:/usr/share \
    gio info -a standard::content-type "$1" | sed -n 's/ *standard::content-type: //p'
}
cp "$data/Sample/WaterWorks.prj" "$work/project"
layouts=("$data"/Sample/*.ptn)
cp "${layouts[0]}" "$work/layout"
cp "$work/layout" "$work/layout.ptn"
expect "*.prj" [ "$(type_of "$data/Sample/WaterWorks.prj")" = application/x-varnixmaster-project ]
expect "*.ptn" [ "$(type_of "$work/layout.ptn")" = application/x-varnixmaster-layout ]
expect "a project by its bytes" [ "$(type_of "$work/project")" = application/x-varnixmaster-project ]
expect "a layout by its bytes" [ "$(type_of "$work/layout")" = application/x-varnixmaster-layout ]

step "upgrade"
for key in NAME PTRN PROG TITLE; do
  expect "a suggested $key" grep -aqx "$key=" "$data/VarnixMaster.ini"
done
LC_ALL=C sed -i 's/^FONTNAME0=.*/FONTNAME0=mine,-mine-/; s|^PTRN=.*|PTRN=/mine|' "$data/VarnixMaster.ini"
size=$(grep -a '^WINDOW=' "$data/VarnixMaster.ini")
echo mine >"$data/Sample/mine.ptn"
echo mine >"$data/Sample/PtrnText1"
shipped=$root/usr/share/VarnixMaster
mkdir "$work/next"
tar -C "$work/next" -xzf "$shipped/files.tar.gz"
echo next >"$work/next/next.bmp"
echo next >"$work/next/Orvalis.bmp"
echo next >"$work/next/Sample/PtrnText2"
iconv -f EUC-JP -t UTF-8 "$work/next/VarnixMaster.ini" |
  sed 's/^\(FONTNAME[01]\)=.*/\1=next,-next-/' | iconv -f UTF-8 -t EUC-JP >"$work/next.ini"
mv "$work/next.ini" "$work/next/VarnixMaster.ini"
tar -C "$work/next" -czf "$shipped/files.tar.gz" .
echo next >"$shipped/stamp"
start "$root/usr/bin/VarnixMaster"
close_all
expect "a new file is missing" [ "$(cat "$data/next.bmp")" = next ]
expect "an old file stays" [ "$(cat "$data/Orvalis.bmp")" = next ]
expect "the user's key is gone" grep -aq '^FONTNAME0=mine,-mine-$' "$data/VarnixMaster.ini"
expect "the user's folder is gone" grep -aqx 'PTRN=/mine' "$data/VarnixMaster.ini"
expect "a new value is missing" grep -aq '^FONTNAME1=next,-next-$' "$data/VarnixMaster.ini"
expect "the window size is gone" grep -aqx "$size" "$data/VarnixMaster.ini"
expect "the user's layout is gone" [ "$(cat "$data/Sample/mine.ptn")" = mine ]
expect "the user's change is gone" [ "$(cat "$data/Sample/PtrnText1")" = mine ]
if grep -aqx next "$data/Sample/PtrnText2"; then fail "a changed sample was mixed"; fi

# Waits for the launcher's message and confirms it.
messages() { xdotool search --onlyvisible --name '^VarnixMaster$' 2>/dev/null || true; }
confirm() {
  until [ -n "$(messages)" ]; do sleep 0.05; done
  press_away Return messages
}

step "a damaged shipment starts what is there"
cp "$shipped/files.tar.gz" "$work/whole.tar.gz"
echo damaged >"$shipped/files.tar.gz"
echo damaged >"$shipped/stamp"
"$root/usr/bin/VarnixMaster" 2>"$work/log" &
started+=($!)
confirm
close_all
expect "no word of it" grep -q '更新できないまま' "$work/log"
mv "$work/whole.tar.gz" "$shipped/files.tar.gz"

step "a folder that cannot be made"
without_folder() { XDG_DATA_HOME=/dev/null/no "$root/usr/bin/VarnixMaster" 2>"$work/log"; }
if (unset DISPLAY && without_folder); then fail "it started"; fi
expect "no word of it" grep -q '作業フォルダー' "$work/log"
without_folder &
launcher=$!
confirm
if wait "$launcher"; then fail "it started"; fi
expect "no reason" grep -q 'mkdir' "$work/log"

step "the portable archive, also moved"
mkdir "$work/unpacked here"
tar -C "$work/unpacked here" -xzf "$portable"
place="$work/unpacked here/$(ls "$work/unpacked here")"
start "$place/VarnixMaster"
close_all
mv "$place" "$work/moved"
start "$work/moved/VarnixMaster"
close_all
expect "the moved sample names another folder" grep -aq \
  "^PROJECT=WaterWorks,$work/moved/program/Sample$" "$work/moved/program/VarnixMaster.ini"
expect "the moved sample fails its check" \
  "$work/moved/bin/varnixtool" check "$work/moved/program/Sample/WaterWorks.prj" >/dev/null
echo "done"
