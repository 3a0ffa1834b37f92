// Reading and checking a case file: every key, step and argument, before anything runs.
#include <array>
#include <set>
#include <string_view>

#include "tools/case_runner.h"

namespace orvalis::tools {

namespace {

constexpr std::array<std::string_view, 5> kGenres = {"prepare", "calc", "set", "sources", "call"};


const char* NomMoteur(TypeMoteur m) {
  return m == TypeMoteur::Nouv ? "MethodeCalculG_Nouv" : "MethodeCalculG";
}

std::vector<AffectationSource> LitSources(const Json& j, const std::string& lieu, TypeMoteur m) {
  if (!j.is_object()) throw ErreurCas(lieu, "expected an object of sources, got " + Decrit(j));
  std::vector<AffectationSource> sources;
  for (const auto& [nom, valeur] : j.items()) {
    const std::string ici = Sous(lieu, nom);
    const DefSource* def = nullptr;
    for (const auto& d : TableDesSources())
      if (nom == d.nom) def = &d;
    if (def == nullptr || (def->nouv != nullptr && m != TypeMoteur::Nouv))
      throw ErreurCas(ici, std::string(NomMoteur(m)) + " has no source '" + nom + "'");
    sources.push_back({def, LitTable(valeur, ici)});
  }
  return sources;
}

bool Snapshot(const Json& etape, const std::string& lieu) {
  return etape.contains("snapshot") && LitBooleen(etape["snapshot"], Sous(lieu, "snapshot"));
}

// The kind of a step: exactly one of its keys names one.
std::string_view GenreEtape(const Json& etape, const std::string& lieu) {
  std::vector<std::string_view> genres;
  for (auto g : kGenres)
    if (etape.contains(std::string(g))) genres.push_back(g);
  if (genres.size() == 1) return genres[0];
  if (genres.size() > 1)
    throw ErreurCas(lieu, "a step has exactly one of prepare, calc, set, sources, call; this one has '" +
                              std::string(genres[0]) + "' and '" + std::string(genres[1]) + "'");
  static const std::set<std::string, std::less<>> kAutres = {
      "rubrique", "RsVarSalaries", "RsVarSalariesHisto", "RsSalariesHisto", "keep_rubrique",
      "snapshot", "args"};
  for (const auto& [cle, v] : etape.items()) {
    (void)v;
    if (!kAutres.contains(cle))
      throw ErreurCas(lieu, "unknown step kind '" + cle + "' (prepare, calc, set, sources, call)");
  }
  throw ErreurCas(lieu, "a step needs one of the keys prepare, calc, set, sources, call");
}

void VerifieCles(const Json& etape, const std::string& lieu, std::string_view genre,
                 std::initializer_list<std::string_view> permises) {
  for (const auto& [cle, v] : etape.items()) {
    (void)v;
    bool ok = cle == genre;
    for (auto p : permises) ok = ok || cle == p;
    if (!ok) throw ErreurCas(Sous(lieu, cle), "not a key of a " + std::string(genre) + " step");
  }
}

Etape LitEtape(const Json& etape, const std::string& lieu, TypeMoteur m, bool& calcVu) {
  if (!etape.is_object()) throw ErreurCas(lieu, "a step is an object, got " + Decrit(etape));
  const std::string_view genre = GenreEtape(etape, lieu);
  const std::string lieuGenre = Sous(lieu, genre);
  const Json& valeur = etape[std::string(genre)];

  if (genre == "prepare") {
    VerifieCles(etape, lieu, genre, {"snapshot"});
    return EtapePrepare{LitTexte(valeur, lieuGenre), Snapshot(etape, lieu)};
  }
  if (genre == "calc") {
    VerifieCles(etape, lieu, genre,
                {"rubrique", "RsVarSalaries", "RsVarSalariesHisto", "RsSalariesHisto",
                 "keep_rubrique", "snapshot"});
    EtapeCalc c;
    c.nom = LitTexte(valeur, lieuGenre);
    if (etape.contains("rubrique"))
      c.rubrique = LitChamps<SalarieCalculRubrique>(etape["rubrique"], Sous(lieu, "rubrique"));
    auto table = [&](const char* cle) {
      return etape.contains(cle) ? LitTable(etape[cle], Sous(lieu, cle)) : RsRef();
    };
    c.RsVarSalaries = table("RsVarSalaries");
    c.RsVarSalariesHisto = table("RsVarSalariesHisto");
    c.RsSalariesHisto = table("RsSalariesHisto");
    if (etape.contains("keep_rubrique")) {
      const std::string ici = Sous(lieu, "keep_rubrique");
      c.garde = LitBooleen(etape["keep_rubrique"], ici);
      if (c.garde && !calcVu) throw ErreurCas(ici, "no earlier calc step whose pay line to keep");
    }
    c.snapshot = Snapshot(etape, lieu);
    calcVu = true;
    return c;
  }
  if (genre == "set") {
    VerifieCles(etape, lieu, genre, {});
    return EtapeSet{LitChamps<VarCalculSalarie>(valeur, lieuGenre)};
  }
  if (genre == "sources") {
    VerifieCles(etape, lieu, genre, {});
    return EtapeSources{LitSources(valeur, lieuGenre, m)};
  }
  VerifieCles(etape, lieu, genre, {"args", "snapshot"});
  const Operation& op = TrouveOperation(LitTexte(valeur, lieuGenre), m, lieuGenre);
  // By reference: a copy of a deeply nested value would recurse as deep as it goes.
  static const Json kSansArguments = Json::array();
  const Json& args = etape.contains("args") ? etape["args"] : kSansArguments;
  AppelPrepare appel = op.prepare(args, Sous(lieu, "args"));
  return EtapeCall{&op, std::move(appel), Snapshot(etape, lieu)};
}

// A first reading of the text, event by event, that checks what the parse into a tree does
// not: a key given twice, and the limits on depth, keys, elements and texts. It keeps only
// the open arrays and objects, so that it costs no more than the text's length; the path is
// spelled out only for an error. (The tree parser's own filtering hook scans the array an
// object ends in, every time one ends: quadratic in the rows of a source.)
class Verificateur {
 public:
  static constexpr std::size_t kProfondeurMax = 256;
  static constexpr std::size_t kClesMax = 1024;
  // A text (a value or a key) and an array: far past any designation, code or table a
  // payroll holds, short of what would hold the machine.
  static constexpr std::size_t kTexteMax = 65536;
  static constexpr std::size_t kElementsMax = 100000;

