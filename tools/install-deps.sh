#!/usr/bin/env bash
# SPDX-License-Identifier: LGPL-2.1-or-later
# Installs the Debian packages a build needs, only those that are missing.
# Usage: tools/install-deps.sh [base|fuzz|bench|docs]...
set -euo pipefail

base=(build-essential cmake pkg-config ccache python3 poppler-utils
      qtbase5-dev qtdeclarative5-dev libqt5svg5-dev libqwt-qt5-dev
      qttools5-dev qttools5-dev-tools
      qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-layouts
      qml-module-qtquick-controls2 qml-module-qtqml-models2)
fuzz=(clang libclang-rt-14-dev)
bench=(libbenchmark-dev libqcustomplot-dev libqt5charts5-dev)
docs=(doxygen)

wanted=()
for set in "${@:-base}"; do
    case "$set" in
        base) wanted+=("${base[@]}") ;;
        fuzz) wanted+=("${base[@]}" "${fuzz[@]}") ;;
        bench) wanted+=("${base[@]}" "${bench[@]}") ;;
        docs) wanted+=("${base[@]}" "${docs[@]}") ;;
        *) echo "unknown package set: $set" >&2; exit 2 ;;
    esac
done

missing=()
for pkg in "${wanted[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$pkg")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
SUDO=""
if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -q
$SUDO apt-get install -y -q --no-install-recommends "${missing[@]}"
