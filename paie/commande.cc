#include "paie/commande.h"

#include <chrono>
#include <map>
#include <ostream>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <fmt/ostream.h>

#include "paie/bulletin_html.h"
#include "paie/calcul_mois.h"
#include "paie/commune_exemple.h"
#include "paie/magasin.h"
#include "paie/mois_outils.h"

namespace orvalis::paie {

namespace {

// Employees done, rate and time left, on one line of standard error redrawn in place.
class BarreProgression {
 public:
  BarreProgression(std::ostream& e, bool actif) : e_(e), actif_(actif) {}

  void operator()(std::size_t fait, std::size_t total) {
    if (!actif_) return;
    const auto maintenant = std::chrono::steady_clock::now();
    if (fait != total && maintenant - dernier_ < std::chrono::milliseconds(100)) return;
    dernier_ = maintenant;
    const double s = std::chrono::duration<double>(maintenant - debut_).count();
    const double rythme = s > 0 ? static_cast<double>(fait) / s : 0;
    const double reste = rythme > 0 ? static_cast<double>(total - fait) / rythme : 0;
    const int largeur = 30;
    const int plein = static_cast<int>(largeur * fait / (total ? total : 1));
    fmt::print(e_, "\r[{}{}] {}/{} employees  {:.0f}/s  {:.0f} s left ", std::string(plein, '#'),
               std::string(largeur - plein, '.'), fait, total, rythme, reste);
    if (fait == total) e_ << '\n';
    e_.flush();
  }

 private:
  std::ostream& e_;
  bool actif_;
  std::chrono::steady_clock::time_point debut_ = std::chrono::steady_clock::now();
  std::chrono::steady_clock::time_point dernier_{};
};

void Resume(const ResultatMois& r, std::ostream& s) {
  double brut = 0, net = 0, cout = 0;
  for (const auto& b : r.bulletins) {
    brut += b.totaux.brut;
    net += b.totaux.netPaye;
    cout += b.totaux.coutEmployeur;
  }
  fmt::print(s, "month {}: {} employees, {} lines in {:.2f} s ({:.0f} lines/s)\n",
             AfficheMois(r.mois), r.bulletins.size(), r.lignes, r.secondes,
             r.secondes > 0 ? static_cast<double>(r.lignes) / r.secondes : 0.0);
  fmt::print(s, "gross {:.2f}  net paid {:.2f}  employer cost {:.2f}\n", brut, net, cout);
  fmt::print(s, "failed lines: {}\n", r.echecs);
  if (r.echecs == 0) return;
  // By pay line first, then each failure, up to a screenful: all of them are in the store.
  std::map<std::string, long> parLigne;
  for (const auto& b : r.bulletins)
    for (const auto& l : b.lignes)
      if (!l.ok) ++parLigne[l.sCodeRubrique + " (" + l.methode + ")"];
  for (const auto& [ligne, n] : parLigne) fmt::print(s, "  {:>6}  {}\n", n, ligne);
  constexpr long kMontres = 40;
  long montres = 0;
  for (const auto& b : r.bulletins)
    for (const auto& l : b.lignes)
      if (!l.ok && montres++ < kMontres)
        fmt::print(s, "  {} {} {}: {} ({})\n", b.sMatricule, b.nom, b.prenom, l.sCodeRubrique,
                   l.methode);
  if (montres > kMontres)
    fmt::print(s, "  ... and {} more: every failed line is in the table lignes with ok = 0\n",
               montres - kMontres);
}

}  // namespace

bool EstCommandePaie(const std::string& c) { return c == "demo" || c == "paie" || c == "bulletins"; }

int CommandePaie(const std::vector<std::string>& arguments, std::ostream& sortie,
                 std::ostream& erreurs, bool terminal) {
  CLI::App app{"orvalis: the pay run of a commune over an SQLite store"};
  app.name("orvalis");
  app.require_subcommand(1);

  std::string store, mois, dossier;
  int agents = kAgentsCommune;
  bool remplacer = false;

  auto* demo = app.add_subcommand("demo", "create the sample commune in a new store");
  demo->add_option("STORE", store, "the store to create (a new file)")->required();
  demo->add_option("--agents", agents, "number of agents (40 by default)")->check(CLI::Range(1, 1000000));
  demo->add_flag("--replace", remplacer, "replace the store if the file exists");

  auto* paie = app.add_subcommand("paie", "compute a month for every employee of the store");
  paie->add_option("STORE", store, "the store")->required();
  paie->add_option("MONTH", mois, "the month, as 2024-03")->required();
  paie->add_flag("--replace", remplacer, "compute a month already written again, replacing it");
  paie->add_option("--payslips", dossier, "also write the month's payslips into this folder");

  auto* bulletins = app.add_subcommand("bulletins", "write the payslips of a computed month");
  bulletins->add_option("STORE", store, "the store")->required();
  bulletins->add_option("MONTH", mois, "the month, as 2024-03")->required();
  bulletins->add_option("FOLDER", dossier, "the folder to write (created if needed)")->required();

  std::vector<std::string> args(arguments.rbegin(), arguments.rend());
  try {
    app.parse(args);
  } catch (const CLI::ParseError& e) {
    if (e.get_exit_code() == 0) {
      sortie << app.help("", CLI::AppFormatMode::All);
      return 0;
    }
    erreurs << "orvalis: " << e.what() << '\n';
    return 2;
  }

  try {
    if (demo->parsed()) {
      if (remplacer) RetireMagasin(store);
      CreeCommuneExemple(store, agents);
      fmt::print(sortie, "{}: the sample commune, {} agents\n", store, agents);
      return 0;
    }
    if (paie->parsed()) {
      auto m = OuvreMagasinSqlite(store);
      const std::string cle = CleMois(mois);
      // Told before the month is computed, not after.
      if (m->LectureSeule())
        throw ErreurMagasin(store + ": the store is read-only; nothing was computed",
                            ErreurMagasin::Cause::Acces);
      if (!remplacer && m->MoisCalcule(cle))
        throw ErreurMagasin(fmt::format("month {} is already computed (--replace computes it again)",
                                        AfficheMois(cle)));
      const DonneesMois d = m->ChargeMois(cle);
      BarreProgression barre(erreurs, terminal);
      ResultatMois r = CalculeMois(d, std::ref(barre));
      m->EcritMois(r, remplacer);
      Resume(r, sortie);
      if (!dossier.empty()) {
        const std::string index = EcritBulletins(m->LitMois(cle), dossier);
        fmt::print(sortie, "payslips: open {}\n", index);
      }
      return 0;
    }
    auto m = OuvreMagasinSqlite(store);
    const std::string index = EcritBulletins(m->LitMois(mois), dossier);
    fmt::print(sortie, "payslips: open {}\n", index);
    return 0;
  } catch (const ErreurMagasin& e) {
    erreurs << "orvalis: " << e.what() << '\n';
    return e.cause() == ErreurMagasin::Cause::Acces ? kStatutAcces : kStatutEntree;
  }
}

}  // namespace orvalis::paie
