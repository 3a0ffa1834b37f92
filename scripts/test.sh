#!/usr/bin/env bash
# Builds the engine, its tools and tests, and passes every test twice: once as built for
# the hosts, once under AddressSanitizer and UndefinedBehaviorSanitizer, where any report
# fails the run. That second build also counts coverage: the run fails when the engine's
# lines or branches fall below their floor (scripts/coverage.sh). The tests of several threads also run under ThreadSanitizer
# (scripts/tsan.sh). The Python module is built on the first build and its tests run with
# pytest. Both runs replay the fuzz inputs kept in fuzz/. The store's tests run over SQLite
# and over a throw-away PostgreSQL server that the test program starts in a temporary folder
# and removes when it ends (scripts/serveur_pg_test.sh; skipped, saying so, without
# PostgreSQL). Then each fuzz target runs for a short time under the sanitizers
# (scripts/fuzz.sh; skipped without clang++).
#
#   ORVALIS_FUZZ_SECONDS=N  seconds per fuzz target (default 25; 0 skips the fuzz step)
#   ORVALIS_TSAN=0          skips the ThreadSanitizer step
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/setup.sh

# Each step says when it starts, in minutes:seconds since the run began.
etape() { printf 'test: %s at %d:%02d\n' "$1" $((SECONDS / 60)) $((SECONDS % 60)); }
jobs=$(nproc 2>/dev/null || echo 2)

# A compiler cache, when the machine has one, makes a second run cost only what changed.
cache=()
if command -v ccache >/dev/null 2>&1; then
  export CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=1
  cache=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache)
fi

etape "the build for the hosts"
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo "${cache[@]}"
cmake --build build -j"$jobs"
ctest --test-dir build --output-on-failure -j"$jobs"

# The Python module, linked with the library just built, installed as a host installs it in
# a fresh environment over Debian's interpreter (which carries pybind11 and pytest).
etape "the Python module"
venv=build/python-venv
/usr/bin/python3 -m venv --clear --system-site-packages "$venv"
ORVALIS_BUILD_DIR="$PWD/build" CMAKE_BUILD_PARALLEL_LEVEL="$jobs" \
  "$venv/bin/pip" install --no-build-isolation --no-deps --no-index --quiet .
pytest_status=0
"$venv/bin/python" -m pytest -v -rfE bindings/python/tests || pytest_status=$?
case $pytest_status in
  0) ;;
  5) echo "pytest: no Python test was collected" >&2; exit 1 ;;
  *) echo "pytest: status $pytest_status" >&2; exit 1 ;;
esac

etape "the sanitizer and coverage build"
cmake -S . -B build-sanitize -DCMAKE_BUILD_TYPE=Debug -DORVALIS_SANITIZE=ON -DORVALIS_COVERAGE=ON \
  -DORVALIS_BENCHMARKS=OFF "${cache[@]}"
cmake --build build-sanitize -j"$jobs"
find build-sanitize -name '*.gcda' -delete
export ASAN_OPTIONS=detect_leaks=1:halt_on_error=1 UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
# Coverage counts the tests that assert results; the fuzz replays run after the count.
ctest --test-dir build-sanitize --output-on-failure -j"$jobs" -E '^fuzz\.'
./scripts/coverage.sh build-sanitize
ctest --test-dir build-sanitize --output-on-failure -j"$jobs" -R '^fuzz\.'
unset ASAN_OPTIONS UBSAN_OPTIONS

# The threads' tests once more under ThreadSanitizer (a third build of the engine).
if [ "${ORVALIS_TSAN:-1}" != 0 ]; then
  etape "the ThreadSanitizer build"
  ./scripts/tsan.sh "${cache[@]}"
fi

if [ "${ORVALIS_FUZZ_SECONDS:-25}" != 0 ]; then
  etape "the fuzz step"
  ./scripts/fuzz.sh
fi
etape "done"
