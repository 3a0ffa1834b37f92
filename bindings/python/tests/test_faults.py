"""A fault in an entry gives False, as in C++; a misuse of the module raises with its message."""
import pytest

import orvalis


def test_a_missing_source_makes_the_entry_give_false(moteur, salarie, cotisation):
    moteur.gRsTaux = None
    ligne = cotisation("CNRACL", "BASE CNRACL", 1)
    assert moteur.Appel_Methode_Calcul_General("BASE x TAUX", salarie, ligne) is False


def test_a_rate_that_is_not_a_number_makes_the_entry_give_false(moteur, salarie, cotisation):
    moteur.gRsTaux = [{"IdTaux": 1, "CodeTaux": "CNRACL", "PartSalariale": "onze", "PartPatronale": 30.65}]
    ligne = cotisation("CNRACL", "BASE CNRACL", 1)
    assert moteur.Appel_Methode_Calcul_General("BASE x TAUX", salarie, ligne) is False
    # The engine stays usable: the same line with a rate that reads gives its amount.
    moteur.gRsTaux = [{"IdTaux": 1, "CodeTaux": "CNRACL", "PartSalariale": 11.1, "PartPatronale": 30.65}]
    ligne = cotisation("CNRACL", "BASE CNRACL", 1)
    assert moteur.Appel_Methode_Calcul_General("BASE x TAUX", salarie, ligne) is True
    assert moteur.Arrondi(ligne.dMontantSalarial, 2) == 229.5  # 2067.56 x 11.1 % = 229.49916


def test_a_fault_of_a_direct_call_raises_fault(moteur):
    moteur.gRsTaux = None
    with pytest.raises(orvalis.Fault):
        moteur.dRechercheValeurTaux("CNRACL")
    assert issubclass(orvalis.Fault, orvalis.Error)


def test_misuse_of_a_call_raises_with_the_message(moteur, salarie):
    with pytest.raises(orvalis.Error, match="call: unknown operation 'Arrondir'"):
        moteur.call("Arrondir", 1.0, 2)
    with pytest.raises(AttributeError, match="'MethodeCalculG_Nouv' object has no attribute 'Arrondir'"):
        moteur.Arrondir
    with pytest.raises(orvalis.Error, match=r"takes 2 arguments, got 1"):
        moteur.Arrondi(229.49916)
    with pytest.raises(orvalis.Error, match=r"args\[1\]: "):
        moteur.Arrondi(229.49916, 40000)  # the places are a 16-bit integer
    with pytest.raises(orvalis.Error, match=r"args\[0\]: "):
        moteur.Arrondi("229.49916", 2)
    with pytest.raises(orvalis.Error, match=r"args\[1\]: pass the record itself"):
        moteur.call("Appel_Methode_Preparation_Calcul_General", "NBRE_JOUR_PRESENCE", "$salarie")
    with pytest.raises(TypeError):
        moteur.Arrondi(object(), 2)
    with pytest.raises(TypeError):
        moteur.Appel_Methode_Calcul_General("BASE x TAUX", salarie, None)
