#include "paie/schema.h"

#include <algorithm>
#include <string>
#include <vector>

#include "paie/postgres.h"

namespace orvalis::paie {

namespace {

// Version 1. Months are keys "yyyymm"; `depuis` is the first month a value is in force.
constexpr const char* kSchema1 = R"sql(
CREATE TABLE employeur (
  id INTEGER PRIMARY KEY CHECK (id = 1),
  nom TEXT NOT NULL, siret TEXT, adresse TEXT);

-- Statutory values of gRsConstantesFixes, one column of that source a row.
CREATE TABLE valeurs_fixes (
  colonne TEXT NOT NULL, depuis TEXT NOT NULL, valeur REAL, libelle TEXT NOT NULL,
  PRIMARY KEY (colonne, depuis));

CREATE TABLE constantes (
  IdConstante INTEGER NOT NULL, CodeConstante TEXT NOT NULL, depuis TEXT NOT NULL,
  Valeur REAL, TauxMontant TEXT, libelle TEXT NOT NULL,
  PRIMARY KEY (IdConstante, depuis));

CREATE TABLE taux (
  IdTaux INTEGER NOT NULL, IdOrganisme INTEGER, CodeTaux TEXT NOT NULL, depuis TEXT NOT NULL,
  PartSalariale REAL, PartPatronale REAL, libelle TEXT NOT NULL,
  PRIMARY KEY (IdTaux, depuis));

-- The neutral-rate scales of the tax at source, walked in rowid order.
CREATE TABLE bareme_pas (
  TypeBareme TEXT NOT NULL, depuis TEXT NOT NULL,
  BorneInf REAL, BorneSup REAL, TauxNeutre REAL);

-- A total may be capped at a percentage of another (the RAFP base at 20 % of the treatment):
-- the engine and the store see the capped value.
CREATE TABLE cumuls (
  IdCumul INTEGER PRIMARY KEY, CodeCumul TEXT NOT NULL UNIQUE, libelle TEXT NOT NULL,
  plafond_de TEXT REFERENCES cumuls (CodeCumul), plafond_taux REAL);

-- The preparations run for every employee before the lines, in order.
CREATE TABLE preparations (ordre INTEGER PRIMARY KEY, methode TEXT NOT NULL);

-- The pay plan. Columns named like a field of SalarieCalculRubrique fill that field.
CREATE TABLE rubriques (
  lIdRubrique INTEGER PRIMARY KEY,
  sCodeRubrique TEXT NOT NULL UNIQUE,
  sDesignation TEXT NOT NULL,
  methode TEXT NOT NULL,
  ordre INTEGER NOT NULL UNIQUE,
  groupe TEXT NOT NULL CHECK (groupe IN ('BRUT', 'SANTE', 'ACCIDENT', 'RETRAITE', 'FAMILLE',
    'CHOMAGE', 'CSG', 'AUTRES', 'PAS', 'NET', 'INFO')),
  nature TEXT NOT NULL CHECK (nature IN ('GAIN', 'RETENUE', 'PATRONAL', 'INFO')),
  sValeurBase TEXT, lIdValeurBase INTEGER, sCoeffBase TEXT, lIdCoeffBase INTEGER,
  sValeurTauxSalarial TEXT, lIdValeurTauxSalarial INTEGER,
  sValeurTauxPatronal TEXT, lIdValeurTauxPatronal INTEGER,
  lIdTaux INTEGER, lIdOrganisme INTEGER, sTypeRubrique TEXT);

-- Which totals a line feeds: its base or one of its amounts, on a side, with a sign.
CREATE TABLE rubrique_cumuls (
  lIdRubrique INTEGER NOT NULL REFERENCES rubriques,
  CodeCumul TEXT NOT NULL REFERENCES cumuls (CodeCumul),
  montant TEXT NOT NULL CHECK (montant IN ('BASE', 'SALARIAL', 'PATRONAL')),
  part TEXT NOT NULL CHECK (part IN ('S', 'P')),
  signe INTEGER NOT NULL CHECK (signe IN (1, -1)),
  PRIMARY KEY (lIdRubrique, CodeCumul, montant, part));

CREATE TABLE salaries (
  lIdSalarie INTEGER PRIMARY KEY, sMatricule TEXT NOT NULL UNIQUE,
  nom TEXT NOT NULL, prenom TEXT, emploi TEXT, adresse TEXT);

-- The employee's situation: any field of VarCalculSalarie by name, in force from `depuis`.
CREATE TABLE situations (
  lIdSalarie INTEGER NOT NULL REFERENCES salaries, depuis TEXT NOT NULL,
  champ TEXT NOT NULL, valeur,
  PRIMARY KEY (lIdSalarie, champ, depuis));

CREATE TABLE situations_exceptionnelles (
  lIdSalarie INTEGER NOT NULL REFERENCES salaries,
  CodeSituationExceptionnelle TEXT NOT NULL,
  DateDebutSituationExceptionnelle TEXT NOT NULL,
  DateFinSituationExceptionnelle TEXT, Quotite REAL);

CREATE TABLE variables (
  lIdSalarie INTEGER NOT NULL REFERENCES salaries, mois TEXT NOT NULL,
  IdVariable INTEGER NOT NULL, CodeVariable TEXT NOT NULL, Valeur REAL, Dateeffet TEXT,
  TauxMontant TEXT,
  PRIMARY KEY (lIdSalarie, mois, IdVariable));

CREATE TABLE salarie_rubriques (
  lIdSalarie INTEGER NOT NULL REFERENCES salaries,
  lIdRubrique INTEGER NOT NULL REFERENCES rubriques,
  PRIMARY KEY (lIdSalarie, lIdRubrique));

-- Results, written a month at a time.
CREATE TABLE calculs (
  mois TEXT PRIMARY KEY, date_calcul TEXT NOT NULL, version TEXT NOT NULL,
  salaries INTEGER NOT NULL, lignes INTEGER NOT NULL, echecs INTEGER NOT NULL,
  secondes REAL NOT NULL);

CREATE TABLE bulletins (
  mois TEXT NOT NULL REFERENCES calculs ON DELETE CASCADE,
  lIdSalarie INTEGER NOT NULL REFERENCES salaries,
  sTypeModele TEXT, sCodeCategorie TEXT, dIndiceMajoreM REAL, dBonification REAL,
  dTauxPoste REAL, dHeuresMois REAL,
  brut REAL NOT NULL, cotisations_salariales REAL NOT NULL, net_avant_impot REAL NOT NULL,
  net_imposable REAL NOT NULL, base_pas REAL NOT NULL, taux_pas REAL NOT NULL,
  pas REAL NOT NULL, net_paye REAL NOT NULL, cotisations_patronales REAL NOT NULL,
  cout_employeur REAL NOT NULL, echecs INTEGER NOT NULL,
  PRIMARY KEY (mois, lIdSalarie));

-- One row per line: the amounts and the audit trail (method, designations, what they
-- resolved to). ok = 0: the engine gave false; the line feeds no total.
CREATE TABLE lignes (
  mois TEXT NOT NULL, lIdSalarie INTEGER NOT NULL, ordre INTEGER NOT NULL,
  lIdRubrique INTEGER NOT NULL, sCodeRubrique TEXT NOT NULL, sDesignation TEXT NOT NULL,
  groupe TEXT NOT NULL, nature TEXT NOT NULL, methode TEXT NOT NULL, ok INTEGER NOT NULL,
  dBase REAL, dValeurCoefficient REAL, dTauxSalarial REAL, dMontantSalarial REAL,
  dTauxPatronal REAL, dMontantPatronal REAL,
  sValeurBase TEXT, sCoeffBase TEXT, sValeurTauxSalarial TEXT, sValeurTauxPatronal TEXT,
  PRIMARY KEY (mois, lIdSalarie, ordre),
  FOREIGN KEY (mois, lIdSalarie) REFERENCES bulletins ON DELETE CASCADE);

CREATE TABLE cumuls_salarie (
  mois TEXT NOT NULL, lIdSalarie INTEGER NOT NULL, IdCumul INTEGER NOT NULL,
  CodeCumul TEXT NOT NULL, PartSalariale REAL NOT NULL, PartPatronale REAL NOT NULL,
  PRIMARY KEY (lIdSalarie, mois, CodeCumul),
  FOREIGN KEY (mois, lIdSalarie) REFERENCES bulletins ON DELETE CASCADE);
)sql";

// Version 2: a month may be computed by several workers at once. Its employees are cut into
// batches (`lots`), each written whole by the worker holding its row; the month is published
// (`publie` = 1) when every batch is written. A month not published is not done: it is not
// read back, and no later month takes its totals.
constexpr const char* kEtape2 = R"sql(
ALTER TABLE calculs ADD COLUMN publie INTEGER NOT NULL DEFAULT 1;

CREATE TABLE lots (
  mois TEXT NOT NULL REFERENCES calculs ON DELETE CASCADE,
  lot INTEGER NOT NULL,
  premier INTEGER NOT NULL, dernier INTEGER NOT NULL, salaries INTEGER NOT NULL,
  fait INTEGER NOT NULL DEFAULT 0,
  travailleur TEXT, fin TEXT, secondes DOUBLE PRECISION, lignes INTEGER, echecs INTEGER,
  PRIMARY KEY (mois, lot));

-- A month removed (--replace) removes its totals through their payslip: found by this index.
CREATE INDEX cumuls_salarie_bulletin ON cumuls_salarie (mois, lIdSalarie);
)sql";

