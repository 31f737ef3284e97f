#!/usr/bin/env bash
# Runs a command on a display of its own, with a window manager and a session bus.
set -euo pipefail
export GDK_BACKEND=x11 GTK_THEME=Adwaita LC_ALL=C.UTF-8 NO_AT_BRIDGE=1 GSETTINGS_BACKEND=memory
export GTK_MODULES= GTK_IM_MODULE=gtk-im-context-simple
here=$(cd "$(dirname "$0")" && pwd)
export LSAN_OPTIONS="suppressions=$here/lsan.supp:print_suppressions=0${LSAN_OPTIONS:+:$LSAN_OPTIONS}"

if [ "${1:-}" = --inside ]; then
  shift
  # The window manager and its helpers are no part of the test and run without its checks.
  openbox --sm-disable >/dev/null 2>&1 &
  manager=$!
  trap 'kill "$manager" 2>/dev/null || true' EXIT
  until xdotool get_num_desktops >/dev/null 2>&1; do
    kill -0 "$manager" || { echo "the window manager did not start" >&2; exit 1; }
    sleep 0.02
  done
  status=0
  "$@" || status=$?
  exit "$status"
fi
exec xvfb-run -a -s "-screen 0 1600x1200x24 -nolisten tcp" dbus-run-session -- "$0" --inside "$@"
