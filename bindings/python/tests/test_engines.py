"""The engine classes: properties, sources by name, operations of the call table, messages."""
import pytest

import orvalis


def test_properties_start_empty_and_keep_what_is_set():
    m = orvalis.MethodeCalculG_Nouv()
    assert m.gPeriodeEncours == ""
    assert m.gdSmicMensuel == 0.0
    m.gPeriodeEncours = "01/02/2024"
    m.gdSmicMensuel = 1766  # an int is taken for a double
    assert m.gPeriodeEncours == "01/02/2024"
    assert m.gdSmicMensuel == 1766.0
    with pytest.raises(TypeError, match="gdSmicMensuel takes a float, got str"):
        m.gdSmicMensuel = "1766"
    with pytest.raises(TypeError, match="gPeriodeEncours takes a str, got int"):
        m.gPeriodeEncours = 202402


def test_sources_are_shared_with_the_engine(moteur):
    taux = moteur.gRsTaux
    assert isinstance(taux, orvalis.Recordset)
    assert taux.columns == ["IdTaux", "IdOrganisme", "CodeTaux", "PartSalariale", "PartPatronale"]
    # The same table, not a copy: a second reading gives the same rows.
    assert moteur.gRsTaux.to_list() == taux.to_list()
    autre = orvalis.MethodeCalculG_Nouv()
    autre.gRsTaux = taux
    assert autre.dRechercheValeurTaux("RAFP") == 5.0
    # A Recordset given by the host is the engine's source itself.
    rs = orvalis.Recordset([{"CodeTaux": "RAFP", "PartSalariale": 5.004}])
    moteur.gRsTaux = rs
    assert moteur.gRsTaux is rs
    assert moteur.dRechercheValeurTaux("RAFP") == 5.0  # 5.004 rounded to 2 places
    moteur.gRsTaux = None
    assert moteur.gRsTaux is None


def test_each_engine_has_its_own_sources():
    nouv, histo = orvalis.MethodeCalculG_Nouv(), orvalis.MethodeCalculG()
    nouv.gRsBaremeTauxPAS = [{"TauxPAS": 0.0}]
    assert nouv.gRsBaremeTauxPAS.to_list() == [{"TauxPAS": 0.0}]
    with pytest.raises(AttributeError):
        histo.gRsBaremeTauxPAS = []
    with pytest.raises(AttributeError):
        histo.gRsConstantesHistorique
    assert histo.Appel_Methode_Calcul_General("PAS UNE METHODE", orvalis.VarCalculSalarie(),
                                              orvalis.SalarieCalculRubrique()) is True


def test_a_source_takes_a_table_or_none():
    m = orvalis.MethodeCalculG_Nouv()
    with pytest.raises(TypeError, match="gRsTaux takes None, a Recordset"):
        m.gRsTaux = 3
    with pytest.raises(orvalis.Error, match=r"gRsTaux\[0\]: a row of a table is an object"):
        m.gRsTaux = [[1, 2]]


def test_call_by_name_and_as_a_method(moteur):
    assert moteur.call("Arrondi", 229.49916, 2) == 229.5
    assert moteur.Arrondi(633.70714, 2) == 633.71
    # PartSalariale of the rate table, rounded to 2 places
    assert moteur.dRechercheValeurTaux("CNRACL") == 11.1
    assert moteur.dRechercheValeurCumul("ASSCNRACL", "S") == 2067.56
    noms = [nom for nom, _ in moteur.operations()]
    assert "Arrondi" in noms
    assert dict(moteur.operations())["Arrondi"].startswith("Arrondi(double")


def test_in_out_parameters_come_back_after_the_result(moteur):
    variables = [{"CodeVariable": "PRIMEMENS", "Valeur": 120}]
    # The variable's value, given back and written into the in/out double.
    assert moteur.dRechercheValeur_VariableBis(variables, "PRIMEMENS", 0.0) == (120.0, 120.0)
    # A code that no row has leaves the in/out double at 0.
    assert moteur.dRechercheValeur_VariableBis(variables, "AUTRE", 7.5) == (0.0, 0.0)


def test_records_stand_for_themselves_in_a_call(moteur, salarie):
    assert moteur.Appel_Methode_Preparation_Calcul_General("NBRE_JOUR_PRESENCE", salarie)
    # The same preparation through the call table, on another record.
    autre = salarie.copy()
    autre.iNBJ_Presence_Total = 0
    assert moteur.call("Appel_Methode_Preparation_Calcul_General", "NBRE_JOUR_PRESENCE", autre) is True
    assert autre.iNBJ_Presence_Total == 30
    with pytest.raises(orvalis.Error, match="a second VarCalculSalarie"):
        moteur.call("Appel_Methode_Preparation_Calcul_General", salarie, autre)


def test_messages_are_kept_or_sent():
    m = orvalis.MethodeCalculG_Nouv()
    m.MsgBox("Attention : taux absent")
    assert m.messages == ["Attention : taux absent"]
    recus = []
    m.on_message = recus
    m.MsgBox("deux")
    assert recus == ["deux"] and m.on_message is recus
    vus = []
    m.on_message = lambda texte: vus.append(texte.upper())
    m.MsgBox("trois")
    assert vus == ["TROIS"]
    m.on_message = None
    m.MsgBox("quatre")
    assert m.messages == ["Attention : taux absent", "quatre"]
    with pytest.raises(TypeError, match="on_message takes a callable, a list or None"):
        m.on_message = 3


def test_a_callable_that_raises_is_raised_again():
    m = orvalis.MethodeCalculG_Nouv()

    def refuse(texte):
        raise ValueError("refused: " + texte)

    m.on_message = refuse
    with pytest.raises(ValueError, match="refused: x"):
        m.MsgBox("x")


def test_the_therapeutic_part_time_rate_starts_at_zero():
    assert orvalis.iTauxTptNonSubroge() == 0
