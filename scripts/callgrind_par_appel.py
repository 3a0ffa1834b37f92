#!/usr/bin/env python3
"""Instructions per call of the functions named, from callgrind output files.

    callgrind_par_appel.py court.out long.out PATTERN...

Two runs of the same benchmark, a short one and a long one: for each pattern, the functions
whose name holds it and the instructions of the calls the long run made beyond the short
one, per call. What the first calls spend once (indexes built, tables set up) cancels out:
what remains is the steady cost of one call. Instruction counts do not depend on the load of
the machine, so they compare two builds where timings can't.
"""
import re
import subprocess
import sys


def Lit(fichier):
    sortie = subprocess.run(
        ["callgrind_annotate", "--inclusive=yes", "--tree=caller", "--threshold=100", fichier],
        capture_output=True, text=True, check=True).stdout
    inclusif, appels, en_cours = {}, {}, 0
    for ligne in sortie.splitlines():
        m = re.match(r"\s*([\d,]+) \(\s*[\d.]+%\)\s+([<*])\s+\S*?:(.*?)(?: \(([\d,]+)x\))?(?: \[.*\])?$",
                     ligne)
        if not m:
            continue
        cout, sorte, nom, fois = int(m.group(1).replace(",", "")), m.group(2), m.group(3), m.group(4)
        # Caller lines come first and count the calls; the '*' line that follows is the callee.
        if sorte == "<":
            en_cours += int((fois or "0").replace(",", ""))
            continue
        # A function inlined into several files appears once per file: the outermost entry,
        # the largest, holds the others.
        if cout > inclusif.get(nom, 0):
            inclusif[nom], appels[nom] = cout, en_cours
        en_cours = 0
    return inclusif, appels


def main():
    court, long_, motifs = sys.argv[1], sys.argv[2], sys.argv[3:]
    ic, ac = Lit(court)
    il, al = Lit(long_)
    for motif in motifs:
        for nom in il:
            if motif in nom and al.get(nom, 0) > ac.get(nom, 0):
                n = al[nom] - ac.get(nom, 0)
                ir = il[nom] - ic.get(nom, 0)
                print(f"{nom.split('(')[0]}: {ir} Ir over {n} calls = {ir / n:.0f} Ir per call")


if __name__ == "__main__":
    main()
