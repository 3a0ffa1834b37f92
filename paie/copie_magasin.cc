#include "paie/copie_magasin.h"

#include <algorithm>

#include <fmt/format.h>

#include "paie/schema.h"

namespace orvalis::paie {

namespace {

// Parents before children: the foreign keys hold after each table.
const char* const kOrdre[] = {"employeur", "valeurs_fixes", "constantes", "taux", "bareme_pas",
                              "cumuls", "preparations", "rubriques", "rubrique_cumuls",
                              "salaries", "situations", "situations_exceptionnelles", "variables",
                              "salarie_rubriques", "calculs", "lots", "bulletins", "lignes",
                              "cumuls_salarie"};

}  // namespace

void CopieMagasin(Connexion& source, Connexion& destination) {
  EnTransaction(destination, [&] {
    for (const char* table : kOrdre) {
      std::vector<std::string> colonnes = destination.ColonnesDe(table);
      std::erase(colonnes, "rowid");
      std::string liste;
      for (const auto& c : colonnes) liste += (liste.empty() ? "" : ", ") + c;
      Requete vide = destination.Prepare(fmt::format("SELECT count(*) FROM {}", table));
      if (vide.Pas() && vide.Entier(0) > 0)
        throw ErreurMagasin(fmt::format("table '{}' of the destination is not empty", table));
      Requete lit = source.Prepare(fmt::format("SELECT {} FROM {}{}", liste, table,
                                               TableARowid(table) ? " ORDER BY rowid" : ""));
      Requete ecrit = destination.PrepareInsertion(table, colonnes);
      while (lit.Pas()) {
        for (int i = 0; i < static_cast<int>(colonnes.size()); ++i) ecrit.Lie(i + 1, lit.Valeur(i));
        ecrit.Execute();
      }
      ecrit.Termine();
    }
  });
}

void VideMagasin(Connexion& base) {
  EnTransaction(base, [&] {
    for (auto t = std::rbegin(kOrdre); t != std::rend(kOrdre); ++t)
      base.Prepare(fmt::format("DELETE FROM {}", *t)).Execute();
  });
}

}  // namespace orvalis::paie
