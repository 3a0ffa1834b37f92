"""The records: one attribute per field of the field tables, each with its type checked."""
import pytest

import orvalis


def test_fields_start_at_their_defaults():
    s = orvalis.VarCalculSalarie()
    assert s.lIdSalarie == 0 and s.iEnfant_ACharge == 0
    assert s.dIndiceMajoreM == 0.0 and s.sTypeModele == "" and s.bRegineFonctionnaire is False
    assert s.rsSituationsExceptionnelles is None
    assert orvalis.VarCalculSalarie.fields["iEnfant_ACharge"] == "int16"
    assert orvalis.VarCalculSalarie.fields["lIdSalarie"] == "int32"
    assert orvalis.SalarieCalculRubrique.fields["dMontantSalarial"] == "float"
    assert list(s.to_dict())[:2] == ["lIdSalarie", "sMatricule"]


@pytest.mark.parametrize("valeur", [32767, -32768, 0])
def test_a_16_bit_field_takes_its_whole_range(valeur):
    s = orvalis.VarCalculSalarie()
    s.iEnfant_ACharge = valeur
    assert s.iEnfant_ACharge == valeur


@pytest.mark.parametrize("valeur", [32768, -32769, 2**70])
def test_a_16_bit_field_refuses_what_lies_outside(valeur):
    s = orvalis.VarCalculSalarie(iEnfant_ACharge=3)
    with pytest.raises(OverflowError, match=r"VarCalculSalarie.iEnfant_ACharge: .* is out of range \(-32768 to 32767\)"):
        s.iEnfant_ACharge = valeur
    assert s.iEnfant_ACharge == 3


def test_a_32_bit_field_takes_its_range_and_no_more():
    r = orvalis.SalarieCalculRubrique()
    r.lIdRubrique = 2147483647
    assert r.lIdRubrique == 2147483647
    r.lIdRubrique = -2147483648
    assert r.lIdRubrique == -2147483648
    with pytest.raises(OverflowError, match="2147483648 is out of range"):
        r.lIdRubrique = 2147483648


@pytest.mark.parametrize("champ, valeur, attendu", [
    ("iEnfant_ACharge", 2.0, "takes an int, got float"),
    ("iEnfant_ACharge", True, "takes an int, got bool"),
    ("lIdSalarie", "1042", "takes an int, got str"),
    ("dIndiceMajoreM", "420", "takes a float, got str"),
    ("dIndiceMajoreM", False, "takes a float, got bool"),
    ("sTypeModele", 3, "takes a str, got int"),
    ("sTypeModele", None, "takes a str, got NoneType"),
    ("bRegineFonctionnaire", 1, "takes a bool, got int"),
    ("rsSituationsExceptionnelles", "table", "takes None, a Recordset"),
])
def test_a_wrong_type_is_a_type_error(champ, valeur, attendu):
    s = orvalis.VarCalculSalarie()
    with pytest.raises(TypeError, match=attendu):
        setattr(s, champ, valeur)


def test_an_int_is_taken_for_a_double():
    s = orvalis.VarCalculSalarie(dIndiceMajoreM=420)
    assert s.dIndiceMajoreM == 420.0 and isinstance(s.dIndiceMajoreM, float)


def test_an_unknown_field_is_an_attribute_error():
    s = orvalis.VarCalculSalarie()
    with pytest.raises(AttributeError):
        s.dIndiceMajore = 420  # the field is dIndiceMajoreM
    with pytest.raises(AttributeError):
        s.dIndiceMajore
    with pytest.raises(AttributeError, match="VarCalculSalarie has no field 'sNom'"):
        orvalis.VarCalculSalarie(sNom="x")
    with pytest.raises(AttributeError):
        orvalis.SalarieCalculRubrique(lIdSalarie=1)  # a field of the other record


def test_texts_keep_accents_and_bytes():
    r = orvalis.SalarieCalculRubrique(sDesignation="Régime indemnitaire")
    assert r.sDesignation == "Régime indemnitaire"
    r.sDesignation = "R\udcc3"  # half a character, as a surrogate escape
    assert r.sDesignation == "R\udcc3"


def test_a_table_field_from_a_list_of_dicts_reads_back_as_one():
    s = orvalis.VarCalculSalarie(rsSituationsExceptionnelles=[
        {"CodeSituationExceptionnelle": "TPT", "DateDebutSituationExceptionnelle": "01/03/2024",
         "DateFinSituationExceptionnelle": None, "Quotite": 50}])
    table = s.rsSituationsExceptionnelles
    assert isinstance(table, orvalis.Recordset) and len(table) == 1
    assert table[0] == {"CodeSituationExceptionnelle": "TPT", "DateDebutSituationExceptionnelle": "01/03/2024",
                        "DateFinSituationExceptionnelle": None, "Quotite": 50.0}
    assert s.to_dict()["rsSituationsExceptionnelles"] == table.to_list()
    s.rsSituationsExceptionnelles = None
    assert s.rsSituationsExceptionnelles is None


def test_a_copy_is_a_record_of_its_own():
    s = orvalis.VarCalculSalarie(iEnfant_ACharge=2)
    c = s.copy()
    c.iEnfant_ACharge = 3
    assert (s.iEnfant_ACharge, c.iEnfant_ACharge) == (2, 3)


def test_a_detail_table_hung_by_a_handler_reads_as_a_list_of_dicts():
    moteur = orvalis.MethodeCalculG_Nouv()
    moteur.gPeriodeEncours = "01/02/2024"
    salarie = orvalis.VarCalculSalarie(sEluPeriodicite="2", sDateDebut="01/01/2020")
    ligne = orvalis.SalarieCalculRubrique()
    # A quarterly official in February, mid-quarter: no withholding, the detail table stands empty.
    assert moteur.CalculPrelevementALaSource_CasParticulierElu(salarie, ligne) == 0.0
    detail = ligne.rsPrelevementSourceElus
    assert detail.columns == ["NumeroOrdre", "DesignationMandat", "DateDebut", "DateFin", "RemunerationBrute",
                              "IndiceMajore", "FraisEmploiMandatUnique", "EluNonEligibleAbatFraisEmploi"]
    assert detail.to_list() == [] and ligne.to_dict()["rsPrelevementSourceElus"] == []
