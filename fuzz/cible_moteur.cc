// Fuzz target: the engine itself. From the input it builds a random employee record, random
// sources (columns and codes drawn from the words the engine reads) and a short sequence of
// preparation and calculation calls by names of the dispatch tables, with random pay lines.
// Every call answers true or false; a crash, a hang, a leak or an escaped exception is a
// finding.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <strings.h>
#include <string>
#include <variant>
#include <vector>

#include "frame/dispatch.h"
#include "fuzz/octets.h"
#include "orvalis/MethodeCalculG.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/fields.h"

namespace {

using namespace orvalis;

constexpr const char* kMots[] = {
#include "fuzz/mots_moteur.inc"
};

// The columns every reference source of the engine is read by, so that random tables find
// them often; the words add the rest.
constexpr const char* kColonnes[] = {
    "CodeConstante", "IdConstante", "Valeur", "TauxMontant", "CodeTaux", "PartSalariale",
    "PartPatronale", "CodeCumul", "CodeVariable", "DateEffet", "Mois", "IdSalarie",
    "IdCumul", "HeuresMois", "Point", "IndMinRemuneration", "SmicHor", "HrsMois",
    "PartSalarialeRappel", "PartPatronaleRappel", "Periode", "Code", "Taux", "Montant"};

std::string Mot(fuzz::Octets& in) { return kMots[in.Choix(std::size(kMots))]; }

std::string UneDate(fuzz::Octets& in) {
  char t[16];
  const int j = 1 + in.Choix(31), m = 1 + in.Choix(12), a = 1995 + in.Choix(40);
  std::snprintf(t, sizeof t, "%02d/%02d/%04d", j, m, a);
  return t;
}

double UnDouble(fuzz::Octets& in) {
  static const double kBords[] = {0, 1, -1, 0.5, 100, 151.67, 1e9, -1e9, 35, 1e300, NAN, INFINITY};
  switch (in.Choix(3)) {
    case 0: return kBords[in.Choix(std::size(kBords))];
    case 1: return static_cast<std::int16_t>(in.Entier(2)) / 4.0;
    default: return in.DoubleBrut();
  }
}

// A word of the engine, a date, a number written as the hosts write it (comma or point),
// raw bytes, or nothing.
std::string UnTexte(fuzz::Octets& in) {
  switch (in.Choix(5)) {
    case 0: return Mot(in);
    case 1: return UneDate(in);
    case 2: return in.Texte(12);
    case 3: {
      const double d = UnDouble(in);
      std::string t = std::isfinite(d) ? TexteNombre(d) : "1E+400";
      if (in.Booleen()) std::replace(t.begin(), t.end(), '.', ',');
      return t;
    }
    default: return "";
  }
}

Value UneValeur(fuzz::Octets& in) {
  switch (in.Choix(5)) {
    case 0: return Value();
    case 1: return Value(in.Booleen());
    case 2: return Value(UnDouble(in));
    default: return Value(UnTexte(in));
  }
}

// A source of a few columns (the engine's own names mostly) and a few rows, or none.
RsRef UneSource(fuzz::Octets& in) {
  if (in.Choix(4) == 0) return nullptr;
  std::vector<std::string> colonnes;
  const std::size_t nc = in.Choix(7);
  for (std::size_t i = 0; i < nc; ++i) {
    std::string c = in.Booleen() ? kColonnes[in.Choix(std::size(kColonnes))] : Mot(in);
    bool double_ = false;
    for (const auto& d : colonnes) double_ = double_ || strcasecmp(d.c_str(), c.c_str()) == 0;
    if (!double_) colonnes.push_back(c);
  }
  RsRef rs = NouveauRecordset(colonnes);
  const std::size_t nl = colonnes.empty() ? 0 : in.Choix(5);
  for (std::size_t l = 0; l < nl; ++l) {
    rs->AddNew();
    for (const auto& c : colonnes) rs->SetField(c, UneValeur(in));
  }
  return rs;
}

// Sets a few fields of the record, each by its type.
template <typename R>
void Remplit(fuzz::Octets& in, R& r, std::size_t max) {
  const auto champs = Champs<R>();
  const std::size_t n = in.Choix(max + 1);
  for (std::size_t k = 0; k < n && !in.Fini(); ++k) {
    const Champ<R>& c = champs[in.Choix(champs.size())];
    std::visit(
        [&](auto membre) {
          using T = std::remove_reference_t<decltype(r.*membre)>;
          if constexpr (std::is_same_v<T, Int16>)
            r.*membre = Int16(static_cast<std::int16_t>(in.Booleen() ? in.Entier(2) : in.Choix(40)));
          else if constexpr (std::is_same_v<T, Int32>)
            r.*membre = Int32(static_cast<std::int32_t>(in.Booleen() ? in.Entier(4) : in.Choix(400)));
          else if constexpr (std::is_same_v<T, double>)
            r.*membre = UnDouble(in);
          else if constexpr (std::is_same_v<T, std::string>)
            r.*membre = UnTexte(in);
          else if constexpr (std::is_same_v<T, bool>)
            r.*membre = in.Booleen();
          else
            r.*membre = UneSource(in);
        },
        c.membre);
  }
}

template <typename Moteur>
void Sources(fuzz::Octets& in, Moteur& m) {
  for (RsRef MoteurCalcul::*p :
       {&MoteurCalcul::gRsConstantes, &MoteurCalcul::gRsTaux, &MoteurCalcul::gRsTauxSpecifique,
        &MoteurCalcul::gRsCumuls, &MoteurCalcul::gRsConstantesFixes, &MoteurCalcul::gRsVariables,
        &MoteurCalcul::gRsConstantesFixesHistorique, &MoteurCalcul::gRsCumulsHistoriqueSal})
    m.*p = UneSource(in);
  if constexpr (std::is_same_v<Moteur, MethodeCalculG_Nouv>) {
    m.gRsConstantesHistorique = UneSource(in);
    m.gRsBaremeTauxPAS = UneSource(in);
  }
}

// A name of the table, now and then a name no row has.
template <typename Table>
std::string UnNom(fuzz::Octets& in, Table table) {
  if (in.Choix(16) == 0) return UnTexte(in);
  return table[in.Choix(table.size())].nom;
}

template <typename Moteur, typename TablePrep, typename TableCalc>
void Lance(fuzz::Octets& in, TablePrep prep, TableCalc calc) {
  Moteur m;
  m.gPeriodeEncours = in.Choix(8) == 0 ? UnTexte(in) : "01" + UneDate(in).substr(2);
  Sources(in, m);
  VarCalculSalarie salarie;
  Remplit(in, salarie, 48);
  const std::size_t appels = 1 + in.Choix(6);
  for (std::size_t k = 0; k < appels && !in.Fini(); ++k) {
    if (in.Choix(3) == 0) {
      (void)m.Appel_Methode_Preparation_Calcul_General(UnNom(in, prep), salarie);
    } else {
      const std::string nom = UnNom(in, calc);
      SalarieCalculRubrique rubrique;
      rubrique.sDesignation = in.Booleen() ? Mot(in) : UnTexte(in);
      Remplit(in, rubrique, 12);
      const RsRef a = UneSource(in), b = UneSource(in), c = UneSource(in);
      (void)m.Appel_Methode_Calcul_General(nom, salarie, rubrique, a, b, c);
    }
    if (in.Choix(4) == 0) Remplit(in, salarie, 4);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Octets in(data, size);
  // Process-wide state a call may leave behind: each input starts from the same.
  iTauxTptNonSubroge = 0;
  if (in.Choix(4) == 0)
    Lance<MethodeCalculG>(in, TablePreparationHisto(), TableCalculHisto());
  else
    Lance<MethodeCalculG_Nouv>(in, TablePreparationNouv(), TableCalculNouv());
  return 0;
}
