// Day counts of the exceptional situations of the month, family by family: from the
// recordset of situations (current form) or from the record's two situations (older form).
#include <algorithm>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/familles.h"
#include "period/periode_outils.h"

namespace orvalis {

namespace periode {

namespace {

bool EstCodeDe(const std::vector<std::string>& codes, const std::string& sCode) {
  return std::find(codes.begin(), codes.end(), sCode) != codes.end();
}

}  // namespace

void EcritFamille(VarCalculSalarie& InfosSalaries, const Famille& f, Int16 iIATA, Int16 iIATN,
                  Int16 iINTA, Int16 iINTN) {
  VarCalculSalarie& s = InfosSalaries;
  s.*f.iIATA = iIATA;
  s.*f.iIATN = iIATN;
  s.*f.iINTA = iINTA;
  s.*f.iINTN = iINTN;
  s.*f.iTotal = s.*f.iIATA + s.*f.iIATN + s.*f.iINTA + s.*f.iINTN;
}

void CompteFamille(MethodeCalculG_Nouv& m, VarCalculSalarie& InfosSalaries, const Famille& f) {
  Int16 iIATA = 0, iIATN = 0, iINTA = 0, iINTN = 0;
  ParcourtSituations(InfosSalaries, f.codes, [&](Recordset& rs) {
    const Situation x = LitSituation(rs);
    m.CalculNombreJour_Situation(x.sCode, x.sDateDebut, x.sDateFin, InfosSalaries, iIATA, iIATN,
                                 iINTA, iINTN);
  });
  EcritFamille(InfosSalaries, f, iIATA, iIATN, iINTA, iINTN);
}

void CompteFamilleAncienne(MethodeCalculG_Nouv& m, VarCalculSalarie& InfosSalaries,
                           const Famille& f) {
  VarCalculSalarie& s = InfosSalaries;
  Int16 iIATA = 0, iIATN = 0, iINTA = 0, iINTN = 0;
  if (EstCodeDe(f.codesAnciens, s.sSituation1))
    m.CalculNombreJour_Situation(s.sSituation1, s.sDateDebutSituation1, s.sDatefinSituation1, s,
                                 iIATA, iIATN, iINTA, iINTN);
  if (EstCodeDe(f.codesAnciens, s.sSituation2))
    m.CalculNombreJour_Situation(s.sSituation2, s.sDateDebutSituation2, s.sDatefinSituation2, s,
                                 iIATA, iIATN, iINTA, iINTN);
  EcritFamille(s, f, iIATA, iIATN, iINTA, iINTN);
}

}  // namespace periode

namespace {

using periode::Famille;
using S = VarCalculSalarie;

const Famille kDemiTraitement{{"DT", "LD", "GD", "CD", "DO50"}, {"DT", "LD", "GD", "CD"},
                              &S::iNBJ_DemiTraitementIATA,      &S::iNBJ_DemiTraitementIATN,
                              &S::iNBJ_DemiTraitementINTA,      &S::iNBJ_DemiTraitementINTN,
                              &S::iNBJ_DemiTraitement_Total};
const Famille kCPA{{"CP", "PF", "PD"}, {"PD", "PF", "CP"}, &S::iNBJ_CPAIATA,  &S::iNBJ_CPAIATN,
                   &S::iNBJ_CPAINTA,   &S::iNBJ_CPAINTN,   &S::iNBJ_CPA_Total};
const Famille kCFA{{"CF"},           {"CF"},           &S::iNBJ_CFAIATA,  &S::iNBJ_CFAIATN,
                   &S::iNBJ_CFAINTA, &S::iNBJ_CFAINTN, &S::iNBJ_CFA_Total};
const Famille kDispoOffice{{"DO"},
                           {"DO"},
                           &S::iNBJ_DispoOfficeIATA,
                           &S::iNBJ_DispoOfficeIATN,
                           &S::iNBJ_DispoOfficeINTA,
                           &S::iNBJ_DispoOfficeINTN,
                           &S::iNBJ_DispoOffice_Total};
const Famille kCongeMaternite{{"MM"},
                              {"MM"},
                              &S::iNBJ_CongeMaterniteTempsCompletIATA,
                              &S::iNBJ_CongeMaterniteTempsCompletIATN,
                              &S::iNBJ_CongeMaterniteTempsCompletINTA,
                              &S::iNBJ_CongeMaterniteTempsCompletINTN,
                              &S::iNBJ_CongeMaterniteTempsComplet_Total};
const Famille kFormation{{"CO"},
                         {"CO"},
                         &S::iNBJ_CongeFormationIATA,
                         &S::iNBJ_CongeFormationIATN,
                         &S::iNBJ_CongeFormationINTA,
                         &S::iNBJ_CongeFormationINTN,
                         &S::iNBJ_CongeFormation_Total};

// Availability and half pay together never pass 30 days: the new-index, new-hours count
// of availability gives way. The total is left as counted.
void PlafonneDispoOffice(VarCalculSalarie& s) {
  if (s.iNBJ_DispoOffice_Total + s.iNBJ_DemiTraitement_Total > 30)
    s.iNBJ_DispoOfficeINTN = 30 - (s.iNBJ_DispoOfficeIATA + s.iNBJ_DispoOfficeIATN +
                                   s.iNBJ_DispoOfficeINTA + s.iNBJ_DemiTraitement_Total);
}

}  // namespace

void MethodeCalculG_Nouv::CalculNombreJourDemiTraitement_NouvelleGestion(VarCalculSalarie& s) {
  periode::CompteFamille(*this, s, kDemiTraitement);
}
void MethodeCalculG_Nouv::CalculNombreJourCPA_NouvelleGestion(VarCalculSalarie& s) {
  periode::CompteFamille(*this, s, kCPA);
}
void MethodeCalculG_Nouv::CalculNombreJourCFA_NouvelleGestion(VarCalculSalarie& s) {
  periode::CompteFamille(*this, s, kCFA);
}
void MethodeCalculG_Nouv::CalculNombreJourDispoOffice_NouvelleGestion(VarCalculSalarie& s) {
  periode::CompteFamille(*this, s, kDispoOffice);
  PlafonneDispoOffice(s);
}
void MethodeCalculG_Nouv::CalculNombreJourCongeMaternite_NouvelleGestion(VarCalculSalarie& s) {
  periode::CompteFamille(*this, s, kCongeMaternite);
}
void MethodeCalculG_Nouv::CalculNombreJourFormation_NouvelleGestion(VarCalculSalarie& s) {
  periode::CompteFamille(*this, s, kFormation);
}

void MethodeCalculG_Nouv::CalculNombreJourDemiTraitement(VarCalculSalarie& s) {
  periode::CompteFamilleAncienne(*this, s, kDemiTraitement);
}
void MethodeCalculG_Nouv::CalculNombreJourCPA(VarCalculSalarie& s) {
  periode::CompteFamilleAncienne(*this, s, kCPA);
}
void MethodeCalculG_Nouv::CalculNombreJourCFA(VarCalculSalarie& s) {
  periode::CompteFamilleAncienne(*this, s, kCFA);
}
void MethodeCalculG_Nouv::CalculNombreJourDispoOffice(VarCalculSalarie& s) {
  periode::CompteFamilleAncienne(*this, s, kDispoOffice);
  PlafonneDispoOffice(s);
}
void MethodeCalculG_Nouv::CalculNombreJourCongeMaternite(VarCalculSalarie& s) {
  periode::CompteFamilleAncienne(*this, s, kCongeMaternite);
}
void MethodeCalculG_Nouv::CalculNombreJourFormation(VarCalculSalarie& s) {
  periode::CompteFamilleAncienne(*this, s, kFormation);
}

}  // namespace orvalis
