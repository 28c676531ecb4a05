#!/usr/bin/env bash
# Runs every benchmark against a generated calendar and prints their figures.
# Usage: run-benchmarks.sh [BUILD_DIR]   (KB_GEN_ICS overrides the path of the calendar generator)
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
# The generator of benchmark calendars (needs python3-dateutil), beside the repository.
gen_ics=${KB_GEN_ICS:-../shared/tools/gen_ics.py}
data="$build/bench-data"

# 100,000 events and 5,000 tasks, about 73 MB; made once per build folder.
calendar="$data/bench100k.ics"
if [[ ! -s "$calendar" ]]; then
    mkdir -p "$data"
    /usr/bin/python3 "$gen_ics" -n 100000 -o "$calendar.part"
    mv "$calendar.part" "$calendar"
fi

# The iCalendar readers over the whole calendar: events per second and peak memory.
echo "== bench_ical_parse"
"$build/bin/bench_ical_parse" "$calendar" 5

# The whole process of reading the calendar and printing it as JSON.
echo "== kbcal ics parse FILE --json >/dev/null"
if command -v hyperfine > /dev/null; then
    hyperfine --warmup 1 --runs 5 "$build/bin/kbcal ics parse $calendar --json >/dev/null"
else
    times=()
    for _ in 1 2 3 4 5; do
        start=$(date +%s.%N)
        "$build/bin/kbcal" ics parse "$calendar" --json > /dev/null
        times+=("$(echo "$(date +%s.%N) - $start" | bc)")
    done
    printf '%s\n' "${times[@]}" | sort -n | sed -n '3s/^/median of 5 runs (s): /p'
fi

# Recurrence expansion: the recurring masters of the calendar over a week and a month.
echo "== bench_expansion"
"$build/bin/bench_expansion" --ics "$calendar"

# Event storage: a redraw's read of a mid-period week and month through the event repository
# beside the bare range statement, and the import of the calendar (in process and as a whole
# `kbcal import`), all over a database filled from the generated file.
echo "== bench_event_storage"
QT_LOGGING_RULES="*.info=false" "$build/bin/bench_event_storage" --ics "$calendar" --kbcal "$build/bin/kbcal" --repeat 30

# Filter rules over 100,000 events, and what a span shows (query, expansion, rules).
echo "== bench_filterrules"
"$build/bin/bench_filterrules"
echo "== bench_spanquery"
QT_LOGGING_RULES="*.info=false" "$build/bin/bench_spanquery" "$calendar"

# The day/week view: the first visit of a week and steps to the next one, offscreen.
echo "== bench_timeline"
QT_LOGGING_RULES="*.info=false" "$build/bin/bench_timeline" "$calendar"

# The whole main window over the calendar: first paint, then steps between weeks and months, both
# with the neighbours prepared and cold after a change.
echo "== bench_navigation"
QT_LOGGING_RULES="*.info=false" "$build/bin/bench_navigation" --ics "$calendar"
