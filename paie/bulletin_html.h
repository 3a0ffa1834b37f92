// Payslips in HTML, with a print style for A4, and the index page of a month.
#ifndef ORVALIS_PAIE_BULLETIN_HTML_H_
#define ORVALIS_PAIE_BULLETIN_HTML_H_

#include <string>

#include "paie/donnees.h"

namespace orvalis::paie {

// "1 801,73": thousands by a narrow no-break space, a decimal comma.
std::string Euros(double montant);

std::string BulletinHtml(const ResultatMois& mois, const Bulletin& b);
std::string IndexHtml(const ResultatMois& mois);

// Writes index.html and one MATRICULE.html per employee into `dossier` (created if needed);
// gives the path of the index.
std::string EcritBulletins(const ResultatMois& mois, const std::string& dossier);

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_BULLETIN_HTML_H_
