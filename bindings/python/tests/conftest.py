"""The civil servant of examples/mois_agent_indiciaire.json: March 2024, index 420, full time."""
import pytest

import orvalis

TAUX_ORGANISME = "TAUX DE COTISATION DE L'ORGANISME"


@pytest.fixture
def moteur():
    m = orvalis.MethodeCalculG_Nouv()
    m.gPeriodeEncours = "01/03/2024"
    m.gRsConstantesFixes = [
        {"Point": 4.92278, "PlafSecu": 3864, "SmicHor": 11.65, "HrsMois": 151.67,
         "IndMinRemuneration": 366, "IndResid": 3, "IndInform": 0, "IndFndSol": 0,
         "TxSalaire1": 4.25, "TxSalaire2": 8.5}]
    m.gRsConstantes = {
        "columns": ["IdConstante", "CodeConstante", "Valeur", "TauxMontant"],
        "rows": [[11, "TXINDRES", 3, "T"], [21, "PARTTRANSP", 43.2, "M"], [22, "FORFMOBDUR", 25, "M"]]}
    m.gRsTaux = [
        {"IdTaux": 1, "IdOrganisme": 3, "CodeTaux": "CNRACL", "PartSalariale": 11.1, "PartPatronale": 30.65},
        {"IdTaux": 2, "IdOrganisme": 4, "CodeTaux": "RAFP", "PartSalariale": 5, "PartPatronale": 5},
        {"IdTaux": 3, "IdOrganisme": 5, "CodeTaux": "URSDCSG", "PartSalariale": 6.8, "PartPatronale": 0},
        {"IdTaux": 6, "IdOrganisme": 5, "CodeTaux": "URSMALRS", "PartSalariale": 0, "PartPatronale": 9.88}]
    m.gRsCumuls = [
        {"Idcumul": 1, "CodeCumul": "BASE", "PartSalariale": 2067.56, "PartPatronale": 0},
        {"Idcumul": 2, "CodeCumul": "BRUT", "PartSalariale": 2230.76, "PartPatronale": 0},
        {"Idcumul": 4, "CodeCumul": "ASSCNRACL", "PartSalariale": 2067.56, "PartPatronale": 0},
        {"Idcumul": 5, "CodeCumul": "ASSRAFP", "PartSalariale": 120, "PartPatronale": 0},
        {"Idcumul": 6, "CodeCumul": "ASSCSG", "PartSalariale": 2149.28, "PartPatronale": 0}]
    return m


@pytest.fixture
def salarie():
    return orvalis.VarCalculSalarie(
        lIdSalarie=1042, sMatricule="000142", sTypeModele="INDTIT", sCodeCategorie="C",
        bRegineFonctionnaire=True, iEnfant_ACharge=2, iZoneResid=1,
        sDateDebut="01/09/2015", sDateFin="", sOccupationPoste="C", iTypeCalculHeure=1,
        dHeuresHebdo=35, dHeuresMois=151.67, dDureeHebdoLegale=35, dTauxPoste=100,
        sDateChangementHeures="01/09/2015", sDateChangementIndice="01/01/2023",
        sDateMajIndiceReglementaire="01/01/2100", sOccupationPosteMoisPrec="C",
        iTypeCalculHeureMoisPrec=1, dTauxPosteMoisPrec=100, dHeuresHebdoMoisPrec=35,
        dHeuresMensMoisPrec=151.67, dDureeHebdoLegaleMoisPrec=35,
        dIndiceMajoreM=420, dIndiceMajoreA=420, bCotise_URSSAF=True, bSoumisTaxeTransport=True,
        rsSituationsExceptionnelles={
            "columns": ["CodeSituationExceptionnelle", "DateDebutSituationExceptionnelle",
                        "DateFinSituationExceptionnelle", "Quotite"], "rows": []})


@pytest.fixture
def cotisation():
    """A contribution line, base times the rates of the body it is paid to."""
    return ligne_cotisation


def ligne_cotisation(code, base, id_taux, patronal=True):
    champs = dict(sCodeRubrique=code, sValeurBase=base, lIdTaux=id_taux, sValeurTauxSalarial=TAUX_ORGANISME)
    if patronal:
        champs["sValeurTauxPatronal"] = TAUX_ORGANISME
    return orvalis.SalarieCalculRubrique(**champs)
