#!/usr/bin/env bash
# Runs every benchmark against generated calendars and prints their figures.
set -euo pipefail
build=${1:-build}
# The generator of benchmark calendars (python3-dateutil needed).
gen_ics=${KB_GEN_ICS:-/work/shared/tools/gen_ics.py}
data="$build/bench-data"

# Recurrence expansion: the recurring masters of the 100,000-event calendar over a week and a month.
calendar="$data/bench100k.ics"
if [[ ! -s "$calendar" ]]; then
    mkdir -p "$data"
    /usr/bin/python3 "$gen_ics" -n 100000 -o "$calendar.part"
    mv "$calendar.part" "$calendar"
fi
"$build/bin/bench_expansion" --ics "$calendar"

# Event storage: a redraw's read of a mid-period week and month through the event repository
# beside the bare range statement, and the import of the 100,000-event calendar (in process and
# as a whole `kbcal import`), all over a database filled from the generated file.
ics="$data/bench100k.ics"
if [[ ! -s "$ics" ]]; then
    mkdir -p "$data"
    /usr/bin/python3 "$gen_ics" -n 100000 -o "$ics.part"
    mv "$ics.part" "$ics"
fi
QT_LOGGING_RULES="*.info=false" "$build/bin/bench_event_storage" --ics "$ics" --kbcal "$build/bin/kbcal" --repeat 30
