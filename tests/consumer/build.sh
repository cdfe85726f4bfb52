#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs the library into an empty folder and builds and runs a host's project against it, and
# the program that the README shows.
# Usage: build.sh SOURCE-FOLDER BUILD-FOLDER COMPILER
set -euo pipefail
source=$1
build=$2
work=$build/consumer
rm -rf "$work"
mkdir -p "$work"
cmake --install "$build" --prefix "$work/installed" >"$work/install.log"
awk '/^```cpp/ { inside = 1; next } /^```/ { inside = 0 } inside' "$source/README.md" >"$work/readme.cpp"
grep -q 'int main' "$work/readme.cpp"
cmake -S "$source/tests/consumer" -B "$work/build" -G Ninja -DCMAKE_CXX_COMPILER="$3" \
    -DCMAKE_PREFIX_PATH="$work/installed" -DREADME_HOST="$work/readme.cpp" >"$work/configure.log"
cmake --build "$work/build"
"$work/build/consumer-core"
QT_QPA_PLATFORM=offscreen "$work/build/consumer"
