#!/usr/bin/env bash
# SPDX-License-Identifier: LGPL-2.1-or-later
# Runs every fuzzer in <build>/fuzzers for <seconds> each, with its corpus from
# fuzz/<subsystem>/corpus/<fuzzer> when there is one. Crashes land in <build>/crashes.
set -euo pipefail
build=${1:-build-fuzz}
seconds=${2:-60}
root=$(cd "$(dirname "$0")/.." && pwd)
mkdir -p "$build/crashes"
export ASAN_OPTIONS=detect_leaks=0
export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
status=0
for fuzzer in "$build"/fuzzers/*; do
    [ -x "$fuzzer" ] || continue
    name=$(basename "$fuzzer")
    seeds=$(find "$root/fuzz" -type d -path "*/corpus/$name" | head -n 1)
    work="$build/corpus/$name"
    mkdir -p "$work"
    echo "== $name: ${seconds}s"
    if ! "$fuzzer" -max_total_time="$seconds" -artifact_prefix="$build/crashes/$name-" \
            -print_final_stats=1 "$work" ${seeds:+"$seeds"} 2>"$build/$name.log"; then
        echo "   FAILED, see $build/$name.log"; status=1
    fi
    grep -E 'stat::number_of_executed_units|stat::peak_rss_mb' "$build/$name.log" | sed 's/^/   /' || true
done
exit $status
