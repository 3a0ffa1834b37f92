// The store over SQL, the same on SQLite and PostgreSQL: reading a month's data with its
// checks, writing a month in one transaction, reading it back for the payslips.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>
#include <optional>
#include <stdexcept>
#include <strings.h>
#include <unordered_map>

#include <fmt/format.h>

#include "frame/dispatch.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "paie/magasin.h"
#include "paie/postgres.h"
#include "paie/mois_outils.h"
#include "paie/schema.h"
#include "tools/version.h"

namespace orvalis::paie {

namespace {

using tools::Affectation;
using tools::ValeurChamp;

// Months of reference values and totals handed to the engine as history.
constexpr int kMoisHistorique = 24;

// Every table the run reads or writes, with the columns it names: a store missing one is
// refused before anything is read, with the table and the column.
struct TableLue {
  const char* nom;
  std::vector<const char*> colonnes;
};
const std::vector<TableLue>& Tables() {
  static const std::vector<TableLue> t = {
      {"employeur", {"id", "nom", "siret", "adresse"}},
      {"valeurs_fixes", {"colonne", "depuis", "valeur"}},
      {"constantes", {"IdConstante", "CodeConstante", "depuis", "Valeur", "TauxMontant"}},
      {"taux", {"IdTaux", "IdOrganisme", "CodeTaux", "depuis", "PartSalariale", "PartPatronale"}},
      {"bareme_pas", {"TypeBareme", "depuis", "BorneInf", "BorneSup", "TauxNeutre"}},
      {"cumuls", {"IdCumul", "CodeCumul", "libelle", "plafond_de", "plafond_taux"}},
      {"preparations", {"ordre", "methode"}},
      {"rubriques", {"lIdRubrique", "sCodeRubrique", "sDesignation", "methode", "ordre", "groupe",
                     "nature"}},
      {"rubrique_cumuls", {"lIdRubrique", "CodeCumul", "montant", "part", "signe"}},
      {"salaries", {"lIdSalarie", "sMatricule", "nom", "prenom", "emploi", "adresse"}},
      {"situations", {"lIdSalarie", "depuis", "champ", "valeur"}},
      {"situations_exceptionnelles",
       {"lIdSalarie", "CodeSituationExceptionnelle", "DateDebutSituationExceptionnelle",
        "DateFinSituationExceptionnelle", "Quotite"}},
      {"variables", {"lIdSalarie", "mois", "IdVariable", "CodeVariable", "Valeur", "Dateeffet",
                     "TauxMontant"}},
      {"salarie_rubriques", {"lIdSalarie", "lIdRubrique"}},
      {"calculs", {"mois", "date_calcul", "version", "salaries", "lignes", "echecs", "secondes"}},
      {"bulletins", {"mois", "lIdSalarie", "sTypeModele", "sCodeCategorie", "dIndiceMajoreM",
                     "dBonification", "dTauxPoste", "dHeuresMois", "brut",
                     "cotisations_salariales", "net_avant_impot", "net_imposable", "base_pas",
                     "taux_pas", "pas", "net_paye", "cotisations_patronales", "cout_employeur",
                     "echecs"}},
      {"lignes", {"mois", "lIdSalarie", "ordre", "lIdRubrique", "sCodeRubrique", "sDesignation",
                  "groupe", "nature", "methode", "ok", "dBase", "dValeurCoefficient",
                  "dTauxSalarial", "dMontantSalarial", "dTauxPatronal", "dMontantPatronal",
                  "sValeurBase", "sCoeffBase", "sValeurTauxSalarial", "sValeurTauxPatronal"}},
      {"cumuls_salarie",
       {"mois", "lIdSalarie", "IdCumul", "CodeCumul", "PartSalariale", "PartPatronale"}},
  };
  return t;
}

[[noreturn]] void Erreur(const std::string& table, const std::string& ligne,
                         const std::string& colonne, const std::string& message) {
  throw ErreurMagasin(fmt::format("table '{}', {}, column '{}': {}", table, ligne, colonne, message));
}

std::string DecritCellule(const Requete& r, int i) {
  switch (r.Type(i)) {
    case TypeCellule::Null: return "null";
    case TypeCellule::Entier: return fmt::format("the integer {}", r.Entier(i));
    case TypeCellule::Reel: return fmt::format("the number {}", r.Reel(i));
    case TypeCellule::Texte: return fmt::format("the text '{}'", r.Texte(i));
    default: return "a blob";
  }
}

// The cell as a number: a number, or a text that is wholly one (PostgreSQL keeps a
// situation's value as a text); nothing otherwise.
std::optional<double> NombreDe(const Requete& r, int i) {
  const TypeCellule t = r.Type(i);
  if (t == TypeCellule::Entier || t == TypeCellule::Reel) return r.Reel(i);
  if (t != TypeCellule::Texte) return std::nullopt;
  const std::string x = r.Texte(i);
  char* fin = nullptr;
  const double d = std::strtod(x.c_str(), &fin);
  if (x.empty() || std::isspace(static_cast<unsigned char>(x[0])) || *fin != '\0' || !std::isfinite(d))
    return std::nullopt;
  return d;
}

// A number column: null gives null, a number gives itself, anything else is an error.
Value Nombre(const Requete& r, int i, const std::string& table, const std::string& ligne) {
  const TypeCellule t = r.Type(i);
  if (t == TypeCellule::Null) return Value();
  if (t == TypeCellule::Entier || t == TypeCellule::Reel) return Value(r.Reel(i));
  Erreur(table, ligne, r.NomColonne(i), "expected a number, got " + DecritCellule(r, i));
}

std::string TexteOuVide(const Requete& r, int i, const std::string& table, const std::string& ligne) {
  const TypeCellule t = r.Type(i);
  if (t == TypeCellule::Null) return {};
  if (t == TypeCellule::Texte) return r.Texte(i);
  Erreur(table, ligne, r.NomColonne(i), "expected a text, got " + DecritCellule(r, i));
}

// The value of a record field from a cell, checked against the field's type.
template <typename R>
ValeurChamp ValeurDeCellule(const Champ<R>& c, const Requete& r, int i, const std::string& table,
                            const std::string& ligne, const std::string& colonne) {
  auto faux = [&](const char* attendu) {
    Erreur(table, ligne, colonne,
           fmt::format("{} needs {}, got {}", c.nom, attendu, DecritCellule(r, i)));
  };
  const std::optional<double> nombre = NombreDe(r, i);
  switch (c.type) {
    case TypeChamp::I16:
    case TypeChamp::I32: {
      if (!nombre) faux("an integer");
      const double d = *nombre;
      const double max = c.type == TypeChamp::I16 ? 32767 : 2147483647.0;
      if (!(d <= max && d >= -max - 1) || d != std::trunc(d))
        faux(c.type == TypeChamp::I16 ? "a 16-bit integer" : "a 32-bit integer");
      if (c.type == TypeChamp::I16) return Int16(static_cast<std::int16_t>(d));
      return Int32(static_cast<std::int32_t>(d));
    }
    case TypeChamp::D:
      if (!nombre) faux("a number");
      return *nombre;
    case TypeChamp::S:
      if (r.Type(i) != TypeCellule::Texte) faux("a text");
      return r.Texte(i);
    case TypeChamp::B:
      if (!nombre || (*nombre != 0 && *nombre != 1 && *nombre != -1)) faux("a boolean (0 or 1)");
      return *nombre != 0;
    case TypeChamp::RS: break;
  }
  Erreur(table, ligne, colonne, std::string(c.nom) + " is a table, not a value");
}

RsRef Table(const std::vector<std::string>& colonnes) { return NouveauRecordset(colonnes); }

// Each fixed value is a column of the engine's table of fixed constants, and of its history
// beside "Mois": a name, that no other fixed value takes, whatever its case.
void VerifieColonneFixe(const std::string& colonne, const std::vector<std::string>& prises,
                        const std::string& ligne) {
  if (colonne.empty()) Erreur("valeurs_fixes", ligne, "colonne", "a fixed value needs a name");
  if (MemeNomDeColonne(colonne, "Mois"))
    Erreur("valeurs_fixes", ligne, "colonne",
           "'" + colonne + "' is the month of the history of fixed values, not a fixed value");
  for (const auto& p : prises)
    if (MemeNomDeColonne(p, colonne))
      Erreur("valeurs_fixes", ligne, "colonne",
             "'" + colonne + "' and '" + p + "' differ in case only: one fixed value, two names");
}

void AjouteLigne(Recordset& rs, const std::vector<std::string>& colonnes,
                 const std::vector<Value>& valeurs) {
  rs.AddNew();
  for (std::size_t i = 0; i < colonnes.size(); ++i) rs.SetField(colonnes[i], valeurs[i]);
}

// The value in force at each month of [premier, dernier] from rows (depuis, value) sorted
// by depuis.
class Chronologie {
 public:
  void Ajoute(const std::string& depuis, Value v) { points_.emplace_back(depuis, std::move(v)); }
  const Value* A(const std::string& mois) const {
    const Value* v = nullptr;
    for (const auto& [depuis, valeur] : points_)
      if (depuis <= mois) v = &valeur;
    return v;
  }

