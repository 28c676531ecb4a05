#!/usr/bin/env bash
# Builds the libFuzzer targets with clang and the sanitizers and runs each for FUZZ_SECONDS
# (default 600). Seeds come from fuzz/corpus/NAME, a dictionary from fuzz/NAME.dict when there is
# one; new inputs go to build-fuzz/corpus/NAME and crashing inputs to build-fuzz/artifacts/NAME.
# Usage: run-fuzzers.sh [NAME...]
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${FUZZ_SECONDS:-600}
build=build-fuzz
if [ ! -f "$build/build.ninja" ]; then
    CC=clang CXX=clang++ cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKB_FUZZ=ON
fi

if [ $# -gt 0 ]; then
    targets=("$@")
else
    mapfile -t targets < <(sed -n 's/^kb_add_fuzzer(\([a-z_0-9]*\).*/\1/p' fuzz/CMakeLists.txt)
fi
if [ ${#targets[@]} -eq 0 ]; then
    echo "No fuzz targets."
    exit 0
fi
cmake --build "$build" --target "${targets[@]}"

# Undefined behaviour must stop the run like a crash, or libFuzzer would not keep the input.
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-halt_on_error=1:print_stacktrace=1}

status=0
for t in "${targets[@]}"; do
    mkdir -p "$build/corpus/$t" "$build/artifacts/$t"
    seeds=()
    [ -d "fuzz/corpus/$t" ] && seeds=("fuzz/corpus/$t")
    dict=()
    [ -f "fuzz/$t.dict" ] && dict=("-dict=fuzz/$t.dict")
    echo "== $t for ${seconds}s"
    if ! "$build/bin/$t" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=1048576 \
        -artifact_prefix="$build/artifacts/$t/" -print_final_stats=1 "${dict[@]}" "$build/corpus/$t" "${seeds[@]}"; then
        echo "== $t found a failure; see $build/artifacts/$t/"
        status=1
    fi
done
exit $status
