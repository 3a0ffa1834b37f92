#!/usr/bin/env bash
# A long run of one fuzz target, then the replay of every input it kept under
# AddressSanitizer; prints the row of docs/robustness.md's table of runs.
#
#   scripts/fuzz_long.sh TARGET [EXECUTIONS]     (default 10,000,000)
#
# The run itself is built with UndefinedBehaviorSanitizer only
# (build-fuzz-long/), which runs about twice the executions a second of a build with
# AddressSanitizer too. Memory errors are then looked for in the replay, under
# AddressSanitizer and UndefinedBehaviorSanitizer (build-fuzz/, as scripts/fuzz.sh builds it),
# of the whole corpus the run leaves: every input that reached code no earlier one had.
# A finding stops the script with status 1; its input is in build-fuzz-long/artefacts/.
set -euo pipefail
cd "$(dirname "$0")/.."

if [ $# -lt 1 ]; then
  echo "usage: scripts/fuzz_long.sh TARGET [EXECUTIONS]" >&2
  exit 2
fi
cible=$1
executions=${2:-10000000}
case " cas critere outils moteur magasin abi " in
  *" $cible "*) ;;
  *) echo "fuzz_long: no target '$cible' (cas critere outils moteur magasin abi)" >&2; exit 2 ;;
esac
if ! command -v clang++ >/dev/null 2>&1; then
  echo "fuzz_long: clang++ not found (scripts/setup.sh installs it)" >&2
  exit 2
fi

jobs=$(nproc 2>/dev/null || echo 2)
lanceur=()
if command -v ccache >/dev/null 2>&1; then
  export CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=1
  lanceur=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
# Runs of several targets side by side build one at a time.
mkdir -p build-fuzz-long
exec 9>build-fuzz-long/.construction
flock 9
for b in long court; do
  if [ $b = long ]; then dir=build-fuzz-long sans="undefined"; else dir=build-fuzz sans="address,undefined"; fi
  cmake -S . -B $dir -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
    -DCMAKE_C_COMPILER=clang -DORVALIS_FUZZ=ON -DORVALIS_SANITIZE=ON -DORVALIS_SANITIZERS=$sans \
    -DORVALIS_BENCHMARKS=OFF "${lanceur[@]}" >/dev/null
  cmake --build $dir -j"$jobs" --target "fuzz_$cible" >/dev/null
done
flock -u 9

travail=build-fuzz-long/travail/$cible
journal=build-fuzz-long/fuzz_$cible.log
mkdir -p "$travail" build-fuzz-long/artefacts
commit=$(git rev-parse --short HEAD 2>/dev/null || echo '?')
git diff --quiet HEAD 2>/dev/null || commit="$commit+"
debut=$(date -u '+%Y-%m-%d %H:%M')
echo "fuzz_long: $cible, $executions executions from $debut UTC (log: $journal)"
# A hang is an input that runs 30 s: some rightly take seconds (a daily-benefits period of
# 4,000 years gives one row to each of its 48,000 months), and a loaded machine stretches them.
UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 \
  "build-fuzz-long/fuzz/fuzz_$cible" -runs="$executions" -timeout=30 -rss_limit_mb=2048 \
    -print_final_stats=1 -artifact_prefix="build-fuzz-long/artefacts/$cible-" \
    "$travail" "fuzz/corpus/$cible" "fuzz/regression/$cible" >"$journal" 2>&1 || {
  tail -40 "$journal"
  echo "fuzz_long: $cible found a fault, see $journal and build-fuzz-long/artefacts/" >&2
  exit 1
}

# Every input kept, once each, under AddressSanitizer.
echo "fuzz_long: replaying $(ls "$travail" | wc -l) inputs under AddressSanitizer"
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 \
  "build-fuzz/fuzz/fuzz_$cible" -runs=0 -timeout=30 -rss_limit_mb=2048 \
    -artifact_prefix="build-fuzz-long/artefacts/$cible-asan-" "$travail" \
    >"build-fuzz-long/rejeu_$cible.log" 2>&1 || {
  tail -40 "build-fuzz-long/rejeu_$cible.log"
  echo "fuzz_long: the replay of $cible under AddressSanitizer found a fault" >&2
  exit 1
}

stat() { grep -E "^stat::$1:" "$journal" | awk '{print $2}'; }
corpus=$(ls "$travail" | wc -l)
printf '| %s | %s | %s | %s | %s | %s |\n' "$cible" "$(stat number_of_executed_units)" \
  "$(stat average_exec_per_sec)" "$corpus" "$debut" "$commit"
