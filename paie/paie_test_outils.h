// Test fixtures of the pay run: a fresh folder per test and the sample commune in it.
#ifndef ORVALIS_PAIE_PAIE_TEST_OUTILS_H_
#define ORVALIS_PAIE_PAIE_TEST_OUTILS_H_

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "paie/commande.h"
#include "paie/commune_exemple.h"
#include "paie/magasin.h"
#include "paie/sqlite.h"

namespace orvalis::paie {

class DossierTest : public ::testing::Test {
 protected:
  void SetUp() override {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    dossier_ = std::filesystem::temp_directory_path() /
               (std::string("orvalis-paie-") + info->test_suite_name() + "-" + info->name() + "-" +
                std::to_string(getpid()));
    std::filesystem::remove_all(dossier_);
    std::filesystem::create_directories(dossier_);
  }
  void TearDown() override { std::filesystem::remove_all(dossier_); }

  std::string Chemin(const std::string& nom) const { return (dossier_ / nom).string(); }

  // A command of the pay run in process: its status; what it wrote in sortie_ and erreurs_.
  int Lance(const std::vector<std::string>& args) {
    sortie_.str("");
    erreurs_.str("");
    return CommandePaie(args, sortie_, erreurs_, false);
  }
  std::ostringstream sortie_, erreurs_;

  // The sample commune in a new store; gives its path.
  std::string Commune(int agents = kAgentsCommune) {
    const std::string c = Chemin("commune.db");
    CreeCommuneExemple(c, agents);
    return c;
  }

  // A store's file or PostgreSQL address.
  static void Sql(const std::string& magasin, const std::string& sql) {
    OuvreConnexion(magasin)->Execute(sql);
  }
  static long long Nombre(const std::string& magasin, const std::string& sql) {
    auto b = OuvreConnexion(magasin);
    Requete r = b->Prepare(sql);
    return r.Pas() ? r.Entier(0) : -1;
  }
  static std::string Texte(const std::string& magasin, const std::string& sql) {
    auto b = OuvreConnexion(magasin);
    Requete r = b->Prepare(sql);
    return r.Pas() ? r.Texte(0) : "(no row)";
  }

 private:
  std::filesystem::path dossier_;
};

// The text holds the part.
inline ::testing::AssertionResult Contient(const std::string& texte, const std::string& partie) {
  if (texte.find(partie) != std::string::npos) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "'" << texte << "' does not hold '" << partie << "'";
}

// The line of code `code` of a payslip, or null.
inline const LigneBulletin* Ligne(const Bulletin& b, const std::string& code) {
  for (const auto& l : b.lignes)
    if (l.sCodeRubrique == code) return &l;
  return nullptr;
}

inline const Bulletin* BulletinDe(const ResultatMois& r, Int32 id) {
  for (const auto& b : r.bulletins)
    if (b.lIdSalarie == id) return &b;
  return nullptr;
}

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_PAIE_TEST_OUTILS_H_
