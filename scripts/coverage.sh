#!/usr/bin/env bash
# Line and branch coverage of the tests that assert results (unit tests and golden cases; not
# the fuzz replays, which only check that nothing breaks), per subsystem, then in total. The
# HTML report goes to BUILD/coverage/index.html.
# Branches: those of thrown exceptions and those the compiler cannot reach are left out.
# Then the floors: the engine (its seven subsystems together) must keep at least
# ORVALIS_FLOOR_LINES % of its lines and ORVALIS_FLOOR_BRANCHES % of its branches, and each
# of the seven ORVALIS_FLOOR_SUBSYSTEM_LINES % and ORVALIS_FLOOR_SUBSYSTEM_BRANCHES %, or the
# script fails (defaults below; docs/robustness.md says where they come from).
#
#   scripts/coverage.sh        builds build-coverage/ with gcov, runs the tests, reports
#   scripts/coverage.sh BUILD  reports on BUILD, a build made with -DORVALIS_COVERAGE=ON whose
#                              tests have just run (scripts/test.sh passes its sanitizer build)
set -euo pipefail
cd "$(dirname "$0")/.."
jobs=$(nproc 2>/dev/null || echo 2)

if [ $# -ge 1 ]; then
  build=$1
  if ! find "$build" -name '*.gcda' -print -quit 2>/dev/null | grep -q .; then
    echo "coverage: $build holds no coverage counts (built with -DORVALIS_COVERAGE=ON, tests run?)" >&2
    exit 2
  fi
else
  build=build-coverage
  lanceur=()
  command -v ccache >/dev/null 2>&1 && lanceur=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Debug -DORVALIS_COVERAGE=ON \
    -DORVALIS_BENCHMARKS=OFF "${lanceur[@]}" >/dev/null
  cmake --build "$build" -j"$jobs"
  find "$build" -name '*.gcda' -delete
  ctest --test-dir "$build" -j"$jobs" --output-on-failure -E '^fuzz\.' >/dev/null
fi

options=(--root . --object-directory "$build" --exclude-directories '.*/fuzz$' --exclude '.*_test\.cc$'
         --exclude '.*_test_.*\.h$' --exclude '.*test_util.*' --exclude '.*test_outils.*'
         --exclude 'fuzz/' --exclude 'tests/' --exclude 'benchmarks/'
         --exclude-throw-branches --exclude-unreachable-branches)
mkdir -p "$build/coverage"
gcovr "${options[@]}" -j"$jobs" --json "$build/coverage/coverage.json" \
  --html-details "$build/coverage/index.html" >/dev/null

# One line per subsystem: lines and branches covered of those instrumented.
python3 - "$build/coverage/coverage.json" "${ORVALIS_FLOOR_LINES:-98.0}" \
  "${ORVALIS_FLOOR_BRANCHES:-89.0}" "${ORVALIS_FLOOR_SUBSYSTEM_LINES:-95.0}" \
  "${ORVALIS_FLOOR_SUBSYSTEM_BRANCHES:-85.0}" <<'PY'
import json, sys
data = json.load(open(sys.argv[1]))
floor_lines, floor_branches, sub_lines, sub_branches = map(float, sys.argv[2:6])
ENGINE = {"frame", "generic", "period", "salary", "absences", "contributions", "historic"}
tot = {}
for f in data["files"]:
    sub = f["file"].split("/")[0] if "/" in f["file"] else "."
    l = tot.setdefault(sub, [0, 0, 0, 0])
    for line in f["lines"]:
        if line.get("gcovr/noncode"):
            continue
        l[0] += 1
        l[1] += line["count"] > 0
        for b in line.get("branches", []):
            l[2] += 1
            l[3] += b["count"] > 0
def pc(a, b):
    return f"{100.0 * a / b:5.1f}%" if b else "    -"
print(f"{'subsystem':<16}{'lines':>20}{'branches':>22}")
all_ = [0, 0, 0, 0]
for sub in sorted(tot):
    l = tot[sub]
    all_ = [x + y for x, y in zip(all_, l)]
    print(f"{sub:<16}{l[1]:>7}/{l[0]:<6} {pc(l[1], l[0])}{l[3]:>8}/{l[2]:<6} {pc(l[3], l[2])}")
print(f"{'total':<16}{all_[1]:>7}/{all_[0]:<6} {pc(all_[1], all_[0])}{all_[3]:>8}/{all_[2]:<6} {pc(all_[3], all_[2])}")
eng = [0, 0, 0, 0]
for sub in ENGINE & tot.keys():
    eng = [x + y for x, y in zip(eng, tot[sub])]
print(f"{'engine':<16}{eng[1]:>7}/{eng[0]:<6} {pc(eng[1], eng[0])}{eng[3]:>8}/{eng[2]:<6} {pc(eng[3], eng[2])}")
def pct(a, b):
    return 100.0 * a / b if b else 0.0
below = []
if pct(eng[1], eng[0]) < floor_lines or pct(eng[3], eng[2]) < floor_branches:
    below.append(f"the engine has {pct(eng[1], eng[0]):.1f}% of lines and {pct(eng[3], eng[2]):.1f}% "
                 f"of branches, its floor {floor_lines}% and {floor_branches}%")
for sub in sorted(ENGINE):
    l = tot.get(sub, [0, 0, 0, 0])
    if pct(l[1], l[0]) < sub_lines or pct(l[3], l[2]) < sub_branches:
        below.append(f"{sub}/ has {pct(l[1], l[0]):.1f}% of lines and {pct(l[3], l[2]):.1f}% of "
                     f"branches, the floor of each subsystem {sub_lines}% and {sub_branches}%")
if below:
    for b in below:
        print(f"coverage: below the floor: {b}", file=sys.stderr)
    sys.exit(1)
print(f"coverage: the engine keeps its floor ({floor_lines}% of lines, {floor_branches}% of "
      f"branches; each subsystem {sub_lines}% and {sub_branches}%)")
PY