// The tables whose rows are named by their rowid in messages: PostgreSQL has no rowid, so it
// gets a column of that name, numbered in the order the rows are written.
const char* const kTablesRowid[] = {"valeurs_fixes", "constantes", "taux", "bareme_pas",
                                     "rubrique_cumuls", "situations", "situations_exceptionnelles",
                                     "variables", "salarie_rubriques"};

}  // namespace

bool TableARowid(const std::string& table) {
  return std::find(std::begin(kTablesRowid), std::end(kTablesRowid), table) != std::end(kTablesRowid);
}

namespace {

void Remplace(std::string& s, const std::string& quoi, const std::string& par) {
  for (std::size_t p = s.find(quoi); p != std::string::npos; p = s.find(quoi, p + par.size()))
    s.replace(p, quoi.size(), par);
}

}  // namespace

std::string EtapeSchema(int depuis, bool postgres) {
  if (depuis == 1) return kEtape2;
  std::string s = kSchema1;
  if (!postgres) return s;
  // The same tables in PostgreSQL's types: doubles for REAL, a text for a situation's value
  // (SQLite keeps any type there; the field's type reads it back).
  Remplace(s, " REAL", " DOUBLE PRECISION");
  Remplace(s, "champ TEXT NOT NULL, valeur,", "champ TEXT NOT NULL, valeur TEXT,");
  for (const char* t : kTablesRowid)
    s += std::string("ALTER TABLE ") + t + " ADD COLUMN rowid BIGINT GENERATED BY DEFAULT AS IDENTITY;\n";
  return s;
}

