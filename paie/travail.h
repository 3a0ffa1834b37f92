// A month of a PostgreSQL store computed by several worker processes, through the database
// alone: the employees are cut into batches (table `lots`), each claimed with
// SELECT ... FOR UPDATE SKIP LOCKED, computed and written in the transaction that holds its
// row, and the month is published when every batch is written.
#ifndef ORVALIS_PAIE_TRAVAIL_H_
#define ORVALIS_PAIE_TRAVAIL_H_

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include "paie/calcul_mois.h"
#include "paie/sql.h"

namespace orvalis::paie {

struct OptionsTravail {
  bool remplacer = false;  // a published month is computed again
  bool rejoindre = false;  // join the month when others compute it (--worker)
  int tailleLot = 200;     // employees a batch, when this worker starts the month
  unsigned fils = 1;       // threads computing each batch (CalculeMois)
  Progression progression;  // employees of the month written, by every worker
  std::ostream* journal = nullptr;  // a line for each batch lost with the connection
};

struct BilanTravail {
  int lots = 0;            // batches this worker wrote
  long salaries = 0;       // their employees
  int reprises = 0;        // batches lost with the connection, left to the pool
  bool publie = false;     // this worker published the month
};

// Starts the month `mois` of the store `adresse` (or joins it), writes batches until none is
// left, and returns once the month is published, by this worker or another. Refused with an
// ErreurMagasin: a published month without `remplacer`, a month under way without
// `rejoindre`, a month under way started by another version of the program.
BilanTravail TravailleMois(const std::string& adresse, const std::string& mois, const OptionsTravail& o);

// What a published month holds, for the summary of a run.
struct SyntheseMois {
  std::string mois;
  long salaries = 0, lignes = 0, echecs = 0;
  double secondes = 0, brut = 0, net = 0, cout = 0;
  std::map<std::string, long> echecsParLigne;  // "CODE (methode)" -> count
  std::vector<std::string> exemples;  // "matricule nom prenom: CODE (methode)", the first ones
};
SyntheseMois SyntheseDuMois(Connexion& base, const std::string& mois, std::size_t exemples);

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_TRAVAIL_H_
