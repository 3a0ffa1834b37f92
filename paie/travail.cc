#include "paie/travail.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <optional>
#include <ostream>
#include <thread>

#include <fmt/format.h>
#include <fmt/ostream.h>

#include "paie/magasin.h"
#include "paie/mois_outils.h"
#include "paie/postgres.h"
#include "paie/schema.h"
#include "tools/version.h"

namespace orvalis::paie {

namespace {

using Horloge = std::chrono::steady_clock;

// A worker that finds every batch taken waits this long before looking again: a batch whose
// worker died comes back to the pool as soon as the server sees the connection closed.
constexpr auto kAttente = std::chrono::milliseconds(200);
// Connections tried again after a loss, a second apart, before the worker gives up.
constexpr int kReconnexions = 5;

std::string NomTravailleur() {
  char hote[256] = {};
  if (gethostname(hote, sizeof hote - 1) != 0) hote[0] = '\0';
  return fmt::format("{}:{}", hote, getpid());
}

// Milliseconds each batch waits, holding its row, before it is computed: set by the tests
// (and by whoever wants to watch workers share a small month) with ORVALIS_PAUSE_LOT_MS.
std::chrono::milliseconds PauseParLot() {
  const char* e = std::getenv("ORVALIS_PAUSE_LOT_MS");
  return std::chrono::milliseconds(e ? std::max(0L, std::strtol(e, nullptr, 10)) : 0L);
}

struct Lot {
  long long numero = 0, premier = 0, dernier = 0;
};

// Starts the month (its row in `calculs`, unpublished, and its batches of `salaries`) or
// joins it.
void EntreDansLeMois(Connexion& base, const std::string& cle, const std::vector<Salarie>& salaries,
                     const OptionsTravail& o) {
  EnTransaction(base, [&] {
    // Two runs starting the same month at once: the second waits here, then finds it begun.
    base.Execute("LOCK TABLE calculs IN SHARE ROW EXCLUSIVE MODE");
    Requete r = base.Prepare(
        "SELECT c.publie, c.version, c.date_calcul, "
        "(SELECT count(*) FROM lots l WHERE l.mois = c.mois), "
        "(SELECT count(*) FROM lots l WHERE l.mois = c.mois AND l.fait = 1) "
        "FROM calculs c WHERE c.mois = ?");
    r.Lie(1, cle);
    if (r.Pas()) {
      const std::string mois = AfficheMois(cle);
      if (r.Entier(0) == 0) {
        if (!o.rejoindre)
          throw ErreurMagasin(fmt::format(
              "month {} is being computed (started {}, {} of {} batches written): --worker joins it",
              mois, r.Texte(2), r.Entier(4), r.Entier(3)));
        if (r.Texte(1) != tools::Version())
          throw ErreurMagasin(fmt::format(
              "month {} is being computed by orvalis {}; this worker is orvalis {}: every batch of "
              "a month comes from the same program",
              mois, r.Texte(1), tools::Version()));
        return;
      }
      if (!o.remplacer)
        throw ErreurMagasin(fmt::format("month {} is already computed (--replace computes it again)", mois));
      Requete del = base.Prepare("DELETE FROM calculs WHERE mois = ?");
      del.Lie(1, cle).Execute();
    }
    Requete c = base.Prepare(
        "INSERT INTO calculs (mois, date_calcul, version, salaries, lignes, echecs, secondes, publie) "
        "VALUES (?, ?, ?, ?, 0, 0, 0, 0)");
    c.Lie(1, cle).Lie(2, DateUtc()).Lie(3, std::string(tools::Version()));
    c.Lie(4, static_cast<long long>(salaries.size())).Execute();
    Requete l = base.PrepareInsertion("lots", {"mois", "lot", "premier", "dernier", "salaries"});
    const std::size_t taille = static_cast<std::size_t>(std::max(1, o.tailleLot));
    for (std::size_t i = 0, n = 1; i < salaries.size(); i += taille, ++n) {
      const std::size_t fin = std::min(salaries.size(), i + taille);
      l.Lie(1, cle).Lie(2, static_cast<long long>(n));
      l.Lie(3, static_cast<long long>(salaries[i].lIdSalarie));
      l.Lie(4, static_cast<long long>(salaries[fin - 1].lIdSalarie));
      l.Lie(5, static_cast<long long>(fin - i)).Execute();
    }
    l.Termine();
  });
}

enum class Etat { EnCours, Publie, DejaPublie };

// Publishes the month when every batch is written; the row lock on `calculs` makes one
// worker do it.
Etat Publie(Connexion& base, const std::string& mois) {
  Etat etat = Etat::EnCours;
  EnTransaction(base, [&] {
    Requete c = base.Prepare("SELECT publie FROM calculs WHERE mois = ? FOR UPDATE");
    c.Lie(1, mois);
    if (!c.Pas())
      throw ErreurMagasin(fmt::format("month {} was removed while it was computed", AfficheMois(mois)));
    if (c.Entier(0) == 1) {
      etat = Etat::DejaPublie;
      return;
    }
    Requete l = base.Prepare(
        "SELECT coalesce(sum(1 - fait), 0), coalesce(sum(salaries), 0), coalesce(sum(lignes), 0), "
        "coalesce(sum(echecs), 0), coalesce(sum(secondes), 0) FROM lots WHERE mois = ?");
    l.Lie(1, mois);
    l.Pas();
    if (l.Entier(0) > 0) return;
    // The month's seconds are those its batches took, every worker added.
    Requete u = base.Prepare(
        "UPDATE calculs SET publie = 1, date_calcul = ?, salaries = ?, lignes = ?, echecs = ?, "
        "secondes = ? WHERE mois = ?");
    u.Lie(1, DateUtc()).Lie(2, l.Entier(1)).Lie(3, l.Entier(2)).Lie(4, l.Entier(3));
    u.Lie(5, l.Reel(4)).Lie(6, mois).Execute();
    etat = Etat::Publie;
  });
  return etat;
}

class Travailleur {
 public:
  // The month's employees are kept aside; a batch puts its own into `d_` to be computed.
  Travailleur(const std::string& adresse, DonneesMois d, const OptionsTravail& o)
      : adresse_(adresse), nom_(NomTravailleur()), d_(std::move(d)), o_(o), pause_(PauseParLot()) {
    tous_.swap(d_.salaries);
  }

