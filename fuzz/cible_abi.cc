// Fuzz target: the C interface, as a careless host drives it. From the input, a sequence of
// calls of any function of orvalis.h, each with handles taken from those made so far (live,
// freed, of another kind, foreign or null), names that exist or not, null pointers, indexes
// and counts out of range, texts long and short. Every call answers one of the result codes
// and leaves a message; a crash, a sanitizer report, a leak or a code out of the list is a
// finding. The handles still live at the end are freed, as a host does at exit.
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <string>
#include <vector>

#include "frame/dispatch.h"
#include "fuzz/octets.h"
#include "orvalis/orvalis.h"

namespace {

using orvalis::fuzz::Octets;

void Verifie(int code) {
  if (code < ORVALIS_OK || code > ORVALIS_ERROR) std::abort();
}

// A text read back is a whole C string: reading it to its end lets the sanitizer check it.
void Lit(const char* t) {
  if (t != nullptr) (void)std::strlen(t);
}

// What a handle pointer may be besides one the library made: a pointer into a buffer of the
// host's own.
alignas(16) char kEtranger[256];

// Names that exist and names that do not.
struct Noms {
  std::vector<std::string> champsSalarie, champsLigne, operations, methodes, preparations;
  std::vector<std::string> sources = {"gRsConstantes", "gRsTaux", "gRsTauxSpecifique", "gRsCumuls",
                                      "gRsConstantesFixes", "gRsVariables",
                                      "gRsConstantesFixesHistorique", "gRsCumulsHistoriqueSal",
                                      "gRsConstantesHistorique", "gRsBaremeTauxPAS", "gRsInconnu",
                                      "grsconstantes", ""};
  std::vector<std::string> colonnes = {"CodeConstante", "Valeur", "TauxMontant", "CodeTaux",
                                       "PartSalariale", "PartPatronale", "CodeCumul", "Mois",
                                       "codeconstante", "", "Inconnue"};
  Noms() {
    for (int genre : {ORVALIS_EMPLOYEE, ORVALIS_LINE}) {
      int n = 0;
      if (orvalis_field_count(genre, &n) != ORVALIS_OK) std::abort();
      for (int i = 0; i < n; ++i) {
        const char* nom = nullptr;
        int type = 0;
        if (orvalis_field_info(genre, i, &nom, &type) != ORVALIS_OK) std::abort();
        (genre == ORVALIS_EMPLOYEE ? champsSalarie : champsLigne).emplace_back(nom);
      }
    }
    orvalis_engine* e = nullptr;
    if (orvalis_engine_new("MethodeCalculG_Nouv", &e) != ORVALIS_OK) std::abort();
    int n = 0;
    orvalis_operation_count(e, &n);
    for (int i = 0; i < n; ++i) {
      const char* nom = nullptr;
      if (orvalis_operation_info(e, i, &nom, nullptr) == ORVALIS_OK) operations.emplace_back(nom);
    }
    orvalis_engine_free(e);
    for (const auto& l : orvalis::TableCalculNouv()) methodes.emplace_back(l.nom);
    for (const auto& l : orvalis::TablePreparationNouv()) preparations.emplace_back(l.nom);
    for (auto* v : {&champsSalarie, &champsLigne, &operations, &methodes, &preparations})
      v->push_back("Inconnu");
  }
};

const Noms& LesNoms() {
  static const Noms n;
  return n;
}

class Hote {
 public:
  explicit Hote(Octets& in) : in_(in) {}

  ~Hote() {
    // Every pointer ever handed out is freed through its kind: the live ones go, the freed
    // ones and those whose address was given again are refused.
    for (void* p : moteurs_) Verifie(orvalis_engine_free(static_cast<orvalis_engine*>(p)));
    for (void* p : salaries_) Verifie(orvalis_employee_free(static_cast<orvalis_employee*>(p)));
    for (void* p : lignes_) Verifie(orvalis_line_free(static_cast<orvalis_line*>(p)));
    for (void* p : tables_) Verifie(orvalis_recordset_free(static_cast<orvalis_recordset*>(p)));
  }

  void Appel();

 private:
  // A handle of the kind asked most times; else one of another kind, a foreign or a null one.
  void* Poignee(const std::vector<void*>& genre) {
    switch (in_.Choix(16)) {
      case 0: return nullptr;
      case 1: return kEtranger + in_.Choix(sizeof kEtranger / 8) * 8;
      case 2: {
        const std::vector<void*>* tous[] = {&moteurs_, &salaries_, &lignes_, &tables_};
        const auto& autre = *tous[in_.Choix(4)];
        return autre.empty() ? nullptr : autre[in_.Choix(autre.size())];
      }
      default: return genre.empty() ? nullptr : genre[in_.Choix(genre.size())];
    }
  }
  orvalis_engine* Moteur() { return static_cast<orvalis_engine*>(Poignee(moteurs_)); }
  orvalis_employee* Salarie() { return static_cast<orvalis_employee*>(Poignee(salaries_)); }
  orvalis_line* Ligne() { return static_cast<orvalis_line*>(Poignee(lignes_)); }
  orvalis_recordset* Table() { return static_cast<orvalis_recordset*>(Poignee(tables_)); }

