#include "paie/bulletin_html.h"

#include <cmath>
#include <filesystem>
#include <fstream>

#include <fmt/format.h>

#include "paie/magasin.h"
#include "paie/mois_outils.h"

namespace orvalis::paie {

namespace {

constexpr const char* kStyle = R"css(
@page { size: A4; margin: 12mm; }
* { box-sizing: border-box; }
body { font-family: "DejaVu Sans", Arial, sans-serif; font-size: 9pt; color: #111; margin: 0 auto; max-width: 190mm; }
h1 { font-size: 14pt; margin: 0 0 2mm; }
.entete { display: flex; gap: 6mm; margin-bottom: 4mm; }
.entete > div { flex: 1; border: 1px solid #888; border-radius: 2mm; padding: 2.5mm 3mm; }
.entete h2 { font-size: 8pt; text-transform: uppercase; color: #555; margin: 0 0 1mm; }
.entete p { margin: 0.5mm 0; }
table { width: 100%; border-collapse: collapse; }
th, td { padding: 1mm 1.5mm; }
thead th { background: #2f4858; color: #fff; font-weight: normal; font-size: 8pt; text-align: right; }
thead th:first-child, thead th.g { text-align: left; }
td.n { text-align: right; font-variant-numeric: tabular-nums; white-space: nowrap; }
tr.groupe td { font-weight: bold; background: #e8eef2; border-top: 1px solid #9ab; }
tr.total td { font-weight: bold; border-top: 1px solid #333; }
tr.fort td { font-weight: bold; font-size: 10.5pt; background: #dfe9df; border-top: 2px solid #333; }
tr.echec td { color: #a00; background: #fff0f0; }
tr.ligne td:first-child { padding-left: 4mm; }
.net { margin-top: 4mm; display: flex; justify-content: space-between; align-items: center; border: 2px solid #2f4858; border-radius: 2mm; padding: 3mm 4mm; font-size: 12pt; font-weight: bold; }
.cumuls { margin-top: 4mm; }
.cumuls th { text-align: right; }
.note { margin-top: 3mm; font-size: 7.5pt; color: #555; }
.alerte { margin-top: 3mm; padding: 2mm 3mm; border: 1px solid #a00; color: #a00; }
a { color: #2f4858; }
@media print { a { color: inherit; text-decoration: none; } .ecran { display: none; } }
)css";

std::string Echappe(const std::string& s) {
  std::string r;
  for (char c : s) {
    switch (c) {
      case '&': r += "&amp;"; break;
      case '<': r += "&lt;"; break;
      case '>': r += "&gt;"; break;
      case '"': r += "&quot;"; break;
      default: r += c;
    }
  }
  return r;
}

// A rate as the payslip prints it; the tax at source rate comes as a fraction.
std::string Taux(double t, bool fraction = false) {
  if (t == 0) return "";
  std::string s = fmt::format("{:.4f}", fraction ? t * 100 : t);
  while (s.back() == '0' && s[s.size() - 3] != '.') s.pop_back();
  for (auto& c : s)
    if (c == '.') c = ',';
  return s + "&#8239;%";
}

std::string SiNonNul(double v) { return v == 0 ? "" : Euros(v); }

std::string Statut(const Bulletin& b) {
  if (b.sTypeModele == "INDTIT") return "Fonctionnaire titulaire (CNRACL)";
  if (b.sTypeModele == "INDNTI") return "Agent contractuel (IRCANTEC)";
  if (b.sTypeModele == "HORAIR") return "Agent horaire (vacataire)";
  if (b.sTypeModele == "ELUS") return "Élu local";
  if (b.sCodeCategorie == "APPRENTI") return "Apprenti";
  return b.sTypeModele;
}

struct Groupe {
  const char* code;
  const char* titre;
};
constexpr Groupe kCotisations[] = {
    {"SANTE", "Santé"},
    {"ACCIDENT", "Accidents du travail – maladies professionnelles"},
    {"RETRAITE", "Retraite"},
    {"FAMILLE", "Famille"},
    {"CHOMAGE", "Assurance chômage"},
    {"AUTRES", "Autres contributions dues par l'employeur"},
    {"CSG", "CSG et CRDS"},
};

std::string LigneHtml(const LigneBulletin& l, bool fraction = false) {
  const bool gain = l.nature == "GAIN";
  std::string titre = Echappe(l.sDesignation);
  if (!l.ok) titre += " — non calculée (le moteur a répondu faux)";
  return fmt::format(
      "<tr class=\"ligne{}\" title=\"{} | base : {} | taux : {} / {}\"><td>{}</td><td class=n>{}</td>"
      "<td class=n>{}</td><td class=n>{}</td><td class=n>{}</td><td class=n>{}</td><td class=n>{}</td></tr>\n",
      l.ok ? "" : " echec", Echappe(l.methode), Echappe(l.sValeurBase), Echappe(l.sValeurTauxSalarial),
      Echappe(l.sValeurTauxPatronal), titre, SiNonNul(l.dBase), gain ? "" : Taux(l.dTauxSalarial, fraction),
      gain ? SiNonNul(l.dMontantSalarial) : "", gain ? "" : SiNonNul(l.dMontantSalarial),
      Taux(l.dTauxPatronal), SiNonNul(l.dMontantPatronal));
}

std::string Page(const std::string& titre, const std::string& corps) {
  return fmt::format(
      "<!DOCTYPE html>\n<html lang=\"fr\">\n<head>\n<meta charset=\"utf-8\">\n<title>{}</title>\n"
      "<style>{}</style>\n</head>\n<body>\n{}</body>\n</html>\n",
      Echappe(titre), kStyle, corps);
}

std::string NomFichier(const Bulletin& b) { return b.sMatricule + ".html"; }

}  // namespace

std::string Euros(double montant) {
  const double arrondi = std::round(montant * 100) / 100;
  std::string chiffres = fmt::format("{:.2f}", std::fabs(arrondi));
  const std::size_t point = chiffres.find('.');
  std::string entier = chiffres.substr(0, point);
  std::string groupe;
  for (std::size_t i = 0; i < entier.size(); ++i) {
    if (i > 0 && (entier.size() - i) % 3 == 0) groupe += "\u202f";
    groupe += entier[i];
  }
  return (arrondi < 0 ? "-" : "") + groupe + "," + chiffres.substr(point + 1);
}

std::string BulletinHtml(const ResultatMois& mois, const Bulletin& b) {
  const std::string periode = MoisEnLettres(mois.mois);
  std::string h;
  h += fmt::format("<p class=ecran><a href=\"index.html\">← tous les bulletins de {}</a></p>\n", periode);
  h += fmt::format("<h1>Bulletin de paie — {}</h1>\n", periode);
  h += "<div class=entete>\n<div><h2>Employeur</h2>";
  h += fmt::format("<p><b>{}</b></p><p>{}</p><p>SIRET {}</p></div>\n", Echappe(mois.employeur.nom),
                   Echappe(mois.employeur.adresse), Echappe(mois.employeur.siret));
  h += fmt::format("<div><h2>Agent</h2><p><b>{} {}</b> — matricule {}</p><p>{}</p><p>{}</p><p>{}",
                   Echappe(b.nom), Echappe(b.prenom), Echappe(b.sMatricule), Echappe(b.adresse),
                   Echappe(b.emploi), Statut(b));
  if (!b.sCodeCategorie.empty() && b.sCodeCategorie.size() == 1)
    h += fmt::format(", catégorie {}", Echappe(b.sCodeCategorie));
  h += "</p><p>";
  if (b.dIndiceMajoreM > 0) h += fmt::format("Indice majoré {:.0f}", b.dIndiceMajoreM);
  if (b.dBonification > 0) h += fmt::format(" · NBI {:.0f} points", b.dBonification);
  if (b.dTauxPoste > 0 && b.dTauxPoste != 100) h += fmt::format(" · temps partiel {:.0f} %", b.dTauxPoste);
  if (b.sTypeModele != "ELUS" && b.dHeuresMois > 0)
    h += fmt::format(" · {} h par mois", Taux(b.dHeuresMois).substr(0, Taux(b.dHeuresMois).find('&')));
  h += "</p></div>\n</div>\n";

  h += "<table>\n<thead><tr><th>Élément</th><th>Base</th><th>Taux</th><th>À payer</th>"
       "<th>À déduire</th><th>Taux employeur</th><th>Part employeur</th></tr></thead>\n<tbody>\n";
  h += "<tr class=groupe><td colspan=7>Éléments de rémunération</td></tr>\n";
  for (const auto& l : b.lignes)
    if (l.groupe == "BRUT" || l.groupe == "INFO") h += LigneHtml(l);
  h += fmt::format("<tr class=total><td>Salaire brut</td><td></td><td></td><td class=n>{}</td>"
                   "<td></td><td></td><td></td></tr>\n", Euros(b.totaux.brut));
  for (const auto& g : kCotisations) {
    bool present = false;
    for (const auto& l : b.lignes) present |= l.groupe == g.code;
    if (!present) continue;
    h += fmt::format("<tr class=groupe><td colspan=7>{}</td></tr>\n", g.titre);
    for (const auto& l : b.lignes)
      if (l.groupe == g.code) h += LigneHtml(l);
  }
  h += fmt::format("<tr class=total><td>Total des cotisations et contributions</td><td></td><td></td>"
                   "<td></td><td class=n>{}</td><td></td><td class=n>{}</td></tr>\n",
                   Euros(b.totaux.cotisationsSalariales), Euros(b.totaux.cotisationsPatronales));
  for (const auto& l : b.lignes)
    if (l.groupe == "NET") h += LigneHtml(l);
  h += fmt::format("<tr class=fort><td>Net à payer avant impôt sur le revenu</td><td></td><td></td>"
                   "<td class=n>{}</td><td></td><td></td><td></td></tr>\n", Euros(b.totaux.netAvantImpot));
  h += fmt::format("<tr><td>Net imposable</td><td></td><td></td><td class=n>{}</td><td></td><td></td>"
                   "<td></td></tr>\n", Euros(b.totaux.netImposable));
  h += "<tr class=groupe><td colspan=7>Impôt sur le revenu</td></tr>\n";
  for (const auto& l : b.lignes)
    if (l.groupe == "PAS") h += LigneHtml(l, true);
  h += "</tbody>\n</table>\n";
  h += fmt::format("<div class=net><span>Net payé</span><span>{}&nbsp;€</span></div>\n",
                   Euros(b.totaux.netPaye));
  h += fmt::format("<p>Coût total employeur : <b>{}&nbsp;€</b> · dont cotisations employeur {}&nbsp;€</p>\n",
                   Euros(b.totaux.coutEmployeur), Euros(b.totaux.cotisationsPatronales));

  h += "<table class=cumuls>\n<thead><tr><th>Cumuls de l'année</th><th>Salaire brut</th>"
       "<th>Net imposable</th><th>Impôt prélevé</th><th>Net payé</th><th>Coût employeur</th></tr></thead>\n";
  h += fmt::format("<tbody><tr><td>janvier à {}</td><td class=n>{}</td><td class=n>{}</td><td class=n>{}</td>"
                   "<td class=n>{}</td><td class=n>{}</td></tr></tbody>\n</table>\n",
                   periode, Euros(b.annee.brut), Euros(b.annee.netImposable), Euros(b.annee.pas),
                   Euros(b.annee.netPaye), Euros(b.annee.coutEmployeur));
  if (b.echecs > 0)
    h += fmt::format("<p class=alerte>{} élément(s) n'ont pas pu être calculés ce mois-ci et ne "
                     "comptent dans aucun total : le service paie doit les vérifier.</p>\n", b.echecs);
  h += "<p class=note>Dans votre intérêt, et pour vous aider à faire valoir vos droits, conservez ce "
       "bulletin de paie sans limitation de durée.</p>\n";
  return Page(fmt::format("Bulletin de paie {} — {} {}", periode, b.nom, b.prenom), h);
}

std::string IndexHtml(const ResultatMois& mois) {
  const std::string periode = MoisEnLettres(mois.mois);
  std::string h = fmt::format("<h1>Bulletins de paie — {}</h1>\n<p>{}</p>\n", periode,
                              Echappe(mois.employeur.nom));
  h += "<table>\n<thead><tr><th>Matricule</th><th class=g>Agent</th><th class=g>Emploi</th><th>Brut</th>"
       "<th>Net payé</th><th>Coût employeur</th><th>Anomalies</th></tr></thead>\n<tbody>\n";
  Totaux t;
  for (const auto& b : mois.bulletins) {
    t.brut += b.totaux.brut;
    t.netPaye += b.totaux.netPaye;
    t.coutEmployeur += b.totaux.coutEmployeur;
    h += fmt::format("<tr{}><td>{}</td><td><a href=\"{}\">{} {}</a></td><td>{}</td><td class=n>{}</td>"
                     "<td class=n>{}</td><td class=n>{}</td><td class=n>{}</td></tr>\n",
                     b.echecs ? " class=echec" : "", Echappe(b.sMatricule), Echappe(NomFichier(b)),
                     Echappe(b.nom), Echappe(b.prenom), Echappe(b.emploi), Euros(b.totaux.brut),
                     Euros(b.totaux.netPaye), Euros(b.totaux.coutEmployeur),
                     b.echecs ? std::to_string(b.echecs) : "");
  }
  h += fmt::format("<tr class=fort><td></td><td>{} agents</td><td></td><td class=n>{}</td><td class=n>{}</td>"
                   "<td class=n>{}</td><td class=n>{}</td></tr>\n</tbody>\n</table>\n",
                   mois.bulletins.size(), Euros(t.brut), Euros(t.netPaye), Euros(t.coutEmployeur),
                   mois.echecs ? std::to_string(mois.echecs) : "");
  return Page("Bulletins de paie " + periode, h);
}

std::string EcritBulletins(const ResultatMois& mois, const std::string& dossier) {
  namespace fs = std::filesystem;
  std::error_code ec;
  fs::create_directories(dossier, ec);
  if (ec) throw ErreurMagasin(dossier + ": cannot create: " + ec.message(), ErreurMagasin::Cause::Acces);
  auto ecrit = [&](const fs::path& p, const std::string& texte) {
    std::ofstream f(p, std::ios::binary);
    f << texte;
    if (!f.flush()) throw ErreurMagasin(p.string() + ": cannot write", ErreurMagasin::Cause::Acces);
  };
  for (const auto& b : mois.bulletins) ecrit(fs::path(dossier) / NomFichier(b), BulletinHtml(mois, b));
  const fs::path index = fs::path(dossier) / "index.html";
  ecrit(index, IndexHtml(mois));
  return index.string();
}

}  // namespace orvalis::paie
