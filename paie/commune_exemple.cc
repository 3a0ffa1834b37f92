// The sample commune of "Val-d'Orvalis": the 2024 published values, the pay plan, the agents.
#include "paie/commune_exemple.h"

#include <filesystem>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "paie/magasin.h"
#include "paie/mois_outils.h"
#include "paie/sqlite.h"

namespace orvalis::paie {

namespace {

constexpr const char* k2024 = "202401";

// Statutory values of the month (gRsConstantesFixes), in force since January 2024.
struct ValeurFixe {
  const char* colonne;
  double valeur;
  const char* libelle;
};
constexpr ValeurFixe kValeursFixes[] = {
    // The engine works on the yearly value: a monthly treatment is index x point / 12.
    {"Point", 59.0734, "Valeur annuelle du point d'indice (4,92278 EUR par mois)"},
    {"PlafSecu", 3864, "Plafond mensuel de la sécurité sociale"},
    {"SmicHor", 11.65, "SMIC horaire brut"},
    {"HrsMois", 151.67, "Durée mensuelle légale (heures)"},
    {"IndMinRemuneration", 366, "Indice majoré minimum de traitement"},
    {"IndResid", 313, "Indice plancher de l'indemnité de résidence"},
    {"IndInform", 0, "Indice de la prime informatique"},
    {"IndFndSol", 0, "Indice plancher du fonds de solidarité"},
    {"TxSalaire1", 4.25, "Taxe sur les salaires, taux normal (%)"},
    {"TxSalaire2", 8.5, "Taxe sur les salaires, taux majoré (%)"},
    {"SFFixe1", 2.29, "SFT, part fixe pour 1 enfant"},
    {"SFFixe2", 10.67, "SFT, part fixe pour 2 enfants"},
    {"SFvar2", 3, "SFT, part proportionnelle pour 2 enfants (% du traitement)"},
    {"SFFixe3", 15.24, "SFT, part fixe pour 3 enfants"},
    {"SFvar3", 8, "SFT, part proportionnelle pour 3 enfants (% du traitement)"},
    {"SFFixeSup", 4.57, "SFT, part fixe par enfant au-delà du troisième"},
    {"SFvarsup", 6, "SFT, part proportionnelle par enfant au-delà du troisième (%)"},
    {"IndMinSF", 454, "SFT, indice majoré plancher"},
    {"IndMaxSF", 722, "SFT, indice majoré plafond"},
    {"EluTxFrais", 25.5, "Élus : frais d'emploi non imposables, % de l'indice terminal (indemnité "
                         "du maire d'une commune de moins de 500 habitants)"},
};

struct Constante {
  int id;
  const char* code;
  double valeur;
  const char* type;
  const char* libelle;
};
constexpr Constante kConstantes[] = {
    {20, "INDMAJELU", 830, "M", "Indice majoré terminal de la fonction publique (indemnités des élus)"},
    {21, "SMICANNUEL", 21203.47, "M", "SMIC annuel (seuil d'imposition des apprentis)"},
    {22, "DEMISMIC", 883.46, "M", "Abattement des contrats courts (50 % du SMIC mensuel)"},
    {30, "HRSAPPR", 151.67, "M", "Heures mensuelles d'un apprenti à temps plein"},
    {40, "ABATCSG", 98.25, "T", "Assiette de la CSG et de la CRDS (% du brut)"},
};

struct Taux {
  int id, organisme;
  const char* code;
  double salarial, patronal;
  const char* libelle;
};
constexpr Taux kTaux[] = {
    {1, 1, "CNRACL", 11.10, 31.65, "Retraite CNRACL"},
    {2, 2, "RAFP", 5, 5, "Retraite additionnelle de la fonction publique"},
    {3, 3, "IRCANTECA", 2.80, 4.20, "IRCANTEC tranche A"},
    {4, 3, "IRCANTECB", 6.95, 12.55, "IRCANTEC tranche B"},
    {5, 4, "URSVIEPL", 6.90, 8.55, "Assurance vieillesse plafonnée"},
    {6, 4, "URSVIEDE", 0.40, 2.02, "Assurance vieillesse déplafonnée"},
    {7, 4, "URSMALRS", 0, 9.88, "Maladie, régime spécial"},
    {8, 4, "URSMALRG", 0, 7.00, "Maladie, régime général (taux réduit, rémunération <= 2,5 SMIC)"},
    {9, 5, "ATIACL", 0, 0.40, "Allocation temporaire d'invalidité"},
    {10, 4, "URSAT1", 0, 1.60, "Accident du travail"},
    {11, 4, "URSAF", 0, 3.45, "Allocations familiales (taux réduit)"},
    {12, 6, "ASSCHO", 0, 4.05, "Assurance chômage"},
    {13, 4, "URSDCSG", 6.8, 0, "CSG déductible"},
    {14, 4, "URSCSG", 2.4, 0, "CSG non déductible"},
    {15, 4, "URSRDS", 0.5, 0, "CRDS"},
};

// The neutral-rate grid of the tax at source, metropolitan France, monthly, 2024.
constexpr double kBornesPAS[] = {0,    1591, 1653, 1759, 1877,  2006,  2113,  2253,  2666,  3052,
                                 3476, 3913, 4566, 5475, 6851,  8557,  11877, 16086, 25251, 54088};
constexpr double kTauxPAS[] = {0,     0.005, 0.013, 0.021, 0.029, 0.035, 0.041, 0.053, 0.075, 0.099,
                               0.119, 0.138, 0.158, 0.179, 0.2,   0.24,  0.28,  0.33,  0.38,  0.43};

const char* const kCumuls[][2] = {
    {"BASE", "Traitement de base"},
    {"BONIF", "Nouvelle bonification indiciaire"},
    {"INDRES", "Indemnité de résidence"},
    {"SUPPFAM", "Supplément familial de traitement"},
    {"BASEPRP", "Primes et indemnités"},
    {"BRUT", "Salaire brut"},
    {"TBIETPRIME", "Traitement de base et primes"},
    {"ASSCNRACL", "Assiette CNRACL"},
    {"ASSRAFP", "Assiette RAFP"},
    {"ASSCSG", "Assiette CSG/CRDS"},
    {"ASSURSTOT", "Assiette URSSAF totalité"},
    {"ASSURSTRA", "Assiette URSSAF tranche A"},
    {"ASSIRCTRA", "Assiette IRCANTEC tranche A"},
    {"TOTDEDUCT", "Total des retenues déductibles"},
    {"TOTNDEDUCT", "Total des retenues non déductibles"},
    {"NETIMPOS", "Net imposable"},
    {"NETPAYER", "Net à payer avant impôt"},
};

struct Ligne {
  int id, ordre;
  const char* code;
  const char* libelle;
  const char* methode;
  const char* groupe;
  const char* nature;
  const char* base;
  int idBase;
  const char* coeff;
  int idCoeff;
  const char* tauxS;
  int idTauxS;
  const char* tauxP;
  int idTaux;
  const char* alimente;  // "CODE:S" employee amount, "CODE:-S" subtracted, "CODE:P" employer amount
};

// Feeds of a gross element: every gross base, the taxable net and the net.
#define GAIN_BASES "BRUT:S TBIETPRIME:S ASSCSG:S ASSURSTOT:S ASSURSTRA:S ASSIRCTRA:S NETIMPOS:S NETPAYER:S"
#define RETENUE_DEDUCTIBLE "TOTDEDUCT:S NETIMPOS:-S NETPAYER:-S"
#define RETENUE_NON_DEDUCTIBLE "TOTNDEDUCT:S NETPAYER:-S"
constexpr const char* kOrg = "TAUX DE COTISATION DE L'ORGANISME";

constexpr Ligne kPlan[] = {
    {100, 100, "TRAITIND", "Traitement indiciaire", "TRAITEMENT INDICIAIRE MOIS", "BRUT", "GAIN",
     nullptr, 0, nullptr, 0, nullptr, 0, nullptr, 0, "BASE:S ASSCNRACL:S " GAIN_BASES},
    {105, 105, "TRAITHOR", "Traitement horaire", "TRAITEMENT HORAIRE MOIS", "BRUT", "GAIN", nullptr,
     0, nullptr, 0, nullptr, 0, nullptr, 0, "BASE:S " GAIN_BASES},
    {110, 110, "NBI", "Nouvelle bonification indiciaire", "BONIFICIATION INDICIAIRE", "BRUT", "GAIN",
     nullptr, 0, nullptr, 0, nullptr, 0, nullptr, 0, "BONIF:S ASSCNRACL:S " GAIN_BASES},
    {120, 120, "INDRES", "Indemnité de résidence", "INDEMNITE DE RESIDENCE", "BRUT", "GAIN", nullptr,
     0, nullptr, 0, nullptr, 0, nullptr, 0, "INDRES:S ASSRAFP:S " GAIN_BASES},
    {130, 130, "SFT", "Supplément familial de traitement", "SUPPLEMENT FAMILIAL", "BRUT", "GAIN",
     nullptr, 0, nullptr, 0, nullptr, 0, nullptr, 0, "SUPPFAM:S ASSRAFP:S " GAIN_BASES},
    {140, 140, "IFSE", "IFSE (régime indemnitaire)", "MONTANT FIXE", "BRUT", "GAIN", nullptr, 0,
     nullptr, 0, "UNE VARIABLE SALARIE", 501, nullptr, 0, "BASEPRP:S ASSRAFP:S " GAIN_BASES},
    {150, 150, "APPRENTI", "Rémunération de l'apprenti", "BASE x POURCENTAGE SMIC", "BRUT", "GAIN",
     "UNE CONSTANTE", 30, nullptr, 0, "UNE VARIABLE SALARIE", 502, nullptr, 0, "BASE:S " GAIN_BASES},
    {160, 160, "ELUIND", "Indemnité de fonction", "TRAITEMENT INDICIAIRE ELUS MOIS", "BRUT", "GAIN",
     nullptr, 0, nullptr, 0, nullptr, 0, nullptr, 0, GAIN_BASES},
    {200, 200, "MALRS", "Maladie, maternité, invalidité, décès (régime spécial)", "BASE x TAUX",
     "SANTE", "PATRONAL", "BASE CNRACL", 0, nullptr, 0, nullptr, 0, kOrg, 7, ""},
    {205, 205, "MALRG", "Maladie, maternité, invalidité, décès", "BASE x TAUX", "SANTE", "PATRONAL",
     "BASE URSSAF TOTALITE", 0, nullptr, 0, nullptr, 0, kOrg, 8, ""},
    {210, 210, "ATIACL", "Allocation temporaire d'invalidité", "BASE x TAUX", "ACCIDENT", "PATRONAL",
     "BASE CNRACL", 0, nullptr, 0, nullptr, 0, kOrg, 9, ""},
    {215, 215, "ATRG", "Accidents du travail, maladies professionnelles", "BASE x TAUX", "ACCIDENT",
     "PATRONAL", "BASE URSSAF TOTALITE", 0, nullptr, 0, nullptr, 0, "TAUX ACCIDENT DE TRAVAIL", 10, ""},
    {300, 300, "CNRACL", "Retraite CNRACL", "BASE x TAUX", "RETRAITE", "RETENUE", "BASE CNRACL", 0,
     nullptr, 0, kOrg, 0, kOrg, 1, RETENUE_DEDUCTIBLE},
    {305, 305, "RAFP", "Retraite additionnelle de la fonction publique", "BASE x TAUX", "RETRAITE",
     "RETENUE", "BASE RAFP", 0, nullptr, 0, kOrg, 0, kOrg, 2, RETENUE_DEDUCTIBLE},
    {310, 310, "IRCANTECA", "Retraite complémentaire IRCANTEC tranche A", "BASE x TAUX", "RETRAITE",
     "RETENUE", "BASE IRCANTEC TRANCHE A", 0, nullptr, 0, kOrg, 0, kOrg, 3, RETENUE_DEDUCTIBLE},
    {315, 315, "URSVIEPL", "Sécurité sociale plafonnée", "BASE x TAUX", "RETRAITE", "RETENUE",
     "BASE URSSAF TRANCHE A", 0, nullptr, 0, kOrg, 0, kOrg, 5, RETENUE_DEDUCTIBLE},
    {320, 320, "URSVIEDE", "Sécurité sociale déplafonnée", "BASE x TAUX", "RETRAITE", "RETENUE",
     "BASE URSSAF TOTALITE", 0, nullptr, 0, kOrg, 0, kOrg, 6, RETENUE_DEDUCTIBLE},
    {400, 400, "ALLFAM", "Allocations familiales", "BASE x TAUX", "FAMILLE", "PATRONAL",
     "SALAIRE BRUT", 0, nullptr, 0, nullptr, 0, kOrg, 11, ""},
    {500, 500, "CHOMAGE", "Assurance chômage", "BASE x TAUX", "CHOMAGE", "PATRONAL",
     "BASE URSSAF TRANCHE A", 0, nullptr, 0, nullptr, 0, kOrg, 12, ""},
    {600, 600, "CSGDED", "CSG déductible de l'impôt sur le revenu", "BASE x TAUX", "CSG", "RETENUE",
     "BASE CSG/RDS", 0, "UNE CONSTANTE", 40, kOrg, 0, nullptr, 13, RETENUE_DEDUCTIBLE},
    {605, 605, "CSGNDED", "CSG non déductible de l'impôt sur le revenu", "BASE x TAUX", "CSG",
     "RETENUE", "BASE CSG/RDS", 0, "UNE CONSTANTE", 40, kOrg, 0, nullptr, 14, RETENUE_NON_DEDUCTIBLE},
    {610, 610, "CRDS", "CRDS non déductible de l'impôt sur le revenu", "BASE x TAUX", "CSG",
     "RETENUE", "BASE CSG/RDS", 0, "UNE CONSTANTE", 40, kOrg, 0, nullptr, 15, RETENUE_NON_DEDUCTIBLE},
    {900, 900, "PAS", "Impôt sur le revenu prélevé à la source", "BASE x TAUX", "PAS", "RETENUE",
     "SALAIRE IMPOSABLE ABATTU", 0, nullptr, 0, "TAUX PAS", 0, nullptr, 0, ""},
};

// The kinds of agents and the lines each gets.
enum class Sorte { Titulaire, TempsPartiel, NonComplet, Contractuel, Horaire, Apprenti, Maire, Adjoint };

std::vector<int> LignesDe(Sorte s, bool nbi, bool enfants, bool zone, bool ifse) {
  std::vector<int> l;
  auto ajoute = [&](std::initializer_list<int> ids) { l.insert(l.end(), ids); };
  switch (s) {
    case Sorte::Titulaire:
    case Sorte::TempsPartiel:
    case Sorte::NonComplet:
      ajoute({100});
      if (nbi) ajoute({110});
      if (zone) ajoute({120});
      if (enfants) ajoute({130});
      if (ifse) ajoute({140});
      ajoute({200, 210, 300, 305, 400, 600, 605, 610, 900});
      break;
    case Sorte::Contractuel:
    case Sorte::Horaire:
      ajoute({s == Sorte::Horaire ? 105 : 100});
      if (zone) ajoute({120});
      if (enfants) ajoute({130});
      if (ifse) ajoute({140});
      ajoute({205, 215, 310, 315, 320, 400, 500, 600, 605, 610, 900});
      break;
    case Sorte::Apprenti:
      ajoute({150, 205, 215, 400, 500, 900});
      break;
    case Sorte::Maire:
    case Sorte::Adjoint:
      ajoute({160, 310, 600, 605, 610, 900});
      break;
  }
  return l;
}

const char* const kNoms[] = {"Martin", "Bernard", "Thomas", "Petit", "Robert", "Richard", "Durand",
                             "Dubois", "Moreau", "Laurent", "Simon", "Michel", "Lefebvre", "Leroy",
                             "Roux", "David", "Bertrand", "Morel", "Fournier", "Girard", "Bonnet",
                             "Dupont", "Lambert", "Fontaine", "Rousseau", "Vincent", "Muller",
                             "Lefevre", "Faure", "Andre", "Mercier", "Blanc", "Guerin", "Boyer",
                             "Garnier", "Chevalier", "Francois", "Legrand", "Gauthier", "Garcia"};
const char* const kPrenoms[] = {"Marie", "Jean", "Nathalie", "Pierre", "Isabelle", "Michel",
                                "Sylvie", "Philippe", "Catherine", "Alain", "Sandrine", "Patrick",
                                "Valérie", "Nicolas", "Christine", "Christophe", "Stéphanie",
                                "Laurent", "Céline", "Frédéric"};

// One agent of the first forty: its kind, category, index, NBI points, children, zone.
struct Profil {
  Sorte sorte;
  const char* categorie;
  int indice, nbi, enfants, zone, ifse;
  const char* emploi;
};
constexpr Profil kProfils[kAgentsCommune] = {
    {Sorte::Titulaire, "C", 366, 0, 0, 0, 0, "Adjoint technique"},
    {Sorte::Titulaire, "C", 370, 0, 1, 0, 180, "Adjoint administratif"},
    {Sorte::Titulaire, "C", 380, 10, 2, 1, 200, "Agent de maîtrise"},
    {Sorte::Titulaire, "C", 392, 0, 3, 0, 180, "Adjoint technique principal"},
    {Sorte::Titulaire, "C", 402, 15, 0, 3, 220, "Adjoint administratif principal"},
    {Sorte::Titulaire, "C", 415, 0, 4, 0, 200, "Agent de maîtrise principal"},
    {Sorte::Titulaire, "C", 430, 0, 2, 0, 250, "Adjoint technique principal"},
    {Sorte::Titulaire, "C", 450, 20, 1, 1, 250, "ATSEM principal"},
    {Sorte::Titulaire, "B", 390, 0, 0, 0, 300, "Rédacteur"},
    {Sorte::Titulaire, "B", 420, 15, 2, 0, 320, "Technicien"},
    {Sorte::Titulaire, "B", 460, 0, 3, 3, 350, "Rédacteur principal"},
    {Sorte::Titulaire, "B", 500, 0, 0, 0, 380, "Technicien principal"},
    {Sorte::Titulaire, "B", 530, 10, 2, 0, 400, "Animateur principal"},
    {Sorte::Titulaire, "B", 560, 0, 1, 1, 420, "Rédacteur principal de 1re classe"},
    {Sorte::Titulaire, "A", 450, 0, 0, 0, 500, "Attaché"},
    {Sorte::Titulaire, "A", 520, 25, 2, 0, 600, "Ingénieur"},
    {Sorte::Titulaire, "A", 600, 0, 3, 3, 700, "Attaché principal"},
    {Sorte::Titulaire, "A", 673, 30, 2, 0, 900, "Directeur général des services"},
    {Sorte::Titulaire, "A", 700, 0, 5, 1, 800, "Ingénieur principal"},
    {Sorte::Titulaire, "A", 830, 0, 1, 0, 1000, "Ingénieur hors classe"},
    {Sorte::Titulaire, "C", 368, 0, 0, 0, 150, "Adjoint d'animation"},
    {Sorte::Titulaire, "C", 375, 0, 2, 0, 150, "Adjoint du patrimoine"},
    {Sorte::TempsPartiel, "C", 385, 0, 2, 0, 180, "Adjoint administratif"},
    {Sorte::TempsPartiel, "B", 440, 0, 3, 0, 300, "Rédacteur"},
    {Sorte::TempsPartiel, "A", 550, 0, 1, 0, 500, "Attaché"},
    {Sorte::TempsPartiel, "C", 400, 10, 0, 0, 200, "Auxiliaire de puériculture"},
    {Sorte::NonComplet, "C", 366, 0, 0, 0, 0, "Adjoint technique (30 h)"},
    {Sorte::NonComplet, "C", 378, 0, 2, 0, 100, "Adjoint d'animation (30 h)"},
    {Sorte::NonComplet, "B", 410, 0, 1, 0, 150, "Assistant d'enseignement artistique (30 h)"},
    {Sorte::Contractuel, "C", 366, 0, 0, 0, 0, "Agent d'entretien contractuel"},
    {Sorte::Contractuel, "C", 380, 0, 1, 0, 120, "Agent d'accueil contractuel"},
    {Sorte::Contractuel, "B", 420, 0, 2, 0, 250, "Technicien contractuel"},
    {Sorte::Contractuel, "A", 480, 0, 0, 0, 400, "Chargé de mission"},
    {Sorte::Contractuel, "B", 450, 0, 3, 0, 300, "Animateur contractuel"},
    {Sorte::Horaire, "C", 0, 0, 0, 0, 0, "Surveillant de cantine (vacataire)"},
    {Sorte::Horaire, "C", 0, 0, 1, 0, 0, "Animateur périscolaire (vacataire)"},
    {Sorte::Horaire, "C", 0, 0, 0, 0, 0, "Agent d'entretien (vacataire)"},
    {Sorte::Apprenti, "APPRENTI", 0, 0, 0, 0, 0, "Apprenti jardinier (2e année)"},
    {Sorte::Maire, "ELUS", 0, 0, 0, 0, 0, "Maire"},
    {Sorte::Adjoint, "ELUS", 0, 0, 0, 0, 0, "Premier adjoint au maire"},
};

class Ecrivain {
 public:
  explicit Ecrivain(Base& b)
      : situation_(b.Prepare("INSERT INTO situations VALUES (?, ?, ?, ?)")),
        variable_(b.Prepare("INSERT INTO variables VALUES (?, ?, ?, ?, ?, '', ?)")),
        ligne_(b.Prepare("INSERT INTO salarie_rubriques VALUES (?, ?)")) {}

