#!/usr/bin/env bash
# Starts the designer in a program folder of the user's own, which is made on the first start and
# brought up to date after an upgrade. Unpacked from the archive, this file stands beside lib/ and the
# program folder beside it; installed, it is /usr/bin/VarnixMaster and the folder is the user's.
set -euo pipefail

fail() {
  printf 'VarnixMaster: %s\n' "$1" >&2
  exit 1
}

here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
if [ -d "$here/lib/VarnixMaster" ]; then
  prefix=$here
  folder=$here/program
else
  prefix=${here%/*}
  [ -n "${HOME:-}" ] || unset HOME
  data=${XDG_DATA_HOME:-}
  # A relative path there is to be passed over.
  case $data in /*) ;; *) data=~/.local/share ;; esac
  folder=${data%/}/VarnixMaster
fi
lib=$prefix/lib/VarnixMaster

if ! "$lib/fill-program-folder.sh" "$folder" "$prefix/share/VarnixMaster" "$folder/.shipped"; then
  [ -f "$folder/VarnixMaster.ini" ] || fail "作業フォルダーを準備できません: $folder"
  printf 'VarnixMaster: %s\n' "作業フォルダーを更新できないまま起動します: $folder" >&2
fi
# The designer takes the folder that it is called from for its own.
exec -a "$folder/VarnixMaster" "$lib/VarnixMaster" "$@"
