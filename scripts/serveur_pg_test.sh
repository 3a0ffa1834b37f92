#!/usr/bin/env bash
# A throw-away PostgreSQL server for the tests: initdb and pg_ctl in a new temporary folder,
# listening on a Unix socket in that folder only (no TCP), trust for the tests and a
# password (scram) for the role orvalis_mdp. As root, the server runs as the user postgres
# (initdb and postgres refuse root).
#
#   serveur_pg_test.sh start [PID]   starts it, prints the folder (the socket's directory); with
#                                    PID, a watcher stops and removes it when PID ends
#   serveur_pg_test.sh stop FOLDER   stops it and removes the folder
#
# The tests' server does not wait for the disk (fsync off); ORVALIS_PG_DURABLE=1 keeps
# PostgreSQL's defaults (the benchmark does).
#
# Exit status 3: the PostgreSQL binaries are absent (the tests that need them are skipped).
set -euo pipefail

# ORVALIS_PG_BINDIR names the folder of initdb and pg_ctl (and nothing else is looked at).
bindir=${ORVALIS_PG_BINDIR:-$(pg_config --bindir 2>/dev/null || true)}
if [ -z "${ORVALIS_PG_BINDIR:-}" ] && [ ! -x "$bindir/initdb" ]; then
  for d in /usr/lib/postgresql/*/bin; do [ -x "$d/initdb" ] && bindir=$d; done
fi

comme=()
if [ "$(id -u)" -eq 0 ]; then comme=(runuser -u postgres --); fi

stop() {
  local dossier=$1
  case "$dossier" in /tmp/orvalis-pg.*|"${TMPDIR:-/tmp}"/orvalis-pg.*) ;; *) echo "not a test server: $dossier" >&2; exit 2 ;; esac
  if [ -f "$dossier/data/postmaster.pid" ]; then
    "${comme[@]}" "$bindir/pg_ctl" -D "$dossier/data" -m immediate -w stop >/dev/null 2>&1 || true
  fi
  rm -rf "$dossier"
}

case "${1:-}" in
  start)
    if [ ! -x "$bindir/initdb" ] || [ ! -x "$bindir/pg_ctl" ]; then
      echo "PostgreSQL binaries not found (initdb, pg_ctl): install the package postgresql" >&2
      exit 3
    fi
    dossier=$(mktemp -d "${TMPDIR:-/tmp}/orvalis-pg.XXXXXX")
    trap 'stop "$dossier"' ERR INT TERM
    if [ ${#comme[@]} -gt 0 ]; then chown postgres "$dossier"; fi
    "${comme[@]}" "$bindir/initdb" -D "$dossier/data" -U postgres -A trust -E UTF8 --locale=C \
      --no-sync >"$dossier/initdb.log" 2>&1
    # The password role first: its line wins over the trust of every other role.
    printf 'local all orvalis_mdp scram-sha-256\nlocal all all trust\n' >"$dossier/hba"
    "${comme[@]}" cp "$dossier/hba" "$dossier/data/pg_hba.conf"
    options="-c listen_addresses='' -k $dossier -c max_connections=60"
    if [ "${ORVALIS_PG_DURABLE:-0}" != 1 ]; then
      options="$options -c fsync=off -c synchronous_commit=off -c full_page_writes=off"
    fi
    "${comme[@]}" "$bindir/pg_ctl" -D "$dossier/data" -l "$dossier/server.log" -w -t 60 \
      -o "$options" start >/dev/null
    "$bindir/psql" -X -q -h "$dossier" -U postgres -d postgres -v ON_ERROR_STOP=1 \
      -c "CREATE ROLE orvalis_mdp LOGIN PASSWORD 'Sesame-7Tr3sSecret'" >/dev/null
    if [ -n "${2:-}" ]; then
      # Whatever becomes of the tests, the server goes with them.
      # In a session of its own: a signal to the tests' process group does not reach it.
      setsid "$0" veille "$2" "$dossier" </dev/null >/dev/null 2>&1 &
    fi
    trap - ERR INT TERM
    echo "$dossier"
    ;;
  stop)
    stop "${2:?the folder}"
    ;;
  veille)
    while kill -0 "$2" 2>/dev/null; do sleep 1; done
    stop "$3"
    ;;
  *)
    echo "usage: $0 start [PID] | stop FOLDER" >&2
    exit 2
    ;;
esac