  explicit Verificateur(const std::string& nomEntree) : nomEntree_(nomEntree) {}

  bool null() { return Valeur(); }
  bool boolean(bool) { return Valeur(); }
  bool number_integer(Json::number_integer_t) { return Valeur(); }
  bool number_unsigned(Json::number_unsigned_t) { return Valeur(); }
  bool number_float(Json::number_float_t, const Json::string_t&) { return Valeur(); }
  bool binary(Json::binary_t&) { return Valeur(); }
  bool string(Json::string_t& texte) {
    if (!pile_.empty() && texte.size() > kTexteMax)
      throw ErreurCas(LieuCourant(), "a text longer than " + std::to_string(kTexteMax) + " bytes");
    return Valeur();
  }
  bool start_object(std::size_t) { return Ouvre(true); }
  bool start_array(std::size_t) { return Ouvre(false); }
  bool end_object() { return Ferme(); }
  bool end_array() { return Ferme(); }
  bool key(Json::string_t& cle) {
    auto& c = pile_.back();
    if (cle.size() > kTexteMax)
      throw ErreurCas(Lieu(), "a key longer than " + std::to_string(kTexteMax) + " bytes");
    if (!c.cles.insert(cle).second) throw ErreurCas(Sous(Lieu(), cle), "key given twice");
    // The tree files each key of an object after a scan of the others: a bound on their
    // number keeps the reading of any text short.
    if (c.cles.size() > kClesMax)
      throw ErreurCas(Sous(Lieu(), cle),
                      "more than " + std::to_string(kClesMax) + " keys in one object");
    c.cle = cle;
    return true;
  }
  bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception& e) {
    // "[json.exception.parse_error.101] parse error at line 1, ...": the part after the tag.
    std::string message = e.what();
    if (const auto fin = message.find("] "); message.rfind("[json.exception.", 0) == 0 &&
                                              fin != std::string::npos)
      message = message.substr(fin + 2);
    // A number too large for a double is valid JSON: the place of the value is named.
    if (e.id == 406) {
      const std::string lieu = LieuCourant();
      throw ErreurCas(lieu.empty() ? nomEntree_ : lieu, message);
    }
    throw ErreurCas(nomEntree_, "not JSON: " + message);
  }

 private:
  struct Cadre {
    bool objet;
    std::set<std::string> cles;
    std::string cle;
    std::size_t indice;
  };

  bool Ouvre(bool objet) {
    if (pile_.size() >= kProfondeurMax)
      throw ErreurCas(LieuCourant(), "nested deeper than " + std::to_string(kProfondeurMax) +
                                         " arrays and objects");
    pile_.push_back({objet, {}, {}, 0});
    return true;
  }
  bool Ferme() {
    pile_.pop_back();
    return Valeur();
  }
  // A value read whole: the next element of the array it is in.
  bool Valeur() {
    if (pile_.empty() || pile_.back().objet) return true;
    if (++pile_.back().indice > kElementsMax)
      throw ErreurCas(Lieu(), "more than " + std::to_string(kElementsMax) + " elements in one array");
    return true;
  }
  // The place of the value being read.
  std::string LieuCourant() const {
    if (pile_.empty()) return "";
    const auto& c = pile_.back();
    return c.objet ? Sous(Lieu(), c.cle) : Indice(Lieu(), c.indice);
  }
  // The path of the innermost object or array.
  std::string Lieu() const {
    std::string lieu;
    for (std::size_t i = 0; i + 1 < pile_.size(); ++i)
      lieu = pile_[i].objet ? Sous(lieu, pile_[i].cle) : Indice(lieu, pile_[i].indice);
    return lieu;
  }

