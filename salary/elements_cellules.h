// The salary elements as one body for both engines: each runs over the cells of the month it
// is given, the four quadrants of the current engine or the two index cells of the historic
// one, and reads the engine through its common frame.
#ifndef ORVALIS_SALARY_ELEMENTS_CELLULES_H_
#define ORVALIS_SALARY_ELEMENTS_CELLULES_H_

#include <initializer_list>
#include <string>
#include <vector>

#include "generic/lecture_ligne.h"
#include "orvalis/MoteurCalcul.h"
#include "salary/traitement_outils.h"

namespace orvalis::salaire {

// ---- Indexed treatment ------------------------------------------------------------------
// The month of one index on its cells, in the order they are paid: the index used, its
// full month into dAnnuelPlein and the cells' salaries; the line pays the cells' salaries.
void RubriqueTraitementIndice(MoteurCalcul& m, double dIndiceStocke, double& dAnnuelPlein,
                              std::initializer_list<Quart> cellules, double dAbsenceNS,
                              SalarieCalculRubrique& Rubrique);
// "TRAITEMENT BASE PARTICULIER" on the cells of the new index.
void RubriqueTraitementBaseParticulier(const LectureLigne& l,
                                       std::initializer_list<Quart> cellules);
// "TRAITEMENT INDICIAIRE HEBDO MULTIPLE": the whole month of the index (dCoefficients, the
// shares of the cells it covers) into the full salary of the cell cible, which takes the
// schedule's amount.
void RubriqueHebdoMultiple(MoteurCalcul& m, VarCalculSalarie& s, SalarieCalculRubrique& Rubrique,
                           double dCoefficients, const Quart& cible);

// ---- Half pay, index bonus ------------------------------------------------------------------
// The half-pay coefficient into dCoefficient_DemiTraitement, from the month's half-pay days
// and the availability days of its cells.
void CoefficientDemiTraitement(MoteurCalcul& m, VarCalculSalarie& s, const std::string& sType,
                               Int16 iDemiTraitement, const std::vector<Quart>& cellules);
// The codes of the availability lines: "INDCOSFT", "INDCOBONIF", "INDCOTRAIT", "INDCOIR".
bool EstCodeDisponibilite(const std::string& sCode);
// A line's days in a cell: availability for those codes, otherwise half pay.
Int16 JoursDeLaLigne(const Quart& q, const std::string& sCodeRubrique);
// The amount prorated on the month's half pay, at the coefficient set by an earlier line.
double MontantProratise(const VarCalculSalarie& s, const TotauxDuMois& t, double dMntInitial);
// Whether a cell has days of half pay or of availability; of availability.
bool ADesJoursDeDemiTraitement(const std::vector<Quart>& cellules);
bool ADesJoursDeDisponibilite(const std::vector<Quart>& cellules);

// What the half-pay lines read of the month: its cells in their order, its half-pay total,
// and the coefficient set as the line's days are taken.
struct DemiMois {
  MoteurCalcul& m;
  VarCalculSalarie& s;
  std::vector<Quart> cellules;
  Int16 iDemiTraitementTotal;
  // The line's days by cell, the coefficient set first but for "INDCOSFT".
  std::vector<Int16> Jours(const std::string& sType, const std::string& sCodeRubrique) const;
};

// "DEMI TRAITEMENT INDICIAIRE" and "ALLOCATION COMPLEMENTAIRE".
void RubriqueDemiTraitement(const DemiMois& d, SalarieCalculRubrique& Rubrique,
                            const std::string& sType);

// Cells that share the treatment coefficient of their hours; the index bonus of their month
// goes into the full salary of plein and the real salary of reel.
struct Heures {
  std::vector<Quart> cellules;
  Quart plein;
  Quart reel;
};
void RubriqueBonification(MoteurCalcul& m, VarCalculSalarie& s, SalarieCalculRubrique& Rubrique,
                          std::initializer_list<Heures> heures, const TotauxDuMois& t);
// "DEMI TRAITEMENT BONIFICATION" and "ALLOCATION COMPLEMENTAIRE BONIFICATION", the groups of
// hours in the order the amounts add them.
void RubriqueDemiTraitementBonification(const DemiMois& d, SalarieCalculRubrique& Rubrique,
                                        const std::string& sType,
                                        std::initializer_list<Heures> heures);
// "SUPPLEMENT FAMILIAL IC" and "INDEMNITE COORDINATION (IND RES)".
void RubriqueSupplementFamilialIC(const DemiMois& d, SalarieCalculRubrique& Rubrique,
                                  const std::string& sType, Int16 iDispoOfficeTotal);
void RubriqueIndemniteCoordination(const DemiMois& d, SalarieCalculRubrique& Rubrique,
                                   const std::string& sType);

// ---- Residence allowance, family supplement ----------------------------------------------
// What the residence allowance reads of the month: the groups of cells that share a
// treatment coefficient, the cells in the order their real salaries add up, then in the
// order their salaries of the days add up, the totals, and whether the record lets the
// allowance be paid (the current engine: dNB_Jours_Max_Decalage_Mois not 0).
struct MoisResidence {
  std::vector<std::vector<Quart>> heures;
  std::vector<Quart> reels;
  std::vector<Quart> cellules;
  TotauxDuMois t;
  bool bJoursMaxDecalage;
};
void RubriqueIndemniteResidence(MoteurCalcul& m, VarCalculSalarie& s,
                                SalarieCalculRubrique& Rubrique, const MoisResidence& mois);

// What the family supplement reads of the month: the cells in the order their full
// salaries add up, in the order their shares add up, and the totals.
struct MoisSupplementFamilial {
  std::vector<Quart> pleins;
  std::vector<Quart> situation;
  TotauxDuMois t;
};
void RubriqueSupplementFamilial(MoteurCalcul& m, VarCalculSalarie& s,
                                SalarieCalculRubrique& Rubrique,
                                const MoisSupplementFamilial& mois);

// ---- Other allowances ------------------------------------------------------------------------
// "IAT": the month's end-of-activity and half-pay days out of its base.
void RubriqueIat(MoteurCalcul& m, SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
                 const TotauxDuMois& t);
// "CPA" and "CFA" on the cells' real salaries, over the month's presence.
void RubriqueCPA(const VarCalculSalarie& s, SalarieCalculRubrique& Rubrique,
                 const std::vector<Quart>& cellules, const TotauxDuMois& t);
void RubriqueCFA(MoteurCalcul& m, const VarCalculSalarie& s, SalarieCalculRubrique& Rubrique,
                 const std::vector<Quart>& cellules, Int16 iPresence);
// "SUJETIONS SPECIALES": the yearly reference of each index for its share of the month and
// its days on duty (the presence less the days off duty), the new index first.
struct PartIndice {
  double dReference;
  double dCoefficients;
  Int16 iPresence;
  Int16 iHorsService;
};
void RubriqueSujetionsSpeciales(SalarieCalculRubrique& Rubrique,
                                const std::vector<PartIndice>& parts);
// "INDEMNITE DE FORMATION": the days of training leave of the situations "C" and "N".
void RubriqueIndemniteFormation(MoteurCalcul& m, VarCalculSalarie& s,
                                SalarieCalculRubrique& Rubrique);

}  // namespace orvalis::salaire

#endif  // ORVALIS_SALARY_ELEMENTS_CELLULES_H_
