#!/usr/bin/env bash
# Instruction counts of the benchmarks under callgrind: a short and a long run of each, then
# the steady count per call of the engine's entries and lookups (callgrind_par_appel.py):
# figures that hold whatever the load of the machine.
#   scripts/callgrind_bench.sh BUILD_DIR OUT_PREFIX
set -euo pipefail
bench="$1/orvalis_bench"
out="$2"
ici="$(dirname "$0")"
run() {  # name filter function...
  local nom="$1" filtre="$2"
  shift 2
  for duree in 0.01 0.05; do
    valgrind --tool=callgrind --callgrind-out-file="$out-$nom-$duree.out" \
      "$bench" --benchmark_filter="$filtre" --benchmark_min_time=$duree >/dev/null 2>&1
  done
  "$ici/callgrind_par_appel.py" "$out-$nom-0.01.out" "$out-$nom-0.05.out" "$@"
}
run ligne 'BM_LigneBaseTaux' Appel_Methode_Calcul_General
run preparations 'BM_PreparationsDuMois' Appel_Methode_Preparation_Calcul_General
run bulletin 'BM_BulletinFonctionnaire' Appel_Methode_Calcul_General Appel_Methode_Preparation_Calcul_General
run constantes 'BM_dRechercheValeur_Constantes<kMemoire>/1000' MoteurCalcul::dRechercheValeur_Constantes
run constantes-balayage 'BM_dRechercheValeur_Constantes<kBalayage>/1000' MoteurCalcul::dRechercheValeur_Constantes
run taux 'BM_dRechercheValeurTaux<kMemoire>/1000' MoteurCalcul::dRechercheValeurTaux
run cumuls 'BM_dRechercheValeurCumul<kMemoire>/1000' MoteurCalcul::dRechercheValeurCumul
run arrondi 'BM_Arrondi2' 'orvalis::Arrondi('

# The month of 1,000 agents through the command line on one thread: the store's read and
# write beside the computing (instructions of each, the whole run above them).
commune="$out-commune.db"
rm -f "$commune"
"$1/orvalis" demo "$commune" --agents 1000 >/dev/null
valgrind --tool=callgrind --callgrind-out-file="$out-mois.out" \
  "$1/orvalis" paie "$commune" 2024-03 --jobs 1 >/dev/null 2>&1
annote="$(callgrind_annotate --inclusive=yes "$out-mois.out")"
grep -m1 "PROGRAM TOTALS" <<<"$annote"
grep -E "^ *[0-9,]+ \( *[0-9.]+%\)  [^ ]*\.cc:.*(ChargeMois|paie::CalculeMois|EcritMois)\(" <<<"$annote" |
  sed -E 's/ +\[.*//; s/\((std|orvalis)::.*//' | awk -F'::' '!vu[$NF]++'
