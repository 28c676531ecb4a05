#!/usr/bin/env bash
# Runs every benchmark against generated calendars and prints their figures.
set -euo pipefail
build=${1:-build}
echo "No benchmarks yet."
