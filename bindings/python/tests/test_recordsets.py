"""Recordsets from and to lists of dicts."""
import pytest

import orvalis


def test_columns_follow_the_order_first_met_and_missing_keys_are_null():
    rs = orvalis.Recordset([{"CodeTaux": "RAFP", "PartSalariale": 5}, {"PartPatronale": 5, "CodeTaux": "CNRACL"}])
    assert rs.columns == ["CodeTaux", "PartSalariale", "PartPatronale"]
    assert rs.to_list() == [{"CodeTaux": "RAFP", "PartSalariale": 5.0, "PartPatronale": None},
                            {"CodeTaux": "CNRACL", "PartSalariale": None, "PartPatronale": 5.0}]
    assert list(rs) == rs.to_list()
    assert rs[-1]["CodeTaux"] == "CNRACL"
    with pytest.raises(IndexError, match=r"no row 2 \(2 rows\)"):
        rs[2]


def test_declared_columns_keep_an_empty_table():
    rs = orvalis.Recordset([], columns=["CodeCumul", "PartSalariale"])
    assert rs.columns == ["CodeCumul", "PartSalariale"] and len(rs) == 0
    rs = orvalis.Recordset([["BRUT", 2230.76], {"CodeCumul": "BASE"}], columns=["CodeCumul", "PartSalariale"])
    assert rs.to_list() == [{"CodeCumul": "BRUT", "PartSalariale": 2230.76},
                            {"CodeCumul": "BASE", "PartSalariale": None}]


def test_cells_are_none_bool_float_or_str():
    rs = orvalis.Recordset([{"a": None, "b": True, "c": 3, "d": "x"}])
    assert rs[0] == {"a": None, "b": True, "c": 3.0, "d": "x"}


def test_a_table_that_cannot_be_read_names_its_place():
    with pytest.raises(orvalis.Error, match=r"rows\[1\].a: "):
        orvalis.Recordset([{"a": 1}, {"a": [1]}])
    with pytest.raises(orvalis.Error, match="rows\\[0\\]"):
        orvalis.Recordset(["x"])
    with pytest.raises(TypeError):
        orvalis.Recordset("a,b")
