#!/usr/bin/env bash
# What a person sees: the program on a virtual display of the smallest size it is made for,
# started with a fresh temporary HOME, photographed whole as a PNG, then stopped.
#   tools/screenshot.sh PROGRAM [OUTPUT.png]   (SCHERMO=1280x1024 for another size, ATTESA=secs)
set -euo pipefail
programma=$(realpath "$1")
uscita=$(realpath -m "${2:-screenshot.png}")
schermo=${SCHERMO:-1024x768}
attesa=${ATTESA:-3}
casa=$(mktemp -d)
trap 'rm -rf "$casa"' EXIT

xvfb-run -a -s "-screen 0 ${schermo}x24" bash -c '
    env -u XDG_DATA_HOME -u XDG_CONFIG_HOME HOME="$1" QT_QPA_PLATFORM=xcb "$2" &
    pid=$!
    sleep "$4"
    import -window root "$3"
    kill "$pid"
    wait "$pid" 2>/dev/null || true
' _ "$casa" "$programma" "$uscita" "$attesa"
echo "$uscita"
