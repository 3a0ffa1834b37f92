"""One civil servant's month in Python: March 2024, index 420, full time.

The figures are those of examples/mois_agent_indiciaire.json. Install the module first
(`pip install --no-build-isolation .` from the clone), then: python3 examples/mois_python.py
"""
import orvalis

moteur = orvalis.MethodeCalculG_Nouv()
moteur.gPeriodeEncours = "01/03/2024"
moteur.on_message = print

# The reference tables, as lists of dicts: one dict per row.
moteur.gRsConstantesFixes = [
    {"Point": 4.92278, "PlafSecu": 3864, "SmicHor": 11.65, "HrsMois": 151.67,
     "IndMinRemuneration": 366, "IndResid": 3, "IndInform": 0, "IndFndSol": 0,
     "TxSalaire1": 4.25, "TxSalaire2": 8.5},
]
moteur.gRsConstantes = [
    {"IdConstante": 11, "CodeConstante": "TXINDRES", "Valeur": 3, "TauxMontant": "T"},
    {"IdConstante": 21, "CodeConstante": "PARTTRANSP", "Valeur": 43.2, "TauxMontant": "M"},
]
moteur.gRsTaux = [
    {"IdTaux": 1, "IdOrganisme": 3, "CodeTaux": "CNRACL", "PartSalariale": 11.1, "PartPatronale": 30.65},
    {"IdTaux": 2, "IdOrganisme": 4, "CodeTaux": "RAFP", "PartSalariale": 5, "PartPatronale": 5},
    {"IdTaux": 3, "IdOrganisme": 5, "CodeTaux": "URSDCSG", "PartSalariale": 6.8, "PartPatronale": 0},
]

salarie = orvalis.VarCalculSalarie(
    lIdSalarie=1042, sMatricule="000142", sTypeModele="INDTIT", sCodeCategorie="C",
    bRegineFonctionnaire=True, iEnfant_ACharge=2, iZoneResid=1,
    sDateDebut="01/09/2015", sOccupationPoste="C", iTypeCalculHeure=1,
    dHeuresHebdo=35, dHeuresMois=151.67, dDureeHebdoLegale=35, dTauxPoste=100,
    sDateChangementHeures="01/09/2015", sDateChangementIndice="01/01/2023",
    sDateMajIndiceReglementaire="01/01/2100", dIndiceMajoreM=420, dIndiceMajoreA=420,
    bCotise_URSSAF=True)

for preparation in ("COEFFICIENT_INDICE", "COEFFICIENT_TRAITEMENT", "NBRE_JOUR_PRESENCE"):
    assert moteur.Appel_Methode_Preparation_Calcul_General(preparation, salarie)

# The month's totals as the pay run has them when the contributions are calculated.
moteur.gRsCumuls = [
    {"Idcumul": 4, "CodeCumul": "ASSCNRACL", "PartSalariale": 2067.56, "PartPatronale": 0},
    {"Idcumul": 5, "CodeCumul": "ASSRAFP", "PartSalariale": 120, "PartPatronale": 0},
    {"Idcumul": 6, "CodeCumul": "ASSCSG", "PartSalariale": 2149.28, "PartPatronale": 0},
]

lignes = [
    ("MONTANT FIXE", dict(lIdRubrique=40, sCodeRubrique="PARTTRANSP", sValeurBase="UNE CONSTANTE",
                          lIdValeurBase=21)),
    ("BASE x TAUX", dict(lIdRubrique=200, sCodeRubrique="CNRACL", sValeurBase="BASE CNRACL", lIdTaux=1,
                         sValeurTauxSalarial="TAUX DE COTISATION DE L'ORGANISME",
                         sValeurTauxPatronal="TAUX DE COTISATION DE L'ORGANISME")),
    ("BASE x TAUX", dict(lIdRubrique=210, sCodeRubrique="RAFP", sValeurBase="BASE RAFP", lIdTaux=2,
                         sValeurTauxSalarial="TAUX DE COTISATION DE L'ORGANISME",
                         sValeurTauxPatronal="TAUX DE COTISATION DE L'ORGANISME")),
    ("BASE x TAUX", dict(lIdRubrique=300, sCodeRubrique="URSDCSG", sValeurBase="BASE CSG/RDS", lIdTaux=3,
                         sValeurTauxSalarial="TAUX DE COTISATION DE L'ORGANISME")),
]
for methode, champs in lignes:
    rubrique = orvalis.SalarieCalculRubrique(**champs)
    if not moteur.Appel_Methode_Calcul_General(methode, salarie, rubrique):
        raise SystemExit(f"{rubrique.sCodeRubrique}: the engine met a fault")
    salarial = moteur.Arrondi(rubrique.dMontantSalarial, 2)
    patronal = moteur.Arrondi(rubrique.dMontantPatronal, 2)
    print(f"{rubrique.sCodeRubrique:<10} base {rubrique.dBase:>8.2f}  "
          f"employee {salarial:>7.2f}  employer {patronal:>7.2f}")
