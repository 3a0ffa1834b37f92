#include "paie/commande.h"

#include <chrono>
#include <map>
#include <ostream>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <fmt/ostream.h>

#include <unistd.h>

#include <filesystem>

#include "paie/bulletin_html.h"
#include "paie/calcul_mois.h"
#include "paie/commune_exemple.h"
#include "paie/copie_magasin.h"
#include "paie/magasin.h"
#include "paie/mois_outils.h"
#include "paie/postgres.h"
#include "paie/sqlite.h"
#include "paie/travail.h"

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

void Resume(const SyntheseMois& r, std::ostream& s) {
  fmt::print(s, "month {}: {} employees, {} lines in {:.2f} s ({:.0f} lines/s)\n",
             AfficheMois(r.mois), r.salaries, r.lignes, r.secondes,
             r.secondes > 0 ? static_cast<double>(r.lignes) / r.secondes : 0.0);
  fmt::print(s, "gross {:.2f}  net paid {:.2f}  employer cost {:.2f}\n", r.brut, r.net, r.cout);
  fmt::print(s, "failed lines: {}\n", r.echecs);
  if (r.echecs == 0) return;
  // By pay line first, then each failure, up to a screenful: all of them are in the store.
  for (const auto& [ligne, n] : r.echecsParLigne) fmt::print(s, "  {:>6}  {}\n", n, ligne);
  for (const auto& e : r.exemples) fmt::print(s, "  {}\n", e);
  if (r.echecs > static_cast<long>(r.exemples.size()))
    fmt::print(s, "  ... and {} more: every failed line is in the table lignes with ok = 0\n",
               r.echecs - static_cast<long>(r.exemples.size()));
}

constexpr std::size_t kMontres = 40;

// The month on PostgreSQL: this process is one of its workers.
void PaiePostgres(const std::string& store, const std::string& cle, const OptionsTravail& o,
                  std::ostream& sortie) {
  const BilanTravail b = TravailleMois(store, cle, o);
  auto m = OuvreMagasinPostgres(store);
  Resume(SyntheseDuMois(m->Sql(), cle, kMontres), sortie);
  fmt::print(sortie, "this worker: {} batches, {} employees; the month was published by {}\n", b.lots,
             b.salaries, b.publie ? "this worker" : "another worker");
  if (b.reprises > 0)
    fmt::print(sortie, "batches lost with the connection and left to the pool: {}\n", b.reprises);
}

void DemoPostgres(const std::string& store, int agents, bool remplacer) {
  auto m = OuvreMagasinPostgres(store);
  if (remplacer) VideMagasin(m->Sql());
  // The commune is made in a file of its own, then copied: one way to fill both stores.
  const auto dossier = std::filesystem::temp_directory_path() / fmt::format("orvalis-demo-{}", getpid());
  std::filesystem::create_directories(dossier);
  const std::string fichier = (dossier / "commune.db").string();
  try {
    CreeCommuneExemple(fichier, agents);
    Base source(fichier, false);
    CopieMagasin(source, m->Sql());
  } catch (...) {
    std::filesystem::remove_all(dossier);
    throw;
  }
  std::filesystem::remove_all(dossier);
}

}  // namespace

bool EstCommandePaie(const std::string& c) {
  return c == "demo" || c == "paie" || c == "bulletins" || c == "copie";
}

