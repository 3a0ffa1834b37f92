// What a month's pay run reads from the store and what it writes back.
//
// These are plain values, filled by a store (magasin.h) and free of any database: the month
// run works on them alone, so another store or several threads can drive it.
#ifndef ORVALIS_PAIE_DONNEES_H_
#define ORVALIS_PAIE_DONNEES_H_

#include <map>
#include <string>
#include <vector>

#include "orvalis/Recordset.h"
#include "orvalis/SalarieCalculRubrique.h"
#include "orvalis/VarCalculSalarie.h"
#include "tools/case_json.h"

namespace orvalis::paie {

struct Employeur {
  std::string nom, siret, adresse;
};

// A cumulative total that lines feed: `montant` is "BASE", "SALARIAL" or "PATRONAL", `part`
// the side of the total ("S" or "P"), `signe` +1 or -1.
struct Alimentation {
  std::string CodeCumul;
  std::string montant;
  char part = 'S';
  int signe = 1;
};

// One line of the pay plan.
struct RubriquePlan {
  std::vector<tools::Affectation<SalarieCalculRubrique>> champs;  // lIdRubrique, sCodeRubrique, ...
  Int32 lIdRubrique = 0;
  std::string sCodeRubrique, sDesignation, methode, groupe, nature;
  int ordre = 0;
  std::vector<Alimentation> alimente;
};

struct Cumul {
  Int32 IdCumul = 0;
  std::string CodeCumul, libelle;
  std::string plafondDe;  // empty: no cap
  double plafondTaux = 0;  // percent of plafondDe
};

struct Salarie {
  Int32 lIdSalarie = 0;
  std::string sMatricule, nom, prenom, emploi, adresse;
  std::vector<tools::Affectation<VarCalculSalarie>> champs;  // the situation of the month
  RsRef situations;    // rsSituationsExceptionnelles
  RsRef variables;     // RsVarSalaries
  RsRef variablesHisto;  // RsVarSalariesHisto
  RsRef historique;    // RsSalariesHisto
  RsRef cumulsHisto;   // gRsCumulsHistoriqueSal
  std::vector<std::size_t> rubriques;  // places in DonneesMois::plan, in the plan's order
};

struct DonneesMois {
  std::string mois;  // yyyymm
  Employeur employeur;
  RsRef constantesFixes, constantesFixesHistorique, constantes, constantesHistorique, taux,
      baremePAS;
  std::vector<std::string> preparations;
  std::vector<RubriquePlan> plan;  // in order
  std::vector<Cumul> cumuls;
  std::vector<Salarie> salaries;
};

// ---- Results ---------------------------------------------------------------------------

struct LigneBulletin {
  Int32 lIdRubrique = 0;
  int ordre = 0;
  std::string sCodeRubrique, sDesignation, groupe, nature, methode;
  bool ok = true;
  double dBase = 0, dValeurCoefficient = 0, dTauxSalarial = 0, dMontantSalarial = 0,
         dTauxPatronal = 0, dMontantPatronal = 0;
  // The audit trail: the designations the line named.
  std::string sValeurBase, sCoeffBase, sValeurTauxSalarial, sValeurTauxPatronal;
};

struct Totaux {
  double brut = 0, cotisationsSalariales = 0, netAvantImpot = 0, netImposable = 0, basePAS = 0,
         tauxPAS = 0, pas = 0, netPaye = 0, cotisationsPatronales = 0, coutEmployeur = 0;
};

struct Bulletin {
  Int32 lIdSalarie = 0;
  std::string sMatricule, nom, prenom, emploi, adresse;
  // Header values of the month, from the employee record.
  std::string sTypeModele, sCodeCategorie;
  double dIndiceMajoreM = 0, dBonification = 0, dTauxPoste = 0, dHeuresMois = 0;
  std::vector<LigneBulletin> lignes;
  std::map<std::string, std::pair<double, double>> cumuls;  // CodeCumul -> (S, P)
  Totaux totaux;
  Totaux annee;  // year to date, this month included (filled when read back)
  int echecs = 0;
};

struct ResultatMois {
  std::string mois;
  Employeur employeur;
  std::vector<Bulletin> bulletins;
  long lignes = 0, echecs = 0;
  double secondes = 0;
};

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_DONNEES_H_
