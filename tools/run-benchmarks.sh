#!/usr/bin/env bash
# SPDX-License-Identifier: LGPL-2.1-or-later
# Runs every benchmark program in <build>/benchmarks, one after the other.
set -euo pipefail
build=${1:-build-bench}
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
for program in "$build"/benchmarks/*; do
    [ -x "$program" ] || continue
    echo "== $(basename "$program")"
    "$program"
done