 private:
  std::vector<std::pair<std::string, Value>> points_;
};

class MagasinSql final : public Magasin {
 public:
  explicit MagasinSql(std::unique_ptr<Connexion> base) : base_(std::move(base)) {}

  DonneesMois ChargeMois(const std::string& texteMois) override {
    VerifieTables();
    DonneesMois d;
    d.mois = CleMois(texteMois);
    d.employeur = LitEmployeur();
    ChargeValeursFixes(d);
    ChargeConstantes(d);
    ChargeTaux(d);
    ChargeBareme(d);
    ChargeCumuls(d);
    ChargePreparations(d);
    ChargePlan(d);
    ChargeSalaries(d);
    return d;
  }

  bool MoisCalcule(const std::string& mois) override {
    Requete r = base_->Prepare("SELECT 1 FROM calculs WHERE mois = ? AND publie = 1");
    r.Lie(1, CleMois(mois));
    return r.Pas();
  }

  bool LectureSeule() override { return base_->LectureSeule(); }

  void EcritMois(const ResultatMois& res, bool remplacer) override;
  ResultatMois LitMois(const std::string& mois) override;
  Connexion& Sql() override { return *base_; }

 private:
  void VerifieTables() {
    for (const auto& t : Tables()) {
      if (!base_->TableExiste(t.nom)) throw ErreurMagasin(fmt::format("table '{}' is missing", t.nom));
      const std::vector<std::string> presentes = base_->ColonnesDe(t.nom);
      for (const char* c : t.colonnes)
        if (std::none_of(presentes.begin(), presentes.end(),
                         [&](const std::string& p) { return strcasecmp(p.c_str(), c) == 0; }))
          throw ErreurMagasin(fmt::format("table '{}': column '{}' is missing", t.nom, c));
    }
  }

