// The two engine classes: their properties, the two entry points, the operations of the call
// table and the message box.
#include <memory>
#include <optional>

#include "bindings.h"
#include "conversions.h"
#include "orvalis/MethodeCalculG.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "tools/call_table.h"
#include "tools/case_runner.h"

namespace orvalis::python {

namespace {

using tools::TypeMoteur;

// The message box sent to a Python callable, or appended to a Python list. An exception of
// the callable ends the engine's work there and is raised again once the engine is back.
struct RappelPython {
  py::object cible;
  std::shared_ptr<std::optional<py::error_already_set>> erreur =
      std::make_shared<std::optional<py::error_already_set>>();

  void operator()(const std::string& texte) const {
    try {
      if (PyList_Check(cible.ptr())) cible.attr("append")(VersPython(texte));
      else cible(VersPython(texte));
    } catch (py::error_already_set& e) {
      if (!*erreur) *erreur = e;
      throw;
    }
  }
};

void OublieErreurRappel(MoteurCalcul& m) {
  if (auto* r = m.OnMessage.target<RappelPython>()) r->erreur->reset();
}

void RelanceErreurRappel(MoteurCalcul& m) {
  auto* r = m.OnMessage.target<RappelPython>();
  if (r == nullptr || !*r->erreur) return;
  py::error_already_set e = **r->erreur;
  r->erreur->reset();
  throw e;
}

TypeMoteur Genre(MoteurCalcul& m) {
  return dynamic_cast<MethodeCalculG_Nouv*>(&m) ? TypeMoteur::Nouv : TypeMoteur::Histo;
}

bool EstJeton(py::handle a) {
  if (!PyUnicode_Check(a.ptr())) return false;
  const std::string s = TexteDepuisPython(a, "argument");
  return s == "$salarie" || s == "$rubrique" || s == "$absent";
}

// One operation of the call table: records stand for themselves, None for a left-out
// argument. The result, or (result, outs...) when the operation has in/out parameters.
py::object Appelle(MoteurCalcul& m, const std::string& nom, const py::args& args) {
  const tools::Operation& op = tools::TrouveOperation(nom, Genre(m), "call");
  tools::Json tableau = tools::Json::array();
  std::shared_ptr<VarCalculSalarie> salarie;
  std::shared_ptr<SalarieCalculRubrique> rubrique;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const py::handle a = args[i];
    const std::string lieu = tools::Indice("args", i);
    if (py::isinstance<VarCalculSalarie>(a)) {
      auto s = a.cast<std::shared_ptr<VarCalculSalarie>>();
      if (salarie && salarie != s) Leve(lieu + ": a second VarCalculSalarie in one call");
      salarie = s;
      tableau.push_back("$salarie");
    } else if (py::isinstance<SalarieCalculRubrique>(a)) {
      auto r = a.cast<std::shared_ptr<SalarieCalculRubrique>>();
      if (rubrique && rubrique != r) Leve(lieu + ": a second SalarieCalculRubrique in one call");
      rubrique = r;
      tableau.push_back("$rubrique");
    } else if (a.is_none()) {
      tableau.push_back("$absent");
    } else if (EstJeton(a)) {
      Leve(lieu + ": pass the record itself, or None for a left-out argument");
    } else {
      tableau.push_back(JsonDepuisPython(a, lieu));
    }
  }
  tools::AppelPrepare appel = op.prepare(tableau, "args");
  VarCalculSalarie sansSalarie;  // for the operations that take no employee record
  tools::ContexteAppel contexte{m, dynamic_cast<MethodeCalculG_Nouv*>(&m), dynamic_cast<MethodeCalculG*>(&m),
                                salarie ? *salarie : sansSalarie, rubrique};
  OublieErreurRappel(m);
  const tools::ResultatAppel r = appel(contexte);
  py::object resultat = VersPython(r.resultat);
  if (r.sorties.empty()) return resultat;
  py::list tout;
  tout.append(resultat);
  for (const auto& s : r.sorties) tout.append(VersPython(s));
  return py::tuple(tout);
}

RsRef& Propriete(MoteurCalcul& m, const tools::DefSource& d) {
  return d.commun != nullptr ? m.*d.commun : dynamic_cast<MethodeCalculG_Nouv&>(m).*d.nouv;
}

template <typename E>
void LieEntrees(py::class_<E, MoteurCalcul>& classe) {
  classe.def(py::init<>());
  classe.def(
      "Appel_Methode_Preparation_Calcul_General",
      [](E& e, const std::string& nom, VarCalculSalarie& salarie) {
        OublieErreurRappel(e);
        const bool ok = e.Appel_Methode_Preparation_Calcul_General(nom, salarie);
        RelanceErreurRappel(e);
        return ok;
      },
      py::arg("sNomcalcul"), py::arg("InfosSalaries"),
      "Prepares the month: True, or False after a fault (the record keeps what was written).");
  classe.def(
      "Appel_Methode_Calcul_General",
      [](E& e, const std::string& nom, VarCalculSalarie& salarie, SalarieCalculRubrique& rubrique,
         const py::object& v, const py::object& vh, const py::object& h) {
        const RsRef rsV = TableDepuisPython(v, "RsVarSalaries");
        const RsRef rsVH = TableDepuisPython(vh, "RsVarSalariesHisto");
        const RsRef rsH = TableDepuisPython(h, "RsSalariesHisto");
        OublieErreurRappel(e);
        const bool ok = e.Appel_Methode_Calcul_General(nom, salarie, rubrique, rsV, rsVH, rsH);
        RelanceErreurRappel(e);
        return ok;
      },
      py::arg("sNomcalcul"), py::arg("InfosSalaries"), py::arg("Rubrique"),
      py::arg("RsVarSalaries") = py::none(), py::arg("RsVarSalariesHisto") = py::none(),
      py::arg("RsSalariesHisto") = py::none(),
      "Calculates one pay line: True, or False after a fault (the records keep what was written).");
  for (const tools::DefSource& d : tools::TableDesSources()) {
    if (d.nouv == nullptr || !std::is_same_v<E, MethodeCalculG_Nouv>) continue;
    classe.def_property(
        d.nom, [&d](E& e) { return VersPython(RsRef(Propriete(e, d))); },
        [&d](E& e, py::handle v) { Propriete(e, d) = TableDepuisPython(v, d.nom); });
  }
}

}  // namespace