namespace {

void AppliqueEtapes(Connexion& base, int version) {
  for (int v = version; v < kVersionSchema; ++v) base.Execute(EtapeSchema(v, dynamic_cast<BasePg*>(&base) != nullptr));
}

[[noreturn]] void TropRecent(const std::string& nom, long long version) {
  throw ErreurMagasin(nom + ": schema version " + std::to_string(version) +
                      " is newer than this program's (" + std::to_string(kVersionSchema) + ")");
}

[[noreturn]] void PasUnMagasin(const std::string& nom, long long version) {
  throw ErreurMagasin(nom + ": not an Orvalis store (schema version " + std::to_string(version) + ")");
}

}  // namespace

void PrepareSchema(Base& base, const std::string& chemin) {
  int version = 0;
  {
    Requete r = base.Prepare("PRAGMA user_version");
    if (r.Pas()) version = static_cast<int>(r.Entier(0));
  }
  if (version > kVersionSchema) TropRecent(chemin, version);
  // A negative version was never written by this program: the file is not one of its stores.
  if (version < 0) PasUnMagasin(chemin, version);
  if (version == 0) {
    Requete r = base.Prepare("SELECT count(*) FROM sqlite_master");
    if (r.Pas() && r.Entier(0) > 0) throw ErreurMagasin(chemin + ": not an Orvalis store (no schema version)");
  }
  if (version == kVersionSchema) return;
  EnTransaction(base, [&] {
    AppliqueEtapes(base, version);
    base.Execute("PRAGMA user_version = " + std::to_string(kVersionSchema));
  });
}

void PrepareSchemaPg(BasePg& base) {
  EnTransaction(base, [&] {
    // Two programs opening a new database at once: one creates, the other then finds it made.
    base.Execute("SELECT pg_advisory_xact_lock(7286010)");
    long long version = 0;
    if (base.TableExiste("version_schema")) {
      Requete r = base.Prepare("SELECT version FROM version_schema");
      if (r.Pas()) version = r.Entier(0);
    } else {
      Requete r = base.Prepare("SELECT count(*) FROM pg_tables WHERE schemaname = current_schema()");
      if (r.Pas() && r.Entier(0) > 0)
        throw ErreurMagasin(base.Affichee() + ": not an Orvalis store (no table version_schema)");
      base.Execute("CREATE TABLE version_schema (version INTEGER NOT NULL)");
      base.Execute("INSERT INTO version_schema VALUES (0)");
    }
    if (version > kVersionSchema) TropRecent(base.Affichee(), version);
    if (version < 0) PasUnMagasin(base.Affichee(), version);
    if (version == kVersionSchema) return;
    AppliqueEtapes(base, static_cast<int>(version));
    Requete u = base.Prepare("UPDATE version_schema SET version = ?");
    u.Lie(1, kVersionSchema).Execute();
  });
}

}  // namespace orvalis::paie