  void Champ(long long id, const std::string& champ, const Value& v) {
    situation_.Lie(1, id).Lie(2, std::string(k2024)).Lie(3, champ).Lie(4, v).Execute();
  }
  void Variable(long long id, int idVar, const char* code, double valeur, const char* type) {
    for (int m = 0; m < 12; ++m) {
      variable_.Lie(1, id).Lie(2, DecaleMois(k2024, m)).Lie(3, idVar).Lie(4, std::string(code));
      variable_.Lie(5, valeur).Lie(6, std::string(type)).Execute();
    }
  }
  void Ligne(long long id, int rubrique) { ligne_.Lie(1, id).Lie(2, rubrique).Execute(); }

 private:
  Requete situation_, variable_, ligne_;
};

void EcritAgent(Base& base, Ecrivain& e, int n) {
  const Profil& p = kProfils[n % kAgentsCommune];
  const int tour = n / kAgentsCommune;
  const long long id = 1001 + n;
  // Beyond the first forty, the same kinds with indexes stepped up, within the scale.
  const int indice = p.indice == 0 ? 0 : std::min(830, p.indice + (tour % 12) * 7);
  {
    Requete r = base.Prepare("INSERT INTO salaries VALUES (?, ?, ?, ?, ?, ?)");
    r.Lie(1, id).Lie(2, fmt::format("{:06d}", n + 1)).Lie(3, std::string(kNoms[n % 40]));
    r.Lie(4, std::string(kPrenoms[(n * 7 + n / 40) % 20])).Lie(5, std::string(p.emploi));
    r.Lie(6, fmt::format("{} rue des Tilleuls, 45000 Val-d'Orvalis", 1 + n % 97)).Execute();
  }
  const bool titulaire = p.sorte == Sorte::Titulaire || p.sorte == Sorte::TempsPartiel ||
                         p.sorte == Sorte::NonComplet;
  const bool elu = p.sorte == Sorte::Maire || p.sorte == Sorte::Adjoint;
  const char* modele = titulaire ? "INDTIT"
                       : p.sorte == Sorte::Contractuel ? "INDNTI"
                       : p.sorte == Sorte::Horaire ? "HORAIR"
                       : elu ? "ELUS" : "APPREN";
  std::string occupation = "C";
  double tauxPoste = 100, heuresHebdo = 35, heuresMois = 151.67;
  if (p.sorte == Sorte::TempsPartiel) {
    occupation = "P";
    tauxPoste = 80;
  } else if (p.sorte == Sorte::NonComplet) {
    occupation = "T";
    heuresHebdo = 30;
    heuresMois = 130;
  } else if (p.sorte == Sorte::Horaire) {
    heuresHebdo = 0;
    heuresMois = 40 + 20 * (n % 3);
  }
  auto c = [&](const char* champ, const Value& v) { e.Champ(id, champ, v); };
  c("sTypeModele", modele);
  c("sCodeModele", modele);
  c("sCodeCategorie", p.categorie);
  c("bRegineFonctionnaire", titulaire ? 1 : 0);
  c("iEnfant_ACharge", p.enfants);
  c("iZoneResid", p.zone);
  c("sDateDebut", fmt::format("01/{:02d}/{}", 1 + n % 12, 2005 + n % 18));
  c("sDateFin", p.sorte == Sorte::Apprenti ? "31/08/2025" : "");
  for (const char* suffixe : {"", "MoisPrec"}) {
    c(fmt::format("sOccupationPoste{}", suffixe).c_str(), occupation);
    c(fmt::format("iTypeCalculHeure{}", suffixe).c_str(), 1);
    c(fmt::format("dTauxPoste{}", suffixe).c_str(), tauxPoste);
    c(fmt::format("dHeuresHebdo{}", suffixe).c_str(), heuresHebdo);
    c(fmt::format("dDureeHebdoLegale{}", suffixe).c_str(), 35);
  }
  c("dHeuresMois", heuresMois);
  c("dHeuresMensMoisPrec", heuresMois);
  if (p.sorte == Sorte::NonComplet) {
    c("dHeuresHebdoOrigineTNC", 30);
    c("dHeuresHebdoOrigineTNCMoisPrec", 30);
    c("dTauxPosteTNC", 100);
    c("dTauxPosteTNCMoisPrec", 100);
  }
  c("sDateChangementHeures", "01/01/2020");
  c("sDateChangementIndice", "01/01/2023");
  c("sDateMajIndiceReglementaire", "01/01/2100");
  c("dNB_Jours_Max_Decalage_Mois", 30);
  if (indice > 0) {
    c("dIndiceMajoreM", indice);
    c("dIndiceMajoreA", indice);
  }
  if (p.nbi > 0) c("dBonification", p.nbi);
  if (elu) {
    c("dTauxMaire", p.sorte == Sorte::Maire ? 55 : 22);
    c("sEluPeriodicite", "1");
  }
  c("iTauxAtUtilise", 1);
  c("bCotise_URSSAF", titulaire ? 0 : 1);
  c("bCotise_IRCANTEC", titulaire || p.sorte == Sorte::Apprenti ? 0 : 1);
  c("sTypeBareme", "MM");
  // One agent in three has an individual rate from the tax office; the others the grid.
  if (n % 3 == 1) {
    c("dTauxPAS", 0.021 + 0.008 * (n % 5));
    c("bTauxPasValide", 1);
  } else {
    c("dTauxPAS", -1);
    c("bTauxPasValide", 0);
  }

  if (p.ifse > 0) e.Variable(id, 501, "IFSE", p.ifse, "M");
  if (p.sorte == Sorte::Apprenti) e.Variable(id, 502, "APPRSMIC", 53, "T");
  if (p.sorte == Sorte::Horaire) e.Variable(id, 503, "TXHEURES", 12.50 + 0.5 * (n % 3), "M");
  for (int ligne : LignesDe(p.sorte, p.nbi > 0, p.enfants > 0, p.zone > 0, p.ifse > 0)) e.Ligne(id, ligne);
}

void EcritReference(Base& base) {
  base.Execute(
      "INSERT INTO employeur VALUES (1, 'Commune de Val-d''Orvalis', '214 500 017 00012', "
      "'Hôtel de ville, 1 place de la Mairie, 45000 Val-d''Orvalis')");
  {
    Requete r = base.Prepare("INSERT INTO valeurs_fixes VALUES (?, ?, ?, ?)");
    for (const auto& v : kValeursFixes)
      r.Lie(1, std::string(v.colonne)).Lie(2, std::string(k2024)).Lie(3, v.valeur).Lie(4, std::string(v.libelle)).Execute();
  }
  {
    Requete r = base.Prepare("INSERT INTO constantes VALUES (?, ?, ?, ?, ?, ?)");
    for (const auto& v : kConstantes)
      r.Lie(1, v.id).Lie(2, std::string(v.code)).Lie(3, std::string(k2024)).Lie(4, v.valeur)
          .Lie(5, std::string(v.type)).Lie(6, std::string(v.libelle)).Execute();
  }
  {
    Requete r = base.Prepare("INSERT INTO taux VALUES (?, ?, ?, ?, ?, ?, ?)");
    for (const auto& v : kTaux)
      r.Lie(1, v.id).Lie(2, v.organisme).Lie(3, std::string(v.code)).Lie(4, std::string(k2024))
          .Lie(5, v.salarial).Lie(6, v.patronal).Lie(7, std::string(v.libelle)).Execute();
  }
  {
    Requete r = base.Prepare("INSERT INTO bareme_pas VALUES ('M', ?, ?, ?, ?)");
    const std::size_t n = std::size(kBornesPAS);
    for (std::size_t i = 0; i < n; ++i) {
      // Both bounds hold: a bracket ends a cent below the next one.
      r.Lie(1, std::string(k2024)).Lie(2, kBornesPAS[i]);
      if (i + 1 < n) r.Lie(3, kBornesPAS[i + 1] - 0.01);
      else r.Lie(3, 1e12);
      r.Lie(4, kTauxPAS[i]).Execute();
    }
  }
  {
    Requete r = base.Prepare("INSERT INTO cumuls VALUES (?, ?, ?, NULL, NULL)");
    int id = 1;
    for (const auto& c : kCumuls) r.Lie(1, id++).Lie(2, std::string(c[0])).Lie(3, std::string(c[1])).Execute();
    // The RAFP base: at most 20 % of the gross index-based treatment (treatment and NBI).
    base.Execute("UPDATE cumuls SET plafond_de = 'ASSCNRACL', plafond_taux = 20 WHERE CodeCumul = 'ASSRAFP'");
  }
  {
    Requete r = base.Prepare("INSERT INTO preparations VALUES (?, ?)");
    int ordre = 1;
    for (const char* p : {"COEFFICIENT_INDICE", "COEFFICIENT_TRAITEMENT", "NBRE_JOUR_PRESENCE"})
      r.Lie(1, ordre++).Lie(2, std::string(p)).Execute();
  }
  Requete r = base.Prepare(
      "INSERT INTO rubriques (lIdRubrique, ordre, sCodeRubrique, sDesignation, methode, groupe, "
      "nature, sValeurBase, lIdValeurBase, sCoeffBase, lIdCoeffBase, sValeurTauxSalarial, "
      "lIdValeurTauxSalarial, sValeurTauxPatronal, lIdTaux) "
      "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
  Requete a = base.Prepare("INSERT INTO rubrique_cumuls VALUES (?, ?, ?, ?, ?)");
  auto texte = [](Requete& q, int i, const char* s) {
    if (s) q.Lie(i, std::string(s));
    else q.LieNull(i);
  };
  for (const Ligne& l : kPlan) {
    r.Lie(1, l.id).Lie(2, l.ordre).Lie(3, std::string(l.code)).Lie(4, std::string(l.libelle));
    r.Lie(5, std::string(l.methode)).Lie(6, std::string(l.groupe)).Lie(7, std::string(l.nature));
    texte(r, 8, l.base);
    r.Lie(9, l.idBase);
    texte(r, 10, l.coeff);
    r.Lie(11, l.idCoeff);
    texte(r, 12, l.tauxS);
    r.Lie(13, l.idTauxS);
    texte(r, 14, l.tauxP);
    r.Lie(15, l.idTaux).Execute();
    std::string feeds = l.alimente;
    std::size_t pos = 0;
    while (pos < feeds.size()) {
      std::size_t fin = feeds.find(' ', pos);
      if (fin == std::string::npos) fin = feeds.size();
      const std::string f = feeds.substr(pos, fin - pos);
      pos = fin + 1;
      if (f.empty()) continue;
      const std::size_t deux = f.find(':');
      const std::string cote = f.substr(deux + 1);
      const bool moins = cote[0] == '-';
      const char part = cote.back();
      a.Lie(1, l.id).Lie(2, f.substr(0, deux)).Lie(3, std::string(part == 'P' ? "PATRONAL" : "SALARIAL"));
      a.Lie(4, std::string(1, part)).Lie(5, moins ? -1 : 1).Execute();
    }
  }
}

}  // namespace

void RetireMagasin(const std::string& chemin) {
  for (const char* suffixe : {"", "-journal", "-wal", "-shm"})
    std::filesystem::remove(chemin + suffixe);
}

void CreeCommuneExemple(const std::string& chemin, int agents) {
  if (std::filesystem::exists(chemin)) throw ErreurMagasin(chemin + ": already exists");
  if (agents < 1) throw ErreurMagasin("the commune needs at least one agent");
  OuvreMagasinSqlite(chemin, true);  // the schema
  Base base(chemin, false);
  base.Execute("BEGIN");
  try {
    EcritReference(base);
    Ecrivain e(base);
    for (int n = 0; n < agents; ++n) EcritAgent(base, e, n);
    base.Execute("COMMIT");
  } catch (...) {
    base.Annule();
    throw;
  }
}

}  // namespace orvalis::paie