  const std::string& nomEntree_;
  std::vector<Cadre> pile_;
};

}  // namespace

const Operation& TrouveOperation(const std::string& nom, TypeMoteur m, const std::string& lieu) {
  const unsigned masque = m == TypeMoteur::Nouv ? kNouv : kHisto;
  bool ailleurs = false;
  for (const auto& op : TableDesAppels()) {
    if (op.nom != nom) continue;
    if (op.moteurs & masque) return op;
    ailleurs = true;
  }
  if (ailleurs) throw ErreurCas(lieu, std::string(NomMoteur(m)) + " has no operation '" + nom + "'");
  throw ErreurCas(lieu, "unknown operation '" + nom + "'");
}

const std::vector<DefSource>& TableDesSources() {
  static const std::vector<DefSource> kSources = {
      {"gRsConstantes", &MoteurCalcul::gRsConstantes, nullptr},
      {"gRsTaux", &MoteurCalcul::gRsTaux, nullptr},
      {"gRsTauxSpecifique", &MoteurCalcul::gRsTauxSpecifique, nullptr},
      {"gRsCumuls", &MoteurCalcul::gRsCumuls, nullptr},
      {"gRsConstantesFixes", &MoteurCalcul::gRsConstantesFixes, nullptr},
      {"gRsVariables", &MoteurCalcul::gRsVariables, nullptr},
      {"gRsConstantesFixesHistorique", &MoteurCalcul::gRsConstantesFixesHistorique, nullptr},
      {"gRsCumulsHistoriqueSal", &MoteurCalcul::gRsCumulsHistoriqueSal, nullptr},
      {"gRsConstantesHistorique", nullptr, &MethodeCalculG_Nouv::gRsConstantesHistorique},
      {"gRsBaremeTauxPAS", nullptr, &MethodeCalculG_Nouv::gRsBaremeTauxPAS},
  };
  return kSources;
}

Json LitTexteJson(const std::string& texte, const std::string& nomEntree) {
  if (texte.size() > kCasTailleMax)
    throw ErreurCas(nomEntree, "larger than 64 MiB (" + std::to_string(kCasTailleMax) + " bytes)");
  if (texte.find_first_not_of(" \t\r\n") == std::string::npos)
    throw ErreurCas(nomEntree, "empty input");
  Verificateur verificateur(nomEntree);
  Json::sax_parse(texte, &verificateur);
  // Checked: the text is JSON within its limits, and the parse into a tree is linear.
  return Json::parse(texte);
}

Cas LitCas(const Json& j) {
  if (!j.is_object()) throw ErreurCas("", "a case is a JSON object, got " + Decrit(j));
  for (const auto& [cle, v] : j.items()) {
    (void)v;
    if (cle != "engine" && cle != "gPeriodeEncours" && cle != "sources" && cle != "salarie" &&
        cle != "steps")
      throw ErreurCas(cle, "unknown key (engine, gPeriodeEncours, sources, salarie, steps)");
  }
  Cas cas;
  if (j.contains("engine")) {
    const std::string moteur = LitTexte(j["engine"], "engine");
    if (moteur == "MethodeCalculG_Nouv") cas.moteur = TypeMoteur::Nouv;
    else if (moteur == "MethodeCalculG") cas.moteur = TypeMoteur::Histo;
    else throw ErreurCas("engine", "unknown engine '" + moteur + "' (MethodeCalculG_Nouv or MethodeCalculG)");
  }
  if (j.contains("gPeriodeEncours")) cas.gPeriodeEncours = LitTexte(j["gPeriodeEncours"], "gPeriodeEncours");
  if (j.contains("sources")) cas.sources = LitSources(j["sources"], "sources", cas.moteur);
  if (j.contains("salarie")) cas.salarie = LitChamps<VarCalculSalarie>(j["salarie"], "salarie");
  if (j.contains("steps")) {
    const Json& etapes = j["steps"];
    if (!etapes.is_array()) throw ErreurCas("steps", "expected an array of steps, got " + Decrit(etapes));
    bool calcVu = false;
    for (std::size_t i = 0; i < etapes.size(); ++i)
      cas.etapes.push_back(LitEtape(etapes[i], Indice("steps", i), cas.moteur, calcVu));
  }
  return cas;
}

}  // namespace orvalis::tools
