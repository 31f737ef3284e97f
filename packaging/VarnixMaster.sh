#!/usr/bin/env bash
# Starts the designer in a program folder of the user's own, which is made on the first start and
# brought up to date after an upgrade. Unpacked from the archive, this file stands beside lib/ and the
# program folder beside it; installed, it is /usr/bin/VarnixMaster and the folder is the user's.
set -euo pipefail

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

# In a window, too: nobody reads standard error of what a desktop's menu starts.
tell() { # TEXT
  printf 'VarnixMaster: %s: %s\n' "$1" "$folder" >&2
  [ -z "$reason" ] || printf '%s\n' "$reason" >&2
  local first=${reason#$'\n'}
  if [ ! -t 2 ] && [ -n "${DISPLAY:-}" ]; then
    "$lib/VarnixMaster" --tell "$1" "$folder"$'\n'"${first%%$'\n'*}" 2>/dev/null || true
  fi
}

if ! reason=$("$lib/fill-program-folder.sh" "$folder" "$prefix/share/VarnixMaster" \
  "$folder/.shipped" 2>&1); then
  if [ ! -f "$folder/VarnixMaster.ini" ]; then
    tell "作業フォルダーを準備できません"
    exit 1
  fi
  tell "作業フォルダーを更新できないまま起動します"
fi
# The designer takes the folder that it is called from for its own.
exec -a "$folder/VarnixMaster" "$lib/VarnixMaster" "$@"