  // A name of the list, raw bytes, a long text, or null.
  const char* Nom(const std::vector<std::string>& liste) {
    switch (in_.Choix(12)) {
      case 0: return nullptr;
      case 1: return Garde(in_.Texte(16));
      case 2: return Garde(std::string(in_.Booleen() ? 100000 : 300, 'x'));
      default: return liste[in_.Choix(liste.size())].c_str();
    }
  }
  const char* Texte() {
    switch (in_.Choix(8)) {
      case 0: return nullptr;
      case 1: return Garde(std::string(std::size_t{1} << (10 + in_.Choix(11)), 'A'));
      case 2: return "01/03/2024";
      case 3: return "31/02/2024";
      default: return Garde(in_.Texte(24));
    }
  }
  int Index() {
    static const int kBords[] = {-1, INT_MIN, INT_MAX, 100000};
    return in_.Choix(5) == 0 ? kBords[in_.Choix(4)] : static_cast<int>(in_.Choix(12));
  }
  long long Entier() {
    static const long long kBords[] = {0, 1, -1, 32767, 32768, -32769, 2147483648LL, LLONG_MIN, LLONG_MAX};
    return in_.Booleen() ? kBords[in_.Choix(std::size(kBords))] : static_cast<long long>(in_.Entier(8));
  }
  double Double() { return in_.Booleen() ? in_.DoubleBrut() : static_cast<double>(in_.Choix(2000)) / 4; }
  // An output pointer, or null now and then.
  template <typename T>
  T* Sortie(T& v) { return in_.Choix(10) == 0 ? nullptr : &v; }

  // A JSON argument list for orvalis_call.
  const char* Arguments() {
    static const char* const kListes[] = {
        "[]", "[\"$salarie\"]", "[\"$rubrique\"]", "[\"$salarie\", \"$rubrique\"]",
        "[\"01/03/2024\", \"31/03/2024\"]", "[1, 2]", "[\"x\", 0.5, true]", "[\"$absent\"]",
        "[[1, 2], {\"a\": 1}]", "{}", "[", "null", "[1e400]", "[\"\\u0000\"]"};
    switch (in_.Choix(6)) {
      case 0: return nullptr;
      case 1: return Garde(in_.Texte(40));
      case 2: return Garde(std::string(in_.Choix(3000), '['));
      default: return kListes[in_.Choix(std::size(kListes))];
    }
  }

  // Texts passed in a call stay until the next call.
  const char* Garde(std::string s) { return textes_.emplace_back(std::move(s)).c_str(); }

  template <typename T>
  void Garde(std::vector<void*>& genre, int code, T* h) {
    Verifie(code);
    if (code == ORVALIS_OK && h != nullptr) genre.push_back(h);
  }

  void Champs(bool salarie);
  void Tables();

