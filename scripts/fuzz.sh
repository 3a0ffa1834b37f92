#!/usr/bin/env bash
# Builds the libFuzzer targets with clang under AddressSanitizer and UndefinedBehaviorSanitizer
# and runs each for a short time, from its seeds and kept findings, as many side by side as
# the machine has cores. A crash, a sanitizer report, a leak or a hang fails the run; the
# input that did it is left in build-fuzz/artefacts/ (minimise it with `-minimize_crash=1`
# and keep it in fuzz/regression/NAME/ once fixed).
#
#   ORVALIS_FUZZ_SECONDS  seconds per target (default 25)
#   ORVALIS_FUZZ_TARGETS  targets to run (default: all)
# Without clang++ it says so and does nothing.
set -euo pipefail
cd "$(dirname "$0")/.."

if ! command -v clang++ >/dev/null 2>&1; then
  echo "fuzz: clang++ not found, fuzz targets skipped (scripts/setup.sh installs it)"
  exit 0
fi

secondes=${ORVALIS_FUZZ_SECONDS:-25}
cibles=${ORVALIS_FUZZ_TARGETS:-cas critere outils moteur magasin abi}
jobs=$(nproc 2>/dev/null || echo 2)
lanceur=()
command -v ccache >/dev/null 2>&1 && lanceur=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)

cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_C_COMPILER=clang \
  -DORVALIS_FUZZ=ON -DORVALIS_SANITIZE=ON -DORVALIS_BENCHMARKS=OFF "${lanceur[@]}" >/dev/null
cibles_build=()
for c in $cibles; do cibles_build+=(--target "fuzz_$c"); done
cmake --build build-fuzz -j"$jobs" "${cibles_build[@]}"

mkdir -p build-fuzz/artefacts
# One target's run, its report in its log.
lance() {
  local c=$1
  mkdir -p "build-fuzz/travail/$c"
  ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 \
    "build-fuzz/fuzz/fuzz_$c" -max_total_time="$secondes" -timeout=30 -rss_limit_mb=2048 \
      -print_final_stats=1 -artifact_prefix="build-fuzz/artefacts/$c-" \
      "build-fuzz/travail/$c" "fuzz/corpus/$c" "fuzz/regression/$c" 2>"build-fuzz/fuzz_$c.log"
}

# The targets run side by side, as many at once as the machine has cores; a fault in any
# fails the step once the others of its batch have ended.
set -- $cibles
while [ $# -gt 0 ]; do
  lot=()
  while [ $# -gt 0 ] && [ ${#lot[@]} -lt "$jobs" ]; do lot+=("$1"); shift; done
  pids=()
  for c in "${lot[@]}"; do
    echo "fuzz: $c for ${secondes}s"
    lance "$c" &
    pids+=($!)
  done
  faute=0
  for k in "${!lot[@]}"; do
    c=${lot[$k]}
    if wait "${pids[$k]}"; then
      echo -n "fuzz: $c: "
      grep -E '^stat::(number_of_executed_units|average_exec_per_sec)' "build-fuzz/fuzz_$c.log" | tr '\n' ' '
      echo
    else
      tail -40 "build-fuzz/fuzz_$c.log"
      echo "fuzz: $c found a fault, see build-fuzz/fuzz_$c.log and build-fuzz/artefacts/"
      faute=1
    fi
  done
  [ $faute = 0 ] || exit 1
done
