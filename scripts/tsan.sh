#!/usr/bin/env bash
# The tests of several threads under ThreadSanitizer, where any report fails the run: two
# engines paying two employees at once, and the pay run's workers writing what one thread
# writes. Extra arguments go to cmake (scripts/test.sh passes its compiler cache).
#
#   scripts/tsan.sh [-DCMAKE_CXX_COMPILER_LAUNCHER=ccache ...]
set -euo pipefail
cd "$(dirname "$0")/.."
jobs=$(nproc 2>/dev/null || echo 2)
# Optimised as the hosts build it, without debug tables, which only slow the build here.
cmake -S . -B build-tsan -DCMAKE_BUILD_TYPE= -DCMAKE_CXX_FLAGS="-O2 -DNDEBUG" -DORVALIS_TSAN=ON -DORVALIS_BENCHMARKS=OFF "$@"
cmake --build build-tsan -j"$jobs" --target orvalis_threads_tests
TSAN_OPTIONS=halt_on_error=1 ./build-tsan/orvalis_threads_tests --gtest_brief=1