  Octets& in_;
  std::deque<std::string> textes_;
  std::vector<void*> moteurs_, salaries_, lignes_, tables_;
};

void Message(void* user, const char* text) {
  Lit(text);
  // A host may ask the library for anything while it is called back.
  Lit(orvalis_errmsg(user));
}

void Hote::Champs(bool salarie) {
  const Noms& n = LesNoms();
  const char* champ = Nom(salarie ? n.champsSalarie : n.champsLigne);
  void* h = salarie ? static_cast<void*>(Salarie()) : static_cast<void*>(Ligne());
  auto* s = static_cast<orvalis_employee*>(h);
  auto* l = static_cast<orvalis_line*>(h);
  long long i = 0;
  double d = 0;
  int b = 0;
  const char* t = nullptr;
  orvalis_recordset* rs = nullptr;
  int code = 0;
  switch (in_.Choix(10)) {
    case 0: code = salarie ? orvalis_employee_set_int(s, champ, Entier()) : orvalis_line_set_int(l, champ, Entier()); break;
    case 1: code = salarie ? orvalis_employee_get_int(s, champ, Sortie(i)) : orvalis_line_get_int(l, champ, Sortie(i)); break;
    case 2: code = salarie ? orvalis_employee_set_double(s, champ, Double()) : orvalis_line_set_double(l, champ, Double()); break;
    case 3: code = salarie ? orvalis_employee_get_double(s, champ, Sortie(d)) : orvalis_line_get_double(l, champ, Sortie(d)); break;
    case 4: code = salarie ? orvalis_employee_set_text(s, champ, Texte()) : orvalis_line_set_text(l, champ, Texte()); break;
    case 5:
      code = salarie ? orvalis_employee_get_text(s, champ, Sortie(t)) : orvalis_line_get_text(l, champ, Sortie(t));
      if (code == ORVALIS_OK) Lit(t);
      break;
    case 6: code = salarie ? orvalis_employee_set_bool(s, champ, static_cast<int>(Entier())) : orvalis_line_set_bool(l, champ, static_cast<int>(Entier())); break;
    case 7: code = salarie ? orvalis_employee_get_bool(s, champ, Sortie(b)) : orvalis_line_get_bool(l, champ, Sortie(b)); break;
    case 8: code = salarie ? orvalis_employee_set_recordset(s, champ, Table()) : orvalis_line_set_recordset(l, champ, Table()); break;
    default:
      code = salarie ? orvalis_employee_get_recordset(s, champ, Sortie(rs)) : orvalis_line_get_recordset(l, champ, Sortie(rs));
      Garde(tables_, code, rs);
  }
  Verifie(code);
}

void Hote::Tables() {
  const Noms& n = LesNoms();
  orvalis_recordset* rs = Table();
  int i = 0, type = 0;
  double d = 0;
  const char* t = nullptr;
  switch (in_.Choix(12)) {
    case 0: {
      // Columns named from the list; the count given is the count of names, or a wrong one
      // with no array (a count past an array is the host's own overrun, not ours to catch).
      std::vector<const char*> cols;
      const std::size_t nc = in_.Choix(6);
      for (std::size_t k = 0; k < nc; ++k) cols.push_back(Nom(n.colonnes));
      orvalis_recordset* nouveau = nullptr;
      int code;
      if (in_.Choix(6) == 0)
        code = orvalis_recordset_new(nullptr, in_.Booleen() ? INT_MAX : -1, Sortie(nouveau));
      else
        code = orvalis_recordset_new(cols.data(), static_cast<int>(cols.size()), Sortie(nouveau));
      Garde(tables_, code, nouveau);
      return;
    }
    case 1: Verifie(orvalis_recordset_free(rs)); return;
    case 2: Verifie(in_.Booleen() ? orvalis_recordset_add_row(rs) : orvalis_recordset_rewind(rs)); return;
    case 3: Verifie(orvalis_recordset_set_double(rs, Nom(n.colonnes), Double())); return;
    case 4: Verifie(orvalis_recordset_set_text(rs, Nom(n.colonnes), Texte())); return;
    case 5: Verifie(in_.Booleen() ? orvalis_recordset_set_bool(rs, Nom(n.colonnes), in_.Booleen())
                                  : orvalis_recordset_set_null(rs, Nom(n.colonnes)));
      return;
    case 6: Verifie(orvalis_recordset_column_count(rs, Sortie(i))); return;
    case 7:
      if (orvalis_recordset_column_name(rs, Index(), Sortie(t)) == ORVALIS_OK) Lit(t);
      return;
    case 8: Verifie(orvalis_recordset_row_count(rs, Sortie(i))); return;
    case 9: Verifie(orvalis_recordset_cell_type(rs, Index(), Index(), Sortie(type))); return;
    case 10: Verifie(orvalis_recordset_get_double(rs, Index(), Index(), Sortie(d))); return;
    default:
      if (in_.Booleen()) {
        Verifie(orvalis_recordset_get_bool(rs, Index(), Index(), Sortie(i)));
      } else {
        const int code = orvalis_recordset_get_text(rs, Index(), Index(), Sortie(t));
        Verifie(code);
        if (code == ORVALIS_OK) Lit(t);
      }
  }
}

void Hote::Appel() {
  textes_.clear();
  const Noms& n = LesNoms();
  const char* t = nullptr;
  const char* t2 = nullptr;
  int i = 0;
  double d = 0;
  switch (in_.Choix(24)) {
    case 0: {
      static const char* const kClasses[] = {"MethodeCalculG_Nouv", "MethodeCalculG", "methodecalculg",
                                             "", nullptr};
      orvalis_engine* e = nullptr;
      const int code = orvalis_engine_new(kClasses[in_.Choix(std::size(kClasses))], Sortie(e));
      Garde(moteurs_, code, e);
      return;
    }
    case 1: Verifie(orvalis_engine_free(Moteur())); return;
    case 2:
      if (orvalis_engine_class(Moteur(), Sortie(t)) == ORVALIS_OK) Lit(t);
      return;
    case 3:
      if (in_.Booleen()) {
        Verifie(orvalis_engine_set_period(Moteur(), Texte()));
      } else if (orvalis_engine_get_period(Moteur(), Sortie(t)) == ORVALIS_OK) {
        Lit(t);
      }
      return;
    case 4:
      Verifie(in_.Booleen() ? orvalis_engine_set_smic(Moteur(), Double())
                            : orvalis_engine_get_smic(Moteur(), Sortie(d)));
      return;
    case 5: Verifie(orvalis_engine_set_source(Moteur(), Nom(n.sources), Table())); return;
    case 6: {
      orvalis_recordset* rs = nullptr;
      const int code = orvalis_engine_get_source(Moteur(), Nom(n.sources), Sortie(rs));
      Garde(tables_, code, rs);
      return;
    }
    case 7: {
      orvalis_engine* e = Moteur();
      Verifie(orvalis_engine_set_message_handler(e, in_.Booleen() ? Message : nullptr, e));
      return;
    }
    case 8:
      if (in_.Booleen()) Verifie(orvalis_engine_message_count(Moteur(), Sortie(i)));
      else if (orvalis_engine_message(Moteur(), Index(), Sortie(t)) == ORVALIS_OK) Lit(t);
      return;
    case 9: Verifie(orvalis_tpt_rate(Sortie(i))); return;
    case 10: Verifie(orvalis_prepare(Moteur(), Nom(n.preparations), Salarie())); return;
    case 11:
    case 12: {
      orvalis_engine* e = Moteur();
      const char* nom = Nom(n.methodes);
      orvalis_employee* s = Salarie();
      orvalis_line* l = Ligne();
      orvalis_recordset* a = in_.Booleen() ? nullptr : Table();
      orvalis_recordset* b = in_.Booleen() ? nullptr : Table();
      orvalis_recordset* c = in_.Booleen() ? nullptr : Table();
      Verifie(orvalis_calculate(e, nom, s, l, a, b, c));
      return;
    }
    case 13: {
      orvalis_engine* e = Moteur();
      const char* op = Nom(n.operations);
      const char* args = Arguments();
      orvalis_employee* s = Salarie();
      orvalis_line* l = Ligne();
      const int code = orvalis_call(e, op, args, s, l, Sortie(t));
      Verifie(code);
      if (code == ORVALIS_OK) Lit(t);
      return;
    }
    case 14:
      if (in_.Booleen()) {
        Verifie(orvalis_operation_count(Moteur(), Sortie(i)));
      } else {
        const bool signature = in_.Booleen();
        if (orvalis_operation_info(Moteur(), Index(), Sortie(t), signature ? &t2 : nullptr) ==
            ORVALIS_OK) {
          Lit(t);
          if (signature) Lit(t2);
        }
      }
      return;
    case 15:
      if (in_.Booleen()) {
        orvalis_employee* s = nullptr;
        const int code = orvalis_employee_new(Sortie(s));
        Garde(salaries_, code, s);
      } else {
        orvalis_line* l = nullptr;
        const int code = orvalis_line_new(Sortie(l));
        Garde(lignes_, code, l);
      }
      return;
    case 16:
      Verifie(in_.Booleen() ? orvalis_employee_free(Salarie()) : orvalis_line_free(Ligne()));
      return;
    case 17: {
      const int genre = static_cast<int>(in_.Choix(4));
      int type = 0;
      if (in_.Booleen()) Verifie(orvalis_field_count(genre, Sortie(i)));
      else if (orvalis_field_info(genre, Index(), Sortie(t), Sortie(type)) == ORVALIS_OK) Lit(t);
      return;
    }
    case 18:
    case 19: Champs(in_.Booleen()); return;
    case 20:
    case 21: Tables(); return;
    case 22: {
      const std::vector<void*>* tous[] = {&moteurs_, &salaries_, &lignes_, &tables_};
      const auto& g = *tous[in_.Choix(4)];
      Lit(orvalis_errmsg(g.empty() || in_.Booleen() ? static_cast<void*>(kEtranger) : g[in_.Choix(g.size())]));
      Lit(orvalis_errstr(static_cast<int>(in_.Entier(1)) - 8));
      Lit(orvalis_libversion());
      if (orvalis_libversion_number() != ORVALIS_VERSION_NUMBER) std::abort();
      return;
    }
    default: {
      // A case file now and then: its own target covers it, here it runs among the handles.
      if (in_.Choix(4) != 0) return;
      static const char* const kCas[] = {
          "{}", "[]", "{\"engine\": \"MethodeCalculG_Nouv\", \"calls\": []}", nullptr};
      char* sortie = nullptr;
      const int code = orvalis_run_case(kCas[in_.Choix(std::size(kCas))], Sortie(sortie));
      Verifie(code);
      orvalis_free_text(sortie);
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Octets in(data, size);
  (void)LesNoms();
  {
    Hote hote(in);
    for (int k = 0; k < 64 && !in.Fini(); ++k) hote.Appel();
  }
  return 0;
}
