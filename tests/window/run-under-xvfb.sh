#!/usr/bin/env bash
# Runs a command on a display of its own, with a window manager and a session bus.
set -euo pipefail
export GDK_BACKEND=x11 GTK_THEME=${VARNIX_THEME:-Adwaita} LC_ALL=C.UTF-8 NO_AT_BRIDGE=1 GSETTINGS_BACKEND=memory
export GTK_MODULES= GTK_IM_MODULE=gtk-im-context-simple
here=$(cd "$(dirname "$0")" && pwd)
export LSAN_OPTIONS="suppressions=$here/../lsan.supp:print_suppressions=0${LSAN_OPTIONS:+:$LSAN_OPTIONS}"

[ $# -gt 0 ] || {
  echo "usage: run-under-xvfb.sh COMMAND [ARGUMENT...]" >&2
  exit 2
}
work=$(mktemp -d)
started=()
finish() {
  for ((i = ${#started[@]} - 1; i >= 0; i--)); do
    kill "${started[i]}" 2>/dev/null || true
    wait "${started[i]}" 2>/dev/null || true
  done
  rm -rf "$work"
}
trap finish EXIT
trap 'exit 143' TERM
trap 'exit 130' INT

# until_true PID COMMAND...: waits for the command to succeed while the process lives.
until_true() {
  local pid=$1
  shift
  until "$@" >/dev/null 2>&1; do
    kill -0 "$pid" 2>/dev/null || {
      echo "the display or its window manager did not start:" >&2
      cat "$work/log" >&2
      exit 1
    }
    sleep 0.02
  done
}

# The server itself takes the next free number, so displays that start at once do not meet. It repeats
# no key: where the machine is busy, a key pressed and let go would count as held down.
Xvfb -r -displayfd 3 -screen 0 "${VARNIX_SCREEN:-1600x1200}x24" -nolisten tcp -noreset 3>"$work/display" >"$work/log" 2>&1 &
started+=($!)
until_true $! grep -q . "$work/display"
DISPLAY=:$(cat "$work/display")
export DISPLAY
openbox --sm-disable >"$work/log" 2>&1 &
started+=($!)
until_true $! xdotool get_num_desktops

status=0
dbus-run-session -- "$@" || status=$?
exit "$status"
