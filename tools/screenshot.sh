#!/usr/bin/env bash
# Takes a picture of Tessik on a screen of its own: tools/screenshot.sh SIZE SCALE OUTPUT.png [-- tessik arguments]
#
# Example: tools/screenshot.sh 1280x800 1 first-start.png -- --daten muster
# SCREENSHOT_TYPE="Text" types that into the window first. Settings and data of the user stay out of it: unless --daten
# says otherwise the picture shows a first start. Needs the Debian packages xvfb, xdotool, imagemagick; openbox if wanted.
set -euo pipefail

usage() {
  sed -n '2,4s/^# \?//p' "${BASH_SOURCE[0]}" >&2
  exit 2
}

if (($# < 3)) || [[ ! $1 =~ ^[0-9]+x[0-9]+$ ]]; then usage; fi
size=$1 scale=$2 output=$3
shift 3
if (($# > 0)); then
  [[ $1 == -- ]] || usage
  shift
fi

program=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build/release/tessik
own=$(mktemp -d)
started=()

end_all() {
  local index
  for ((index = ${#started[@]} - 1; index >= 0; --index)); do
    kill "${started[index]}" 2>/dev/null || true
    wait "${started[index]}" 2>/dev/null || true
  done
  rm -rf "$own"
}
trap end_all EXIT

# The server chooses a free display and writes its number when it is ready.
mkfifo "$own/display"
Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp 3>"$own/display" 2>"$own/xvfb.log" &
started+=($!)
read -r -t 20 number <>"$own/display" || { cat "$own/xvfb.log" >&2; exit 1; }
export DISPLAY=:$number
unset WAYLAND_DISPLAY

if command -v openbox >/dev/null; then
  # A window that opens while the window manager is still starting may never be shown.
  openbox --startup "touch $own/managed" >/dev/null 2>&1 &
  started+=($!)
  for ((i = 0; i < 100; ++i)); do [[ -e $own/managed ]] || sleep 0.1; done
fi

export XDG_CONFIG_HOME=$own/config XDG_DATA_HOME=$own/data XDG_RUNTIME_DIR=$own
QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=$scale "$program" "$@" &
tessik=$!
started+=("$tessik")

# The loading screen is a window as well; what counts is the window that is still there when things are quiet.
timeout 30 xdotool search --sync --onlyvisible --class tessik >/dev/null || {
  echo "Tessik shows no window" >&2
  exit 1
}
sleep 2
if [[ -n ${SCREENSHOT_TYPE:-} ]]; then
  xdotool type --delay 30 "$SCREENSHOT_TYPE"
  sleep 1
fi
kill -0 "$tessik" || { echo "Tessik has ended before the picture was taken" >&2; exit 1; }
import -window root "$output"