  BilanTravail Travaille() {
    Connecte();
    bool entre = false;
    for (;;) {
      try {
        if (!entre) {
          EntreDansLeMois(*base_, d_.mois, tous_, o_);
          entre = true;
        }
        if (PrendUnLot()) continue;
        const Etat e = Publie(*base_, d_.mois);
        if (e != Etat::EnCours) {
          bilan_.publie = e == Etat::Publie;
          return bilan_;
        }
        std::this_thread::sleep_for(kAttente);
      } catch (const ErreurConnexion& e) {
        base_->Annule();
        ++bilan_.reprises;
        // A loss that comes back on every try is not the network's: stop rather than loop.
        if (++pertesDeSuite_ > kReconnexions) throw;
        if (o_.journal)
          fmt::print(*o_.journal,
                     "orvalis: {}: the connection was lost ({}); the batch under way returns to the "
                     "pool and is computed again\n",
                     AfficheMois(d_.mois), e.what());
        Reconnecte(e);
      }
    }
  }

 private:
  void Connecte() {
    base_ = std::make_unique<BasePg>(adresse_, "orvalis paie " + d_.mois + " " + nom_);
    PrepareSchemaPg(*base_);
  }

  void Reconnecte(const ErreurConnexion& perte) {
    for (int i = 0; i < kReconnexions; ++i) {
      std::this_thread::sleep_for(std::chrono::seconds(1));
      try {
        Connecte();
        return;
      } catch (const ErreurConnexion&) {
      }
    }
    throw ErreurConnexion(fmt::format(
        "{}: the server cannot be reached again after the connection was lost ({}); the month is "
        "not published, its unwritten batches are left for another worker (--worker)",
        AfficheMois(d_.mois), perte.what()));
  }

  // Claims a batch, computes it and writes it in one transaction; false when none is free.
  bool PrendUnLot() {
    std::optional<Lot> lot;
    base_->Debut();
    try {
      Requete r = base_->Prepare(
          "SELECT lot, premier, dernier FROM lots WHERE mois = ? AND fait = 0 ORDER BY lot "
          "LIMIT 1 FOR UPDATE SKIP LOCKED");
      r.Lie(1, d_.mois);
      if (r.Pas()) lot = Lot{r.Entier(0), r.Entier(1), r.Entier(2)};
      if (!lot) {
        base_->Valide();
        return false;
      }
      if (pause_.count() > 0) std::this_thread::sleep_for(pause_);
      EcritLot(*lot);
      base_->Valide();
      pertesDeSuite_ = 0;
    } catch (const ErreurConnexion&) {
      throw;
    } catch (...) {
      base_->Annule();
      throw;
    }
    Progresse();
    return true;
  }