  Employeur LitEmployeur() {
    Requete r = base_->Prepare("SELECT nom, siret, adresse FROM employeur WHERE id = 1");
    if (!r.Pas()) throw ErreurMagasin("table 'employeur': no row (id 1)");
    return {TexteOuVide(r, 0, "employeur", "row 1"), TexteOuVide(r, 1, "employeur", "row 1"),
            TexteOuVide(r, 2, "employeur", "row 1")};
  }

  std::vector<std::string> MoisHistorique(const std::string& mois) {
    std::vector<std::string> m;
    for (int i = kMoisHistorique; i >= 0; --i) m.push_back(DecaleMois(mois, -i));
    return m;
  }

  void ChargeValeursFixes(DonneesMois& d) {
    Requete r = base_->Prepare(
        "SELECT rowid, colonne, depuis, valeur FROM valeurs_fixes WHERE depuis <= ? "
        "ORDER BY colonne, depuis");
    r.Lie(1, d.mois);
    std::vector<std::string> colonnes;
    std::unordered_map<std::string, Chronologie> parColonne;
    while (r.Pas()) {
      const std::string ligne = fmt::format("row {}", r.Entier(0));
      const std::string colonne = TexteOuVide(r, 1, "valeurs_fixes", ligne);
      if (!parColonne.contains(colonne)) {
        VerifieColonneFixe(colonne, colonnes, ligne);
        colonnes.push_back(colonne);
      }
      parColonne[colonne].Ajoute(TexteOuVide(r, 2, "valeurs_fixes", ligne),
                                 Nombre(r, 3, "valeurs_fixes", ligne));
    }
    d.constantesFixes = Table(colonnes);
    std::vector<Value> valeurs;
    for (const auto& c : colonnes) valeurs.push_back(*parColonne[c].A(d.mois));
    AjouteLigne(*d.constantesFixes, colonnes, valeurs);
    d.constantesFixes->MoveFirst();

    std::vector<std::string> colonnesH = {"Mois"};
    colonnesH.insert(colonnesH.end(), colonnes.begin(), colonnes.end());
    d.constantesFixesHistorique = Table(colonnesH);
    for (const auto& m : MoisHistorique(d.mois)) {
      std::vector<Value> v = {Value(m)};
      for (const auto& c : colonnes) {
        const Value* x = parColonne[c].A(m);
        v.push_back(x ? *x : Value());
      }
      AjouteLigne(*d.constantesFixesHistorique, colonnesH, v);
    }
  }

  void ChargeConstantes(DonneesMois& d) {
    Requete r = base_->Prepare(
        "SELECT rowid, IdConstante, CodeConstante, depuis, Valeur, TauxMontant FROM constantes "
        "WHERE depuis <= ? ORDER BY IdConstante, depuis");
    r.Lie(1, d.mois);
    struct Constante {
      long long id;
      std::string code;
      Chronologie valeurs, types;
    };
    std::vector<Constante> liste;
    while (r.Pas()) {
      const std::string ligne = fmt::format("row {}", r.Entier(0));
      const long long id = r.Entier(1);
      if (liste.empty() || liste.back().id != id)
        liste.push_back({id, TexteOuVide(r, 2, "constantes", ligne), {}, {}});
      const std::string depuis = TexteOuVide(r, 3, "constantes", ligne);
      liste.back().valeurs.Ajoute(depuis, Nombre(r, 4, "constantes", ligne));
      liste.back().types.Ajoute(depuis, Value(TexteOuVide(r, 5, "constantes", ligne)));
    }
    const std::vector<std::string> cols = {"IdConstante", "CodeConstante", "Valeur", "TauxMontant"};
    const std::vector<std::string> colsH = {"CodeConstante", "Mois", "Valeur"};
    d.constantes = Table(cols);
    d.constantesHistorique = Table(colsH);
    for (const auto& c : liste) {
      AjouteLigne(*d.constantes, cols,
                  {Value(static_cast<double>(c.id)), Value(c.code), *c.valeurs.A(d.mois),
                   *c.types.A(d.mois)});
      for (const auto& m : MoisHistorique(d.mois))
        if (const Value* v = c.valeurs.A(m)) AjouteLigne(*d.constantesHistorique, colsH, {c.code, m, *v});
    }
  }

  void ChargeTaux(DonneesMois& d) {
    Requete r = base_->Prepare(
        "SELECT rowid, IdTaux, IdOrganisme, CodeTaux, PartSalariale, PartPatronale FROM taux t "
        "WHERE depuis = (SELECT max(depuis) FROM taux u WHERE u.IdTaux = t.IdTaux AND depuis <= ?) "
        "ORDER BY IdTaux");
    r.Lie(1, d.mois);
    const std::vector<std::string> cols = {"IdTaux", "IdOrganisme", "CodeTaux", "PartSalariale",
                                           "PartPatronale"};
    d.taux = Table(cols);
    while (r.Pas()) {
      const std::string ligne = fmt::format("row {}", r.Entier(0));
      AjouteLigne(*d.taux, cols,
                  {Nombre(r, 1, "taux", ligne), Nombre(r, 2, "taux", ligne),
                   Value(TexteOuVide(r, 3, "taux", ligne)), Nombre(r, 4, "taux", ligne),
                   Nombre(r, 5, "taux", ligne)});
    }
  }

