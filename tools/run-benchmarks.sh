#!/usr/bin/env bash
# SPDX-License-Identifier: LGPL-2.1-or-later
# Runs every benchmark program in <build>/benchmarks, one after the other.
# UTILS_BENCH_LIVE_SECONDS sets the length of each live-chart run (default 10 s;
# bench_livechart then takes about four minutes).
set -euo pipefail
build=${1:-build-bench}
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
for program in "$build"/benchmarks/*; do
    [ -x "$program" ] || continue
    name=$(basename "$program")
    echo "== $name"
    case "$name" in
        bench_livechart) "$program" --seconds "${UTILS_BENCH_LIVE_SECONDS:-10}" ;;
        *) "$program" ;;
    esac
done
