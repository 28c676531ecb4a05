#!/usr/bin/env bash
# Starts the desktop program; on a machine without a display it runs under a virtual X server.
set -euo pipefail
program=${1:?usage: run-desktop.sh PROGRAM}
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    exec "$program"
fi
echo "No display found; starting under Xvfb (xvfb-run)."
exec xvfb-run -a -s "-screen 0 1600x1000x24" "$program"