  void ChargeBareme(DonneesMois& d) {
    Requete r = base_->Prepare(
        "SELECT rowid, TypeBareme, BorneInf, BorneSup, TauxNeutre FROM bareme_pas b "
        "WHERE depuis = (SELECT max(depuis) FROM bareme_pas c "
        "                WHERE c.TypeBareme = b.TypeBareme AND depuis <= ?) ORDER BY rowid");
    r.Lie(1, d.mois);
    const std::vector<std::string> cols = {"TypeBareme", "BorneInf", "BorneSup", "TauxNeutre"};
    d.baremePAS = Table(cols);
    while (r.Pas()) {
      const std::string ligne = fmt::format("row {}", r.Entier(0));
      AjouteLigne(*d.baremePAS, cols,
                  {Value(TexteOuVide(r, 1, "bareme_pas", ligne)), Nombre(r, 2, "bareme_pas", ligne),
                   Nombre(r, 3, "bareme_pas", ligne), Nombre(r, 4, "bareme_pas", ligne)});
    }
  }

  void ChargeCumuls(DonneesMois& d) {
    Requete r = base_->Prepare(
        "SELECT IdCumul, CodeCumul, libelle, plafond_de, plafond_taux FROM cumuls ORDER BY IdCumul");
    while (r.Pas()) {
      const std::string ligne = fmt::format("IdCumul {}", r.Entier(0));
      Cumul c{static_cast<std::int32_t>(r.Entier(0)), TexteOuVide(r, 1, "cumuls", ligne),
              TexteOuVide(r, 2, "cumuls", ligne), TexteOuVide(r, 3, "cumuls", ligne), 0};
      c.plafondTaux = Nombre(r, 4, "cumuls", ligne).NombreOuZero();
      // A cap is a share of the other total.
      if (!(c.plafondTaux >= 0 && c.plafondTaux <= 100))
        Erreur("cumuls", ligne, "plafond_taux",
               fmt::format("a percentage from 0 to 100, got {}", c.plafondTaux));
      d.cumuls.push_back(std::move(c));
    }
    for (const auto& c : d.cumuls)
      if (!c.plafondDe.empty() &&
          std::none_of(d.cumuls.begin(), d.cumuls.end(),
                       [&](const Cumul& x) { return x.CodeCumul == c.plafondDe; }))
        Erreur("cumuls", fmt::format("IdCumul {}", c.IdCumul), "plafond_de",
               "no total '" + c.plafondDe + "'");
  }

  void ChargePreparations(DonneesMois& d) {
    Requete r = base_->Prepare("SELECT ordre, methode FROM preparations ORDER BY ordre");
    while (r.Pas()) {
      const std::string ligne = fmt::format("ordre {}", r.Entier(0));
      std::string m = TexteOuVide(r, 1, "preparations", ligne);
      if (TrouveLigne(TablePreparationNouv(), m) == nullptr)
        Erreur("preparations", ligne, "methode", "unknown preparation '" + m + "'");
      d.preparations.push_back(std::move(m));
    }
  }

  void ChargePlan(DonneesMois& d) {
    Requete r = base_->Prepare("SELECT * FROM rubriques ORDER BY ordre");
    std::unordered_map<long long, std::size_t> parId;
    while (r.Pas()) {
      RubriquePlan p;
      const std::string ligne = fmt::format("lIdRubrique {}", r.Entier(0));
      for (int i = 0; i < r.Colonnes(); ++i) {
        const std::string col = r.NomColonne(i);
        if (col == "methode") p.methode = TexteOuVide(r, i, "rubriques", ligne);
        else if (col == "ordre") p.ordre = static_cast<int>(r.Entier(i));
        else if (col == "groupe") p.groupe = TexteOuVide(r, i, "rubriques", ligne);
        else if (col == "nature") p.nature = TexteOuVide(r, i, "rubriques", ligne);
        else if (const auto* c = TrouveChamp<SalarieCalculRubrique>(col)) {
          if (r.EstNull(i)) continue;
          p.champs.push_back({c, ValeurDeCellule(*c, r, i, "rubriques", ligne, col)});
        } else {
          Erreur("rubriques", ligne, col, "SalarieCalculRubrique has no field '" + col + "'");
        }
      }
      p.lIdRubrique = static_cast<std::int32_t>(r.Entier(0));
      SalarieCalculRubrique lu;
      tools::Applique(lu, p.champs);
      p.sCodeRubrique = lu.sCodeRubrique;
      p.sDesignation = lu.sDesignation;
      if (TrouveLigne(TableCalculNouv(), p.methode) == nullptr)
        Erreur("rubriques", ligne, "methode", "unknown method '" + p.methode + "'");
      parId[p.lIdRubrique] = d.plan.size();
      d.plan.push_back(std::move(p));
    }
    Requete a = base_->Prepare(
        "SELECT rowid, lIdRubrique, CodeCumul, montant, part, signe FROM rubrique_cumuls "
        "ORDER BY rowid");
    while (a.Pas()) {
      const std::string ligne = fmt::format("row {}", a.Entier(0));
      auto it = parId.find(a.Entier(1));
      if (it == parId.end())
        Erreur("rubrique_cumuls", ligne, "lIdRubrique", fmt::format("no pay line {}", a.Entier(1)));
      Alimentation al;
      al.CodeCumul = TexteOuVide(a, 2, "rubrique_cumuls", ligne);
      if (std::none_of(d.cumuls.begin(), d.cumuls.end(),
                       [&](const Cumul& c) { return c.CodeCumul == al.CodeCumul; }))
        Erreur("rubrique_cumuls", ligne, "CodeCumul", "no total '" + al.CodeCumul + "'");
      al.montant = TexteOuVide(a, 3, "rubrique_cumuls", ligne);
      al.part = TexteOuVide(a, 4, "rubrique_cumuls", ligne) == "P" ? 'P' : 'S';
      al.signe = a.Entier(5) < 0 ? -1 : 1;
      d.plan[it->second].alimente.push_back(std::move(al));
    }
  }

