#!/usr/bin/env bash
# Runs every benchmark against generated calendars and prints their figures.
set -euo pipefail
build=${1:-build}
# The generator of benchmark calendars (python3-dateutil needed).
gen_ics=${KB_GEN_ICS:-/work/shared/tools/gen_ics.py}
data="$build/bench-data"

# Recurrence expansion: the recurring masters of the 100,000-event calendar over a week and a month.
rows="$data/rows100k.tsv"
if [[ ! -s "$rows" ]]; then
    mkdir -p "$data"
    /usr/bin/python3 "$gen_ics" -n 100000 --rows-out "$rows.part"
    mv "$rows.part" "$rows"
fi
"$build/bin/bench_expansion" --rows "$rows"