void LieMoteurs(py::module_& m) {
  py::class_<MoteurCalcul> moteur(m, "MoteurCalcul", "What both engine classes share.");
  moteur.def_property(
      "gPeriodeEncours", [](const MoteurCalcul& e) { return VersPython(e.gPeriodeEncours); },
      [](MoteurCalcul& e, py::handle v) { e.gPeriodeEncours = TexteDepuisPython(v, "gPeriodeEncours"); },
      "The pay month, \"dd/mm/yyyy\" of its first day.");
  moteur.def_property(
      "gdSmicMensuel", [](const MoteurCalcul& e) { return e.gdSmicMensuel; },
      [](MoteurCalcul& e, py::handle v) { e.gdSmicMensuel = DoubleDepuisPython(v, "gdSmicMensuel"); });
  for (const tools::DefSource& d : tools::TableDesSources()) {
    if (d.commun == nullptr) continue;
    moteur.def_property(
        d.nom, [&d](MoteurCalcul& e) { return VersPython(RsRef(Propriete(e, d))); },
        [&d](MoteurCalcul& e, py::handle v) { Propriete(e, d) = TableDepuisPython(v, d.nom); });
  }
  moteur.def_property_readonly(
      "messages", [](const MoteurCalcul& e) {
        py::list l;
        for (const auto& t : e.Messages) l.append(VersPython(t));
        return l;
      },
      "The texts of the message box kept while no on_message is set.");
  moteur.def_property(
      "on_message",
      [](MoteurCalcul& e) -> py::object {
        if (auto* r = e.OnMessage.target<RappelPython>()) return r->cible;
        return py::none();
      },
      [](MoteurCalcul& e, const py::object& cible) {
        if (cible.is_none()) e.OnMessage = nullptr;
        else if (PyList_Check(cible.ptr()) || PyCallable_Check(cible.ptr())) e.OnMessage = RappelPython{cible};
        else Leve(PyExc_TypeError, "on_message takes a callable, a list or None");
      },
      "Where the message box goes: a callable given each text, a list the texts are appended "
      "to, or None (the texts are kept in `messages`).");
  moteur.def(
      "MsgBox", [](MoteurCalcul& e, py::handle texte) { e.MsgBox(TexteDepuisPython(texte, "MsgBox")); },
      py::arg("texte"), "Shows a text in the message box, as the rules do.");
  moteur.def(
      "call", [](MoteurCalcul& e, const std::string& nom, const py::args& args) { return Appelle(e, nom, args); },
      py::arg("operation"),
      "Calls an operation of the call table by name; records stand for themselves and None "
      "for a left-out argument. Gives the result, or (result, outs...) when the operation has "
      "in/out parameters. A fault raises orvalis.Fault.");
  moteur.def(
      "operations",
      [](MoteurCalcul& e) {
        py::list l;
        const unsigned masque = Genre(e) == TypeMoteur::Nouv ? tools::kNouv : tools::kHisto;
        for (const auto& op : tools::TableDesAppels())
          if (op.moteurs & masque)
            l.append(py::make_tuple(op.nom, tools::appel::Signature(op.nom, op.parametres)));
        return l;
      },
      "The operations callable on this engine: (name, signature) pairs.");
  moteur.def("__getattr__", [](py::object self, const std::string& nom) -> py::object {
    MoteurCalcul& e = self.cast<MoteurCalcul&>();
    try {
      tools::TrouveOperation(nom, Genre(e), "call");
    } catch (const tools::ErreurCas&) {
      Leve(PyExc_AttributeError, "'" + py::type::handle_of(self).attr("__name__").cast<std::string>() +
                                     "' object has no attribute '" + nom + "'");
    }
    return py::cpp_function(
        [self, nom](const py::args& args) { return Appelle(self.cast<MoteurCalcul&>(), nom, args); },
        py::name(nom.c_str()));
  });

  py::class_<MethodeCalculG_Nouv, MoteurCalcul> nouv(m, "MethodeCalculG_Nouv", "The current engine.");
  LieEntrees(nouv);
  py::class_<MethodeCalculG, MoteurCalcul> histo(m, "MethodeCalculG", "The historic engine.");
  LieEntrees(histo);

  m.def("iTauxTptNonSubroge", [] { return iTauxTptNonSubroge.value(); },
        "The process-wide percentage of the therapeutic part-time situation last met.");
}

}  // namespace orvalis::python