  void ChargeSalaries(DonneesMois& d);

  std::unique_ptr<Connexion> base_;
};

void MagasinSql::ChargeSalaries(DonneesMois& d) {
  std::unordered_map<long long, std::size_t> parId;
  {
    Requete r = base_->Prepare(
        "SELECT lIdSalarie, sMatricule, nom, prenom, emploi, adresse FROM salaries "
        "ORDER BY lIdSalarie");
    while (r.Pas()) {
      const std::string ligne = fmt::format("lIdSalarie {}", r.Entier(0));
      Salarie s;
      s.lIdSalarie = static_cast<std::int32_t>(r.Entier(0));
      s.sMatricule = TexteOuVide(r, 1, "salaries", ligne);
      s.nom = TexteOuVide(r, 2, "salaries", ligne);
      s.prenom = TexteOuVide(r, 3, "salaries", ligne);
      s.emploi = TexteOuVide(r, 4, "salaries", ligne);
      s.adresse = TexteOuVide(r, 5, "salaries", ligne);
      s.situations = Table({"CodeSituationExceptionnelle", "DateDebutSituationExceptionnelle",
                            "DateFinSituationExceptionnelle", "Quotite"});
      s.variables = Table({"IdVariable", "CodeVariable", "Valeur", "Dateeffet", "TauxMontant"});
      s.variablesHisto =
          Table({"Mois", "IdVariable", "CodeVariable", "Valeur", "Dateeffet", "TauxMontant"});
      s.historique = Table({"IDSALARIE", "Mois", "HeuresMois", "Brut", "NetImposable"});
      s.cumulsHisto =
          Table({"IDSALARIE", "Mois", "CodeCumul", "IdCumul", "PartSalariale", "PartPatronale"});
      parId[s.lIdSalarie] = d.salaries.size();
      d.salaries.push_back(std::move(s));
    }
  }
  auto salarie = [&](const Requete& r, const char* table, const std::string& ligne) -> Salarie& {
    auto it = parId.find(r.Entier(0));
    if (it == parId.end()) Erreur(table, ligne, "lIdSalarie", fmt::format("no employee {}", r.Entier(0)));
    return d.salaries[it->second];
  };

  {
    // The last value of each field in force at the month.
    Requete r = base_->Prepare(
        "SELECT lIdSalarie, champ, valeur, depuis, rowid FROM situations s WHERE depuis = "
        "(SELECT max(depuis) FROM situations t WHERE t.lIdSalarie = s.lIdSalarie "
        " AND t.champ = s.champ AND t.depuis <= ?1) ORDER BY lIdSalarie, rowid");
    r.Lie(1, d.mois);
    while (r.Pas()) {
      const std::string ligne = fmt::format("row {}", r.Entier(4));
      Salarie& s = salarie(r, "situations", ligne);
      const std::string champ = TexteOuVide(r, 1, "situations", ligne);
      const Champ<VarCalculSalarie>* c = TrouveChamp<VarCalculSalarie>(champ);
      if (c == nullptr) Erreur("situations", ligne, "champ", "VarCalculSalarie has no field '" + champ + "'");
      if (r.EstNull(2)) continue;  // null: the field keeps its initial value
      s.champs.push_back({c, ValeurDeCellule(*c, r, 2, "situations", ligne, "valeur")});
    }
  }
  {
    Requete r = base_->Prepare(
        "SELECT lIdSalarie, CodeSituationExceptionnelle, DateDebutSituationExceptionnelle, "
        "DateFinSituationExceptionnelle, Quotite, rowid FROM situations_exceptionnelles "
        "ORDER BY lIdSalarie, DateDebutSituationExceptionnelle");
    const std::vector<std::string> cols = {"CodeSituationExceptionnelle",
                                           "DateDebutSituationExceptionnelle",
                                           "DateFinSituationExceptionnelle", "Quotite"};
    while (r.Pas()) {
      const std::string ligne = fmt::format("row {}", r.Entier(5));
      const char* t = "situations_exceptionnelles";
      AjouteLigne(*salarie(r, t, ligne).situations, cols,
                  {Value(TexteOuVide(r, 1, t, ligne)), Value(TexteOuVide(r, 2, t, ligne)),
                   Value(TexteOuVide(r, 3, t, ligne)), Nombre(r, 4, t, ligne)});
    }
  }
  {
    Requete r = base_->Prepare(
        "SELECT lIdSalarie, mois, IdVariable, CodeVariable, Valeur, Dateeffet, TauxMontant, rowid "
        "FROM variables WHERE mois <= ? AND mois >= ? ORDER BY lIdSalarie, mois, IdVariable");
    r.Lie(1, d.mois).Lie(2, DecaleMois(d.mois, -kMoisHistorique));
    const std::vector<std::string> cols = {"IdVariable", "CodeVariable", "Valeur", "Dateeffet",
                                           "TauxMontant"};
    std::vector<std::string> colsH = {"Mois"};
    colsH.insert(colsH.end(), cols.begin(), cols.end());
    while (r.Pas()) {
      const std::string ligne = fmt::format("row {}", r.Entier(7));
      const char* t = "variables";
      Salarie& s = salarie(r, t, ligne);
      const std::string mois = TexteOuVide(r, 1, t, ligne);
      std::vector<Value> v = {Nombre(r, 2, t, ligne), Value(TexteOuVide(r, 3, t, ligne)),
                              Nombre(r, 4, t, ligne), Value(TexteOuVide(r, 5, t, ligne)),
                              Value(TexteOuVide(r, 6, t, ligne))};
      if (mois == d.mois) {
        AjouteLigne(*s.variables, cols, v);
      } else {
        v.insert(v.begin(), Value(mois));
        AjouteLigne(*s.variablesHisto, colsH, v);
      }
    }
  }
  {
    Requete r = base_->Prepare(
        "SELECT b.lIdSalarie, b.mois, b.dHeuresMois, b.brut, b.net_imposable FROM bulletins b "
        "WHERE b.mois < ? AND b.mois >= ? "
        "AND b.mois IN (SELECT mois FROM calculs WHERE publie = 1) ORDER BY b.lIdSalarie, b.mois");
    r.Lie(1, d.mois).Lie(2, DecaleMois(d.mois, -kMoisHistorique));
    const std::vector<std::string> cols = {"IDSALARIE", "Mois", "HeuresMois", "Brut", "NetImposable"};
    while (r.Pas()) {
      Salarie& s = salarie(r, "bulletins", "");
      AjouteLigne(*s.historique, cols,
                  {Value(static_cast<double>(r.Entier(0))), Value(r.Texte(1)), r.Valeur(2),
                   r.Valeur(3), r.Valeur(4)});
    }
  }
  {
    Requete r = base_->Prepare(
        "SELECT lIdSalarie, mois, CodeCumul, IdCumul, PartSalariale, PartPatronale "
        "FROM cumuls_salarie WHERE mois < ? AND mois >= ? "
        "AND mois IN (SELECT mois FROM calculs WHERE publie = 1) ORDER BY lIdSalarie, mois, IdCumul");
    r.Lie(1, d.mois).Lie(2, DecaleMois(d.mois, -kMoisHistorique));
    const std::vector<std::string> cols = {"IDSALARIE", "Mois", "CodeCumul", "IdCumul",
                                           "PartSalariale", "PartPatronale"};
    while (r.Pas()) {
      Salarie& s = salarie(r, "cumuls_salarie", "");
      AjouteLigne(*s.cumulsHisto, cols,
                  {Value(static_cast<double>(r.Entier(0))), Value(r.Texte(1)), Value(r.Texte(2)),
                   r.Valeur(3), r.Valeur(4), r.Valeur(5)});
    }
  }
  {
    std::unordered_map<long long, std::size_t> planParId;
    for (std::size_t i = 0; i < d.plan.size(); ++i) planParId[d.plan[i].lIdRubrique] = i;
    Requete r = base_->Prepare("SELECT lIdSalarie, lIdRubrique, rowid FROM salarie_rubriques");
    while (r.Pas()) {
      const std::string ligne = fmt::format("row {}", r.Entier(2));
      Salarie& s = salarie(r, "salarie_rubriques", ligne);
      auto it = planParId.find(r.Entier(1));
      if (it == planParId.end())
        Erreur("salarie_rubriques", ligne, "lIdRubrique", fmt::format("no pay line {}", r.Entier(1)));
      s.rubriques.push_back(it->second);
    }
    // Places in the plan are in the plan's order already.
    for (auto& s : d.salaries) std::sort(s.rubriques.begin(), s.rubriques.end());
  }
}

void MagasinSql::EcritMois(const ResultatMois& res, bool remplacer) {
  const std::string mois = CleMois(res.mois);
  EnTransaction(*base_, [&] {
    Requete existe = base_->Prepare("SELECT publie FROM calculs WHERE mois = ?");
    existe.Lie(1, mois);
    if (existe.Pas()) {
      if (existe.Entier(0) == 0)
        throw ErreurMagasin(fmt::format("month {} is being computed by workers", AfficheMois(mois)));
      if (!remplacer)
        throw ErreurMagasin(fmt::format("month {} is already computed (--replace computes it again)",
                                        AfficheMois(mois)));
      Requete del = base_->Prepare("DELETE FROM calculs WHERE mois = ?");
      del.Lie(1, mois).Execute();
    }
    Requete c = base_->Prepare(
        "INSERT INTO calculs (mois, date_calcul, version, salaries, lignes, echecs, secondes) "
        "VALUES (?, ?, ?, ?, ?, ?, ?)");
    c.Lie(1, mois).Lie(2, DateUtc()).Lie(3, std::string(tools::Version()));
    c.Lie(4, static_cast<long long>(res.bulletins.size())).Lie(5, static_cast<long long>(res.lignes));
    c.Lie(6, static_cast<long long>(res.echecs)).Lie(7, res.secondes).Execute();
    InsereBulletins(*base_, mois, res.bulletins);
  });
}

// The payslip of employee `id` in a month read back; a row of `table` for an employee with no
// payslip that month (a store edited by hand) is an error naming it.
Bulletin& BulletinLu(ResultatMois& res, const std::unordered_map<long long, std::size_t>& parId,
                   long long id, const char* table) {
  const auto it = parId.find(id);
  if (it == parId.end())
    Erreur(table, fmt::format("month {}", res.mois), "lIdSalarie",
           fmt::format("employee {} has no payslip that month", id));
  return res.bulletins[it->second];
}

ResultatMois MagasinSql::LitMois(const std::string& texteMois) {
  ResultatMois res;
  res.mois = CleMois(texteMois);
  res.employeur = LitEmployeur();
  {
    Requete r = base_->Prepare(
        "SELECT lignes, echecs, secondes FROM calculs WHERE mois = ? AND publie = 1");
    r.Lie(1, res.mois);
    if (!r.Pas()) throw ErreurMagasin(fmt::format("month {} is not computed", AfficheMois(res.mois)));
    res.lignes = static_cast<long>(r.Entier(0));
    res.echecs = static_cast<long>(r.Entier(1));
    res.secondes = r.Reel(2);
  }
  auto totaux = [](const Requete& r, int i) {
    Totaux t;
    t.brut = r.Reel(i); t.cotisationsSalariales = r.Reel(i + 1); t.netAvantImpot = r.Reel(i + 2);
    t.netImposable = r.Reel(i + 3); t.basePAS = r.Reel(i + 4); t.tauxPAS = r.Reel(i + 5);
    t.pas = r.Reel(i + 6); t.netPaye = r.Reel(i + 7); t.cotisationsPatronales = r.Reel(i + 8);
    t.coutEmployeur = r.Reel(i + 9);
    return t;
  };
  std::unordered_map<long long, std::size_t> parId;
  {
    Requete r = base_->Prepare(
        "SELECT b.lIdSalarie, s.sMatricule, s.nom, s.prenom, s.emploi, s.adresse, b.sTypeModele, "
        "b.sCodeCategorie, b.dIndiceMajoreM, b.dBonification, b.dTauxPoste, b.dHeuresMois, "
        "b.echecs, b.brut, b.cotisations_salariales, b.net_avant_impot, b.net_imposable, "
        "b.base_pas, b.taux_pas, b.pas, b.net_paye, b.cotisations_patronales, b.cout_employeur "
        "FROM bulletins b JOIN salaries s USING (lIdSalarie) WHERE b.mois = ? "
        "ORDER BY s.nom, s.prenom, b.lIdSalarie");
    r.Lie(1, res.mois);
    while (r.Pas()) {
      Bulletin x;
      x.lIdSalarie = static_cast<std::int32_t>(r.Entier(0));
      x.sMatricule = r.Texte(1); x.nom = r.Texte(2); x.prenom = r.Texte(3);
      x.emploi = r.Texte(4); x.adresse = r.Texte(5); x.sTypeModele = r.Texte(6);
      x.sCodeCategorie = r.Texte(7); x.dIndiceMajoreM = r.Reel(8); x.dBonification = r.Reel(9);
      x.dTauxPoste = r.Reel(10); x.dHeuresMois = r.Reel(11);
      x.echecs = static_cast<int>(r.Entier(12));
      x.totaux = totaux(r, 13);
      parId[x.lIdSalarie] = res.bulletins.size();
      res.bulletins.push_back(std::move(x));
    }
  }
  {
    Requete r = base_->Prepare(
        "SELECT lIdSalarie, sum(brut), sum(cotisations_salariales), sum(net_avant_impot), "
        "sum(net_imposable), sum(base_pas), 0, sum(pas), sum(net_paye), "
        "sum(cotisations_patronales), sum(cout_employeur) FROM bulletins "
        "WHERE mois >= ? AND mois <= ? AND mois IN (SELECT mois FROM calculs WHERE publie = 1) "
        "GROUP BY lIdSalarie");
    r.Lie(1, res.mois.substr(0, 4) + "01").Lie(2, res.mois);
    while (r.Pas())
      if (auto it = parId.find(r.Entier(0)); it != parId.end())
        res.bulletins[it->second].annee = totaux(r, 1);
  }
  {
    Requete r = base_->Prepare(
        "SELECT lIdSalarie, ordre, lIdRubrique, sCodeRubrique, sDesignation, groupe, nature, "
        "methode, ok, dBase, dValeurCoefficient, dTauxSalarial, dMontantSalarial, dTauxPatronal, "
        "dMontantPatronal, sValeurBase, sCoeffBase, sValeurTauxSalarial, sValeurTauxPatronal "
        "FROM lignes WHERE mois = ? ORDER BY lIdSalarie, ordre");
    r.Lie(1, res.mois);
    while (r.Pas()) {
      LigneBulletin y;
      y.ordre = static_cast<int>(r.Entier(1));
      y.lIdRubrique = static_cast<std::int32_t>(r.Entier(2));
      y.sCodeRubrique = r.Texte(3); y.sDesignation = r.Texte(4); y.groupe = r.Texte(5);
      y.nature = r.Texte(6); y.methode = r.Texte(7); y.ok = r.Entier(8) != 0;
      y.dBase = r.Reel(9); y.dValeurCoefficient = r.Reel(10); y.dTauxSalarial = r.Reel(11);
      y.dMontantSalarial = r.Reel(12); y.dTauxPatronal = r.Reel(13); y.dMontantPatronal = r.Reel(14);
      y.sValeurBase = r.Texte(15); y.sCoeffBase = r.Texte(16); y.sValeurTauxSalarial = r.Texte(17);
      y.sValeurTauxPatronal = r.Texte(18);
      BulletinLu(res, parId, r.Entier(0), "lignes").lignes.push_back(std::move(y));
    }
  }
  {
    Requete r = base_->Prepare(
        "SELECT lIdSalarie, CodeCumul, PartSalariale, PartPatronale FROM cumuls_salarie "
        "WHERE mois = ?");
    r.Lie(1, res.mois);
    while (r.Pas())
      BulletinLu(res, parId, r.Entier(0), "cumuls_salarie").cumuls[r.Texte(1)] = {r.Reel(2), r.Reel(3)};
  }
  return res;
}

}  // namespace

std::string DateUtc() {
  const std::time_t t = std::time(nullptr);
  char date[32];
  std::strftime(date, sizeof date, "%Y-%m-%dT%H:%M:%SZ", std::gmtime(&t));
  return date;
}

void InsereBulletins(Connexion& base, const std::string& mois, const std::vector<Bulletin>& bulletins) {
  Requete b = base.PrepareInsertion(
      "bulletins", {"mois", "lIdSalarie", "sTypeModele", "sCodeCategorie", "dIndiceMajoreM",
                    "dBonification", "dTauxPoste", "dHeuresMois", "brut", "cotisations_salariales",
                    "net_avant_impot", "net_imposable", "base_pas", "taux_pas", "pas", "net_paye",
                    "cotisations_patronales", "cout_employeur", "echecs"});
  Requete l = base.PrepareInsertion(
      "lignes", {"mois", "lIdSalarie", "ordre", "lIdRubrique", "sCodeRubrique", "sDesignation",
                 "groupe", "nature", "methode", "ok", "dBase", "dValeurCoefficient", "dTauxSalarial",
                 "dMontantSalarial", "dTauxPatronal", "dMontantPatronal", "sValeurBase", "sCoeffBase",
                 "sValeurTauxSalarial", "sValeurTauxPatronal"});
  Requete k = base.PrepareInsertion(
      "cumuls_salarie", {"mois", "lIdSalarie", "IdCumul", "CodeCumul", "PartSalariale", "PartPatronale"});
  Requete idCumul = base.Prepare("SELECT IdCumul, CodeCumul FROM cumuls");
  std::unordered_map<std::string, long long> ids;
  while (idCumul.Pas()) ids[idCumul.Texte(1)] = idCumul.Entier(0);

  for (const Bulletin& x : bulletins) {
    const Totaux& t = x.totaux;
    b.Lie(1, mois).Lie(2, static_cast<long long>(x.lIdSalarie)).Lie(3, x.sTypeModele);
    b.Lie(4, x.sCodeCategorie).Lie(5, x.dIndiceMajoreM).Lie(6, x.dBonification);
    b.Lie(7, x.dTauxPoste).Lie(8, x.dHeuresMois).Lie(9, t.brut).Lie(10, t.cotisationsSalariales);
    b.Lie(11, t.netAvantImpot).Lie(12, t.netImposable).Lie(13, t.basePAS).Lie(14, t.tauxPAS);
    b.Lie(15, t.pas).Lie(16, t.netPaye).Lie(17, t.cotisationsPatronales).Lie(18, t.coutEmployeur);
    b.Lie(19, x.echecs).Execute();
  }
  // Every payslip before its lines: the lines refer to them.
  b.Termine();
  for (const Bulletin& x : bulletins) {
    for (const LigneBulletin& y : x.lignes) {
      l.Lie(1, mois).Lie(2, static_cast<long long>(x.lIdSalarie)).Lie(3, y.ordre);
      l.Lie(4, static_cast<long long>(y.lIdRubrique)).Lie(5, y.sCodeRubrique).Lie(6, y.sDesignation);
      l.Lie(7, y.groupe).Lie(8, y.nature).Lie(9, y.methode).Lie(10, y.ok ? 1 : 0);
      l.Lie(11, y.dBase).Lie(12, y.dValeurCoefficient).Lie(13, y.dTauxSalarial);
      l.Lie(14, y.dMontantSalarial).Lie(15, y.dTauxPatronal).Lie(16, y.dMontantPatronal);
      l.Lie(17, y.sValeurBase).Lie(18, y.sCoeffBase).Lie(19, y.sValeurTauxSalarial);
      l.Lie(20, y.sValeurTauxPatronal).Execute();
    }
    for (const auto& [code, parts] : x.cumuls) {
      k.Lie(1, mois).Lie(2, static_cast<long long>(x.lIdSalarie)).Lie(3, ids[code]).Lie(4, code);
      k.Lie(5, parts.first).Lie(6, parts.second).Execute();
    }
  }
  l.Termine();
  k.Termine();
}

std::unique_ptr<Magasin> OuvreMagasinSqlite(const std::string& chemin, bool creer) {
  auto base = std::make_unique<Base>(chemin, creer);
  PrepareSchema(*base, chemin);
  return std::make_unique<MagasinSql>(std::move(base));
}

std::unique_ptr<Magasin> OuvreMagasinPostgres(const std::string& adresse, const std::string& application) {
  auto base = std::make_unique<BasePg>(adresse, application);
  PrepareSchemaPg(*base);
  return std::make_unique<MagasinSql>(std::move(base));
}

std::unique_ptr<Connexion> OuvreConnexion(const std::string& magasin, bool creer) {
  if (EstAdressePostgres(magasin)) return std::make_unique<BasePg>(magasin);
  return std::make_unique<Base>(magasin, creer);
}

std::unique_ptr<Magasin> OuvreMagasin(const std::string& magasin, bool creer) {
  if (EstAdressePostgres(magasin)) return OuvreMagasinPostgres(magasin);
  return OuvreMagasinSqlite(magasin, creer);
}

}  // namespace orvalis::paie
