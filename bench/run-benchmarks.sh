#!/usr/bin/env bash
# Runs every benchmark against generated calendars and prints their figures.
# Usage: run-benchmarks.sh [BUILD_DIR]   (GEN_ICS overrides the path of the calendar generator)
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
generator=${GEN_ICS:-/work/shared/tools/gen_ics.py}

# 100,000 events and 5,000 tasks, about 73 MB; made once per build folder.
feed="$build/bench100k.ics"
if [ ! -f "$feed" ]; then
    echo "== generating $feed"
    /usr/bin/python3 "$generator" -n 100000 -o "$feed.tmp"
    mv "$feed.tmp" "$feed"
fi

echo "== iCalendar readers (bench_ical_parse)"
"$build/bin/bench_ical_parse" "$feed" 5

echo "== whole process: kbcal ics parse FILE --json >/dev/null"
if command -v hyperfine > /dev/null; then
    hyperfine --warmup 1 --runs 5 "$build/bin/kbcal ics parse $feed --json >/dev/null"
else
    times=()
    for _ in 1 2 3 4 5; do
        start=$(date +%s.%N)
        "$build/bin/kbcal" ics parse "$feed" --json > /dev/null
        times+=("$(echo "$(date +%s.%N) - $start" | bc)")
    done
    printf '%s\n' "${times[@]}" | sort -n | sed -n '3s/^/median of 5 runs (s): /p'
fi
