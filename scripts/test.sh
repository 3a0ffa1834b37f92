#!/usr/bin/env bash
# Builds the engine, its tools and tests, and passes every test twice: once as built for
# the hosts, once under AddressSanitizer and UndefinedBehaviorSanitizer, where any report
# fails the run.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/setup.sh

jobs=$(nproc 2>/dev/null || echo 2)

# A compiler cache, when the machine has one, makes a second run cost only what changed.
cache=()
if command -v ccache >/dev/null 2>&1; then
  export CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=1
  cache=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache)
fi

cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo "${cache[@]}"
cmake --build build -j"$jobs"
ctest --test-dir build --output-on-failure -j"$jobs"

cmake -S . -B build-sanitize -DCMAKE_BUILD_TYPE=Debug -DORVALIS_SANITIZE=ON -DORVALIS_BENCHMARKS=OFF \
  "${cache[@]}"
cmake --build build-sanitize -j"$jobs"
ASAN_OPTIONS=detect_leaks=1:halt_on_error=1 UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 \
  ctest --test-dir build-sanitize --output-on-failure -j"$jobs"
