"""One civil servant's month through the module, amounts checked to the cent."""
import pytest

import orvalis


def prepare(moteur, salarie):
    for nom in ("COEFFICIENT_INDICE", "COEFFICIENT_TRAITEMENT", "NBRE_JOUR_PRESENCE"):
        assert moteur.Appel_Methode_Preparation_Calcul_General(nom, salarie) is True


def test_preparations_fill_the_month(moteur, salarie):
    prepare(moteur, salarie)
    # A whole month of presence counts 30 days; full time on the index: coefficient 1.
    assert salarie.iNBJ_Presence_Total == 30
    assert salarie.iNBJ_PresenceN == 30
    assert salarie.dCoefficient_TraitementTN == 1.0


def test_cnracl(moteur, salarie, cotisation):
    prepare(moteur, salarie)
    ligne = cotisation("CNRACL", "BASE CNRACL", 1)
    assert moteur.Appel_Methode_Calcul_General("BASE x TAUX", salarie, ligne)
    assert ligne.dBase == 2067.56
    assert ligne.dTauxSalarial == 11.1
    assert ligne.dTauxPatronal == 30.65
    # 2067.56 x 11.1 % = 229.49916; 2067.56 x 30.65 % = 633.70714
    assert ligne.dMontantSalarial == pytest.approx(229.49916, abs=1e-9)
    assert ligne.dMontantPatronal == pytest.approx(633.70714, abs=1e-9)
    assert moteur.call("Arrondi", ligne.dMontantSalarial, 2) == 229.5
    assert moteur.Arrondi(ligne.dMontantPatronal, 2) == 633.71


def test_rafp_csg_and_employer_health(moteur, salarie, cotisation):
    prepare(moteur, salarie)
    rafp = cotisation("RAFP", "BASE RAFP", 2)
    csg = cotisation("URSDCSG", "BASE CSG/RDS", 3, patronal=False)
    maladie = orvalis.SalarieCalculRubrique(sCodeRubrique="URSMALRS", sValeurBase="SALAIRE BRUT", lIdTaux=6,
                                            sValeurTauxPatronal="TAUX DE COTISATION DE L'ORGANISME")
    for ligne in (rafp, csg, maladie):
        assert moteur.Appel_Methode_Calcul_General("BASE x TAUX", salarie, ligne)
    # 120 x 5 % = 6 for each part
    assert (rafp.dBase, rafp.dMontantSalarial, rafp.dMontantPatronal) == (120.0, 6.0, 6.0)
    # 2149.28 x 6.8 % = 146.15104
    assert csg.dBase == 2149.28
    assert csg.dMontantSalarial == pytest.approx(146.15104, abs=1e-9)
    assert csg.dMontantPatronal == 0.0
    # 2230.76 x 9.88 % = 220.399088, employer only
    assert maladie.dBase == 2230.76
    assert maladie.dMontantSalarial == 0.0
    assert maladie.dMontantPatronal == pytest.approx(220.399088, abs=1e-9)
    assert moteur.Arrondi(maladie.dMontantPatronal, 2) == 220.4


def test_fixed_amounts_from_a_constant_and_a_variable(moteur, salarie):
    prepare(moteur, salarie)
    transport = orvalis.SalarieCalculRubrique(sCodeRubrique="PARTTRANSP", sValeurBase="UNE CONSTANTE",
                                              lIdValeurBase=21)
    assert moteur.Appel_Methode_Calcul_General("MONTANT FIXE", salarie, transport)
    assert transport.dMontantSalarial == 43.2
    prime = orvalis.SalarieCalculRubrique(sCodeRubrique="PRIMEMENS", sValeurTauxSalarial="UNE VARIABLE SALARIE",
                                          lIdValeurTauxSalarial=501)
    variables = [{"IdVariable": 501, "CodeVariable": "PRIMEMENS", "Valeur": 120, "Dateeffet": "20240301",
                  "TauxMontant": "M"}]
    assert moteur.Appel_Methode_Calcul_General("MONTANT FIXE", salarie, prime, variables)
    assert prime.dMontantSalarial == 120.0


def test_an_unknown_method_does_nothing_and_gives_true(moteur, salarie):
    ligne = orvalis.SalarieCalculRubrique(dMontantSalarial=12.5)
    assert moteur.Appel_Methode_Calcul_General("PAS UNE METHODE", salarie, ligne) is True
    assert ligne.dMontantSalarial == 12.5
