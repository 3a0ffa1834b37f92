// The family supplement paid over to a former spouse: the month's supplement net of the
// employee's social contributions, in the share of the children in that spouse's care.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/value.h"
#include "salary/indemnite_ligne.h"

namespace orvalis {

namespace {

// The share of the supplement and the children of the former spouses on the line's code:
// for each, its children out of all those that give the supplement, at its custody rate
// (chosen). No source, or no row, gives no share.
struct PartExConjoints {
  double dPart = 0;
  Int16 iEnfants = 0;
};

PartExConjoints PartDesExConjoints(const VarCalculSalarie& s, const std::string& sCodeRubrique) {
  PartExConjoints p;
  if (!s.rsExConjoints) return p;
  Recordset& rs = *s.rsExConjoints;
  if (rs.RecordCount() == 0) return p;
  // The rows of the code are summed, so their order does not matter.
  for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) {
    if (rs.Field("CodeRubrique").TexteOuVide() != sCodeRubrique) continue;
    const Int16 n = CInt(rs.Field("NbEnfantsACharge").NombreOuZero());
    const double dGarde = rs.Field("TauxTempsGarde").NombreOuZero() / 100;
    p.dPart = p.dPart + n * Div(1, s.iEnfant_ACharge) * dGarde;
    p.iEnfants += n;
  }
  return p;
}

}  // namespace

void MethodeCalculG_Nouv::CalculRubrique_ReversementSFT(VarCalculSalarie& InfosSalaries,
                                                        SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  const double M = dRechercheValeurCumul("SUPPFAM", "S");

  const double dCsgProf = dRechercheValeur_Constantes(gRsConstantes, "~TXCSGPROF");
  const double dCsgDeductible = dRechercheValeurTaux("URSDCSG");
  const double dCsg = dRechercheValeurTaux("URSCSG");
  const double dRds = dRechercheValeurTaux("URSRDS");
  const double dRafp = dRechercheValeurTaux("RAFP");
  const double dVieillesseDeplafonnee = dRechercheValeurTaux("URSRGVEU");
  const double dVieillessePlafonnee = dRechercheValeurTaux("URSRGVIEP");

  const double G = (dCsgDeductible + dCsg + dRds) * M * dCsgProf / 100;
  double dNet;
  if (s.bRegineFonctionnaire) {
    dNet = M - G - dRafp * M / 100;
  } else {
    dNet = M - G - (dVieillesseDeplafonnee + dVieillessePlafonnee) * M / 100;
  }

  const PartExConjoints p = PartDesExConjoints(s, Rubrique.sCodeRubrique);
  indemnites::Ligne(Rubrique, dNet, p.iEnfants, p.dPart * dNet);
}

}  // namespace orvalis
