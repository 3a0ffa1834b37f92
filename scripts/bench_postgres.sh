#!/usr/bin/env bash
# The month of a large sample commune (100,000 agents by default) computed and written by
# `orvalis paie`: on SQLite, on PostgreSQL by one process, and on PostgreSQL by two workers at
# once. Wall time, store in and out; PostgreSQL with its durable defaults (fsync on), in a
# throw-away server on this machine (scripts/serveur_pg_test.sh). Outside ctest: several
# minutes.
#
#   scripts/bench_postgres.sh [BUILD_DIR [AGENTS [BATCH [JOBS]]]]   (build-rel, 100000, 500, 1)
#   ORVALIS=path/to/orvalis   another program than BUILD_DIR/orvalis; JOBS "" passes no --jobs
#
# JOBS is --jobs of every run: 1 by default, so that the rows compare stores and processes,
# one engine thread each.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build-rel}
agents=${2:-100000}
lot=${3:-500}
jobs=()
[ "${4-1}" = "" ] || jobs=(--jobs "${4-1}")
orvalis=${ORVALIS:-$PWD/$build/orvalis}
bindir=$(pg_config --bindir 2>/dev/null || echo /usr/lib/postgresql/15/bin)
[ -x "$bindir/psql" ] || bindir=$(ls -d /usr/lib/postgresql/*/bin | tail -1)

fichier=$(mktemp -u "${TMPDIR:-/tmp}/orvalis-bench.XXXXXX").db
dossier=$(ORVALIS_PG_DURABLE=1 scripts/serveur_pg_test.sh start $$)
trap 'scripts/serveur_pg_test.sh stop "$dossier"; rm -f "$fichier" "$fichier.out"' EXIT
adresse="host=$dossier dbname=postgres user=postgres"
psql() { "$bindir/psql" -X -q -At -h "$dossier" -U postgres -d postgres -c "$1"; }

# The wall time of a command, its output into $sortie.
sortie=$fichier.out
secondes() {
  local debut fin
  debut=$(date +%s.%N)
  "$@" >"$sortie"
  fin=$(date +%s.%N)
  echo "$fin - $debut" | bc -l
}

# ORVALIS_BENCH_COMMUNE=FILE keeps the commune made for a first run, for the next ones.
modele=${ORVALIS_BENCH_COMMUNE:-}
if [ -n "$modele" ] && [ -f "$modele" ]; then
  cp "$modele" "$fichier"
else
  echo "building the commune of $agents agents..." >&2
  "$orvalis" demo "$fichier" --agents "$agents" >/dev/null
  if [ -n "$modele" ]; then cp "$fichier" "$modele"; fi
fi
"$orvalis" copie "$fichier" "$adresse" >/dev/null
psql "VACUUM ANALYZE"

t_sqlite=$(secondes "$orvalis" paie "$fichier" 2024-03 "${jobs[@]}")
lignes=$(sed -n 's/.* employees, \([0-9]*\) lines.*/\1/p' "$sortie")
echo "SQLite, one process: $t_sqlite s" >&2

t_pg1=$(secondes "$orvalis" paie "$adresse" 2024-03 --batch "$lot" "${jobs[@]}")
echo "PostgreSQL, one process: $t_pg1 s" >&2
psql "SELECT lignes FROM calculs WHERE mois = '202403'" | grep -qx "$lignes" ||
  { echo "PostgreSQL wrote another number of lines than SQLite" >&2; exit 1; }

psql "DELETE FROM calculs WHERE mois = '202403'"
psql "VACUUM ANALYZE"
deux() {
  "$orvalis" paie "$adresse" 2024-03 --worker --batch "$lot" "${jobs[@]}" >/dev/null &
  local autre=$!
  "$orvalis" paie "$adresse" 2024-03 --worker --batch "$lot" "${jobs[@]}"
  wait "$autre"
}
t_pg2=$(secondes deux)
echo "PostgreSQL, two workers: $t_pg2 s" >&2
psql "SELECT travailleur, count(*), sum(salaries) FROM lots GROUP BY travailleur" >&2

printf '| store | agents | lines | time | lines per second | vs SQLite |\n|---|---|---|---|---|---|\n'
for x in "SQLite, one process:$t_sqlite" "PostgreSQL, one worker:$t_pg1" "PostgreSQL, two workers:$t_pg2"; do
  nom=${x%%:*}
  t=${x##*:}
  printf '| %s | %s | %s | %.1f s | %.0f | %.2f× |\n' "$nom" "$agents" "$lignes" "$t" \
    "$(echo "$lignes / $t" | bc -l)" "$(echo "$t_sqlite / $t" | bc -l)"
done