int CommandePaie(const std::vector<std::string>& arguments, std::ostream& sortie,
                 std::ostream& erreurs, bool terminal) {
  CLI::App app{"orvalis: the pay run of a commune over an SQLite file or a PostgreSQL server"};
  app.name("orvalis");
  app.require_subcommand(1);

  std::string store, mois, dossier, destination;
  int agents = kAgentsCommune;
  bool remplacer = false;
  OptionsTravail travail;
  const char* aideStore =
      "the store: an SQLite file, or a PostgreSQL URI (postgresql://...) or connection string "
      "(\"service=paie\"); what a URI leaves out comes from PGHOST, PGDATABASE, PGUSER, ...";
  // The store comes first or as --store; the other positional arguments follow it.
  std::vector<std::string> positionnels;
  auto ajouteStore = [&](CLI::App* c, const char* noms, const char* aide) {
    c->add_option("--store", store, aideStore);
    c->add_option(noms, positionnels, std::string("the STORE (unless --store is given)") + aide);
  };
  unsigned travailleurs = CoeursDisponibles();

  auto* demo = app.add_subcommand("demo", "create the sample commune in a new store");
  ajouteStore(demo, "STORE", "");
  demo->add_option("--agents", agents, "number of agents (40 by default)")->check(CLI::Range(1, 1000000));
  demo->add_flag("--replace", remplacer, "replace the store if the file exists (empty the database)");

  auto* paie = app.add_subcommand("paie", "compute a month for every employee of the store");
  ajouteStore(paie, "STORE_MONTH", ", then the MONTH, as 2024-03");
  paie->add_flag("--replace", remplacer, "compute a month already written again, replacing it");
  paie->add_option("--payslips", dossier, "also write the month's payslips into this folder");
  paie->add_option("--jobs", travailleurs,
                   "threads, one engine each (default: the number of cores); on PostgreSQL, the "
                   "threads of this worker for each batch")
      ->check(CLI::Range(1u, 1024u));
  paie->add_flag("--worker", travail.rejoindre,
                 "PostgreSQL: join the month if other workers compute it (or start it)");
  paie->add_option("--batch", travail.tailleLot,
                   "PostgreSQL: employees a batch when this run starts the month (200)")
      ->check(CLI::Range(1, 1000000));

  auto* bulletins = app.add_subcommand("bulletins", "write the payslips of a computed month");
  ajouteStore(bulletins, "STORE_MONTH_FOLDER",
              ", the MONTH, as 2024-03, and the FOLDER to write (created if needed)");

  auto* copie = app.add_subcommand("copie", "copy a store into another whose tables are empty");
  copie->add_option("SOURCE", store, "the store to copy")->required();
  copie->add_option("DESTINATION", destination, "the store to fill (created when it is a new file)")
      ->required();

  std::vector<std::string> args(arguments.rbegin(), arguments.rend());
  try {
    app.parse(args);
  } catch (const CLI::ParseError& e) {
    if (e.get_exit_code() == 0) {
      sortie << app.help("", CLI::AppFormatMode::All);
      return 0;
    }
    erreurs << "orvalis: " << SansMotDePasse(e.what(), store) << '\n';
    return 2;
  }
  if (!copie->parsed()) {
    if (store.empty() && !positionnels.empty()) {
      store = positionnels.front();
      positionnels.erase(positionnels.begin());
    }
    std::vector<std::pair<const char*, std::string*>> attendus;
    if (paie->parsed() || bulletins->parsed()) attendus.push_back({"MONTH", &mois});
    if (bulletins->parsed()) attendus.push_back({"FOLDER", &dossier});
    std::string manque = store.empty() ? "STORE is required (a file, or --store postgresql://...)" : "";
    for (std::size_t i = 0; i < attendus.size() && manque.empty(); ++i) {
      if (i < positionnels.size()) *attendus[i].second = positionnels[i];
      else manque = std::string(attendus[i].first) + " is required";
    }
    if (manque.empty() && positionnels.size() > attendus.size())
      manque = "unexpected argument '" + positionnels[attendus.size()] + "'";
    if (!manque.empty()) {
      erreurs << "orvalis: " << SansMotDePasse(manque, store) << '\n';
      return 2;
    }
  }

  try {
    const bool postgres = EstAdressePostgres(store);
    const std::string affiche = SansMotDePasse(store, store);
    if (demo->parsed()) {
      if (postgres) {
        DemoPostgres(store, agents, remplacer);
      } else {
        if (remplacer) RetireMagasin(store);
        CreeCommuneExemple(store, agents);
      }
      fmt::print(sortie, "{}: the sample commune, {} agents\n", affiche, agents);
      return 0;
    }
    if (copie->parsed()) {
      auto source = OuvreMagasin(store);
      auto cible = OuvreMagasin(destination, true);
      CopieMagasin(source->Sql(), cible->Sql());
      fmt::print(sortie, "{} copied into {}\n", affiche, SansMotDePasse(destination, destination));
      return 0;
    }
    if (paie->parsed()) {
      const std::string cle = CleMois(mois);
      BarreProgression barre(erreurs, terminal);
      if (postgres) {
        travail.remplacer = remplacer;
        travail.progression = std::ref(barre);
        travail.journal = &erreurs;
        travail.fils = travailleurs;
        PaiePostgres(store, cle, travail, sortie);
      } else {
        auto m = OuvreMagasinSqlite(store);
        // Told before the month is computed, not after.
        if (m->LectureSeule())
          throw ErreurMagasin(affiche + ": the store is read-only; nothing was computed",
                              ErreurMagasin::Cause::Acces);
        if (!remplacer && m->MoisCalcule(cle))
          throw ErreurMagasin(fmt::format("month {} is already computed (--replace computes it again)",
                                          AfficheMois(cle)));
        const DonneesMois d = m->ChargeMois(cle);
        m->EcritMois(CalculeMois(d, std::ref(barre), travailleurs), remplacer);
        Resume(SyntheseDuMois(m->Sql(), cle, kMontres), sortie);
      }
      if (!dossier.empty()) {
        const std::string index = EcritBulletins(OuvreMagasin(store)->LitMois(cle), dossier);
        fmt::print(sortie, "payslips: open {}\n", index);
      }
      return 0;
    }
    auto m = OuvreMagasin(store);
    const std::string index = EcritBulletins(m->LitMois(mois), dossier);
    fmt::print(sortie, "payslips: open {}\n", index);
    return 0;
  } catch (const ErreurMagasin& e) {
    erreurs << "orvalis: " << SansMotDePasse(SansMotDePasse(e.what(), store), destination) << '\n';
    return e.cause() == ErreurMagasin::Cause::Acces ? kStatutAcces : kStatutEntree;
  }
}

}  // namespace orvalis::paie