  void EcritLot(const Lot& lot) {
    const auto debut = Horloge::now();
    auto premier = std::lower_bound(tous_.begin(), tous_.end(), lot.premier,
                                    [](const Salarie& s, long long id) { return s.lIdSalarie < id; });
    auto fin = premier;
    while (fin != tous_.end() && fin->lIdSalarie <= lot.dernier) ++fin;
    d_.salaries.assign(premier, fin);
    const ResultatMois r = CalculeMois(d_, {}, o_.fils);
    d_.salaries.clear();
    const long lignes = r.lignes, echecs = r.echecs;
    const std::vector<Bulletin>& bulletins = r.bulletins;
    InsereBulletins(*base_, d_.mois, bulletins);
    Requete u = base_->Prepare(
        "UPDATE lots SET fait = 1, travailleur = ?, fin = ?, secondes = ?, lignes = ?, echecs = ? "
        "WHERE mois = ? AND lot = ?");
    u.Lie(1, nom_).Lie(2, DateUtc());
    u.Lie(3, std::chrono::duration<double>(Horloge::now() - debut).count());
    u.Lie(4, static_cast<long long>(lignes)).Lie(5, static_cast<long long>(echecs));
    u.Lie(6, d_.mois).Lie(7, lot.numero).Execute();
    ++bilan_.lots;
    bilan_.salaries += static_cast<long>(bulletins.size());
  }

  void Progresse() {
    if (!o_.progression) return;
    Requete r = base_->Prepare("SELECT coalesce(sum(salaries), 0) FROM lots WHERE mois = ? AND fait = 1");
    r.Lie(1, d_.mois);
    if (r.Pas()) o_.progression(static_cast<std::size_t>(r.Entier(0)), tous_.size());
  }

  std::string adresse_, nom_;
  DonneesMois d_;
  std::vector<Salarie> tous_;
  const OptionsTravail& o_;
  std::chrono::milliseconds pause_;
  std::unique_ptr<BasePg> base_;
  BilanTravail bilan_;
  int pertesDeSuite_ = 0;  // connections lost since the last batch written
};

}  // namespace

BilanTravail TravailleMois(const std::string& adresse, const std::string& texteMois,
                           const OptionsTravail& o) {
  const std::string mois = CleMois(texteMois);
  // The month's data first, checked: a store that cannot be used stops here, before any work
  // is made. The totals of earlier months are those published before this month starts.
  DonneesMois d;
  {
    auto magasin = OuvreMagasinPostgres(adresse, "orvalis paie " + mois);
    d = magasin->ChargeMois(mois);
  }
  Travailleur t(adresse, std::move(d), o);
  return t.Travaille();
}

SyntheseMois SyntheseDuMois(Connexion& base, const std::string& mois, std::size_t exemples) {
  SyntheseMois s;
  s.mois = mois;
  {
    Requete r = base.Prepare(
        "SELECT c.salaries, c.lignes, c.echecs, c.secondes, "
        "(SELECT coalesce(sum(brut), 0) FROM bulletins b WHERE b.mois = c.mois), "
        "(SELECT coalesce(sum(net_paye), 0) FROM bulletins b WHERE b.mois = c.mois), "
        "(SELECT coalesce(sum(cout_employeur), 0) FROM bulletins b WHERE b.mois = c.mois) "
        "FROM calculs c WHERE c.mois = ? AND c.publie = 1");
    r.Lie(1, mois);
    if (!r.Pas()) throw ErreurMagasin(fmt::format("month {} is not computed", AfficheMois(mois)));
    s.salaries = static_cast<long>(r.Entier(0));
    s.lignes = static_cast<long>(r.Entier(1));
    s.echecs = static_cast<long>(r.Entier(2));
    s.secondes = r.Reel(3);
    s.brut = r.Reel(4);
    s.net = r.Reel(5);
    s.cout = r.Reel(6);
  }
  Requete r = base.Prepare(
      "SELECT s.sMatricule, s.nom, s.prenom, l.sCodeRubrique, l.methode FROM lignes l "
      "JOIN salaries s USING (lIdSalarie) WHERE l.mois = ? AND l.ok = 0 ORDER BY l.lIdSalarie, l.ordre");
  r.Lie(1, mois);
  while (r.Pas()) {
    const std::string ligne = r.Texte(3) + " (" + r.Texte(4) + ")";
    ++s.echecsParLigne[ligne];
    if (s.exemples.size() < exemples)
      s.exemples.push_back(fmt::format("{} {} {}: {}", r.Texte(0), r.Texte(1), r.Texte(2), ligne));
  }
  return s;
}

}  // namespace orvalis::paie
