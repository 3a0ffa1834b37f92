// The C interface: one boundary that checks every handle and turns every failure into a code.
#include "orvalis/orvalis.h"

#include <cctype>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <mutex>
#include <new>
#include <sstream>
#include <string>
#include <unordered_map>
#include <vector>

#include "orvalis/MethodeCalculG.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/fault.h"
#include "orvalis/fields.h"
#include "tools/call_table.h"
#include "tools/case_runner.h"
#include "tools/json_writer.h"

namespace {

using namespace orvalis;
using namespace orvalis::tools;

enum class Genre { Moteur, Salarie, Ligne, Recordset };

// What every handle carries: its kind and the text of its last call.
struct Poignee {
  explicit Poignee(Genre g) : genre(g) {}
  Genre genre;
  std::string message = "ok";
  std::string texte;  // the text last handed out through this handle
};

}  // namespace

struct orvalis_engine : Poignee {
  orvalis_engine() : Poignee(Genre::Moteur) {}
  std::unique_ptr<MethodeCalculG_Nouv> nouv;
  std::unique_ptr<MethodeCalculG> histo;
  MoteurCalcul* moteur = nullptr;
  orvalis_message_fn rappel = nullptr;
  void* utilisateur = nullptr;
  std::string resultat;  // of the last orvalis_call
};

struct orvalis_employee : Poignee {
  orvalis_employee() : Poignee(Genre::Salarie) {}
  VarCalculSalarie record;
};

struct orvalis_line : Poignee {
  orvalis_line() : Poignee(Genre::Ligne) {}
  std::shared_ptr<SalarieCalculRubrique> record = std::make_shared<SalarieCalculRubrique>();
};

struct orvalis_recordset : Poignee {
  orvalis_recordset() : Poignee(Genre::Recordset) {}
  RsRef rs;
};

namespace {

// A failure with its code, thrown inside the boundary only.
struct Echec {
  int code;
  std::string message;
};

thread_local std::string tDernierEchec = "ok";

// The live handles. A handle is looked up here before it is touched, so a freed or foreign
// pointer is answered with ORVALIS_MISUSE instead of being read.
class Registre {
 public:
  void Ajoute(const Poignee* p) {
    std::lock_guard<std::mutex> verrou(m_);
    vivants_[p] = p->genre;
  }
  void Retire(const Poignee* p) {
    std::lock_guard<std::mutex> verrou(m_);
    vivants_.erase(p);
  }
  bool Vivant(const void* p, Genre g) const {
    std::lock_guard<std::mutex> verrou(m_);
    const auto it = vivants_.find(p);
    return it != vivants_.end() && it->second == g;
  }
  bool VivantQuelconque(const void* p) const {
    std::lock_guard<std::mutex> verrou(m_);
    return vivants_.count(p) != 0;
  }

 private:
  mutable std::mutex m_;
  std::unordered_map<const void*, Genre> vivants_;
};

Registre& LeRegistre() {
  static Registre* r = new Registre;  // never destroyed: hosts may free handles at exit
  return *r;
}

const char* NomGenre(Genre g) {
  switch (g) {
    case Genre::Moteur: return "orvalis_engine";
    case Genre::Salarie: return "orvalis_employee";
    case Genre::Ligne: return "orvalis_line";
    case Genre::Recordset: return "orvalis_recordset";
  }
  return "handle";
}

template <typename H>
constexpr Genre GenreDe() {
  if constexpr (std::is_same_v<H, orvalis_engine>) return Genre::Moteur;
  else if constexpr (std::is_same_v<H, orvalis_employee>) return Genre::Salarie;
  else if constexpr (std::is_same_v<H, orvalis_line>) return Genre::Ligne;
  else return Genre::Recordset;
}

// Runs `travail` on a handle checked live, catching everything. The handle keeps the text of
// the outcome; a failure is also the thread's last failure.
template <typename H, typename F>
int Frontiere(H* h, F&& travail) noexcept {
  constexpr Genre g = GenreDe<H>();
  if (h == nullptr || !LeRegistre().Vivant(h, g)) {
    tDernierEchec = std::string(h == nullptr ? "null " : "not a live ") + NomGenre(g);
    return ORVALIS_MISUSE;
  }
  int code = ORVALIS_OK;
  std::string message = "ok";
  try {
    travail(*h);
  } catch (const Echec& e) {
    code = e.code;
    message = e.message;
  } catch (const std::bad_alloc&) {
    code = ORVALIS_NOMEM;
    message = "out of memory";
  } catch (const ErreurCas& e) {
    code = ORVALIS_ERROR;
    message = e.what();
  } catch (const Fault& e) {
    code = ORVALIS_FAULT;
    message = e.what();
  } catch (const std::exception& e) {
    code = ORVALIS_FAULT;
    message = e.what();
  } catch (...) {
    code = ORVALIS_FAULT;
    message = "unknown fault";
  }
  try {
    h->message = message;
    if (code != ORVALIS_OK) tDernierEchec = message;
  } catch (...) {
    return ORVALIS_NOMEM;
  }
  return code;
}

// The same for the functions that take no handle.
template <typename F>
int FrontiereLibre(F&& travail) noexcept {
  try {
    travail();
    return ORVALIS_OK;
  } catch (const Echec& e) {
    tDernierEchec = e.message;
    return e.code;
  } catch (const std::bad_alloc&) {
    return ORVALIS_NOMEM;
  } catch (const std::exception& e) {
    tDernierEchec = e.what();
    return ORVALIS_FAULT;
  } catch (...) {
    tDernierEchec = "unknown fault";
    return ORVALIS_FAULT;
  }
}

template <typename H>
int Nouveau(H** out, std::unique_ptr<H> h) {
  LeRegistre().Ajoute(h.get());
  *out = h.release();
  return ORVALIS_OK;
}

template <typename H>
int Libere(H* h) noexcept {
  constexpr Genre g = GenreDe<H>();
  if (h == nullptr || !LeRegistre().Vivant(h, g)) {
    tDernierEchec = std::string(h == nullptr ? "null " : "not a live ") + NomGenre(g);
    return ORVALIS_MISUSE;
  }
  LeRegistre().Retire(h);
  delete h;
  return ORVALIS_OK;
}

void Requis(const void* p, const char* quoi) {
  if (p == nullptr) throw Echec{ORVALIS_MISUSE, std::string("null ") + quoi};
}

// ---- Fields by name ---------------------------------------------------------------------

const char* NomType(TypeChamp t) {
  switch (t) {
    case TypeChamp::I16: return "a 16-bit integer";
    case TypeChamp::I32: return "a 32-bit integer";
    case TypeChamp::D: return "a double";
    case TypeChamp::S: return "a text";
    case TypeChamp::B: return "a boolean";
    case TypeChamp::RS: return "a recordset";
  }
  return "a field";
}

template <typename R>
const Champ<R>& LeChamp(const char* nom, std::initializer_list<TypeChamp> types, const char* usage) {
  Requis(nom, "field name");
  const Champ<R>* c = TrouveChamp<R>(nom);
  if (c == nullptr)
    throw Echec{ORVALIS_NOTFOUND, std::string(NomRecord<R>()) + " has no field '" + nom + "'"};
  for (TypeChamp t : types)
    if (c->type == t) return *c;
  throw Echec{ORVALIS_TYPE, std::string(NomRecord<R>()) + "." + nom + " is " + NomType(c->type) +
                                ", not " + usage};
}

template <typename R>
void EcritEntier(R& r, const char* nom, long long v) {
  const Champ<R>& c = LeChamp<R>(nom, {TypeChamp::I16, TypeChamp::I32}, "an integer");
  const bool i16 = c.type == TypeChamp::I16;
  const long long min = i16 ? std::numeric_limits<std::int16_t>::min() : std::numeric_limits<std::int32_t>::min();
  const long long max = i16 ? std::numeric_limits<std::int16_t>::max() : std::numeric_limits<std::int32_t>::max();
  if (v < min || v > max)
    throw Echec{ORVALIS_RANGE, std::string(NomRecord<R>()) + "." + nom + ": " + std::to_string(v) +
                                   " is out of range (" + std::to_string(min) + " to " +
                                   std::to_string(max) + ")"};
  if (i16) r.*std::get<Int16 R::*>(c.membre) = Int16(static_cast<std::int16_t>(v));
  else r.*std::get<Int32 R::*>(c.membre) = Int32(static_cast<std::int32_t>(v));
}

template <typename R>
long long LitEntier(const R& r, const char* nom) {
  const Champ<R>& c = LeChamp<R>(nom, {TypeChamp::I16, TypeChamp::I32}, "an integer");
  if (c.type == TypeChamp::I16) return (r.*std::get<Int16 R::*>(c.membre)).value();
  return (r.*std::get<Int32 R::*>(c.membre)).value();
}

template <typename R, typename T>
T& Membre(R& r, const char* nom, TypeChamp t, const char* usage) {
  return r.*std::get<T R::*>(LeChamp<R>(nom, {t}, usage).membre);
}

RsRef Partage(orvalis_recordset* rs) {
  if (rs == nullptr) return nullptr;
  if (!LeRegistre().Vivant(rs, Genre::Recordset))
    throw Echec{ORVALIS_MISUSE, "not a live orvalis_recordset"};
  return rs->rs;
}

int DonneRecordset(const RsRef& rs, orvalis_recordset** out) {
  if (!rs) {
    *out = nullptr;
    return ORVALIS_OK;
  }
  auto h = std::make_unique<orvalis_recordset>();
  h->rs = rs;
  return Nouveau(out, std::move(h));
}

// ---- Engines ----------------------------------------------------------------------------

const DefSource& LaSource(const orvalis_engine& e, const char* nom) {
  Requis(nom, "property name");
  for (const DefSource& d : TableDesSources()) {
    if (std::strcmp(d.nom, nom) != 0) continue;
    if (d.nouv != nullptr && !e.nouv)
      throw Echec{ORVALIS_NOTFOUND, std::string("MethodeCalculG has no source '") + nom + "'"};
    return d;
  }
  throw Echec{ORVALIS_NOTFOUND, std::string("no engine source named '") + nom + "'"};
}

RsRef& Propriete(orvalis_engine& e, const DefSource& d) {
  return d.commun != nullptr ? e.moteur->*d.commun : e.nouv.get()->*d.nouv;
}

unsigned Masque(const orvalis_engine& e) { return e.nouv ? kNouv : kHisto; }

std::vector<const Operation*> Operations(const orvalis_engine& e) {
  std::vector<const Operation*> ops;
  for (const auto& op : TableDesAppels())
    if (op.moteurs & Masque(e)) ops.push_back(&op);
  return ops;
}

// Whether a JSON argument list names one of the records, at its top level.
bool Nomme(const Json& args, const char* jeton) {
  if (!args.is_array()) return false;
  for (const auto& a : args)
    if (a.is_string() && a.get_ref<const std::string&>() == jeton) return true;
  return false;
}

std::string TexteCellule(const Value& v) {
  if (v.EstNull()) return "";
  if (v.EstNombre()) return TexteDouble(v.Double());
  return v.Texte();
}

const Value& Cellule(orvalis_recordset& h, std::vector<std::vector<Value>>& lignes, int ligne,
                     int colonne) {
  lignes = h.rs->Rows();
  if (ligne < 0 || static_cast<std::size_t>(ligne) >= lignes.size())
    throw Echec{ORVALIS_RANGE, "no row " + std::to_string(ligne) + " (" +
                                   std::to_string(lignes.size()) + " rows)"};
  const auto& l = lignes[static_cast<std::size_t>(ligne)];
  if (colonne < 0 || static_cast<std::size_t>(colonne) >= l.size())
    throw Echec{ORVALIS_RANGE, "no column " + std::to_string(colonne) + " (" +
                                   std::to_string(l.size()) + " columns)"};
  return l[static_cast<std::size_t>(colonne)];
}


bool MemeNomSansCasse(const std::string& a, const char* b) {
  if (a.size() != std::strlen(b)) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i])))
      return false;
  return true;
}

int EcritUneCellule(orvalis_recordset* rs, const char* column, const Value& v) {
  return Frontiere(rs, [&](orvalis_recordset& h) {
    Requis(column, "column name");
    bool trouve = false;
    for (const auto& c : h.rs->Columns()) trouve = trouve || MemeNomSansCasse(c, column);
    if (!trouve) throw Echec{ORVALIS_NOTFOUND, std::string("no column '") + column + "'"};
    try {
      h.rs->SetField(column, v);
    } catch (const Fault& f) {
      throw Echec{ORVALIS_MISUSE, f.what()};
    }
  });
}

}  // namespace

extern "C" {

const char* orvalis_libversion(void) { return ORVALIS_VERSION; }
int orvalis_libversion_number(void) { return ORVALIS_VERSION_NUMBER; }

const char* orvalis_errmsg(const void* handle) {
  if (handle != nullptr && LeRegistre().VivantQuelconque(handle))
    return static_cast<const Poignee*>(handle)->message.c_str();
  return tDernierEchec.c_str();
}

const char* orvalis_errstr(int code) {
  switch (code) {
    case ORVALIS_OK: return "ORVALIS_OK";
    case ORVALIS_FAULT: return "ORVALIS_FAULT";
    case ORVALIS_MISUSE: return "ORVALIS_MISUSE";
    case ORVALIS_NOTFOUND: return "ORVALIS_NOTFOUND";
    case ORVALIS_RANGE: return "ORVALIS_RANGE";
    case ORVALIS_NOMEM: return "ORVALIS_NOMEM";
    case ORVALIS_TYPE: return "ORVALIS_TYPE";
    case ORVALIS_ERROR: return "ORVALIS_ERROR";
  }
  return "unknown code";
}

// ---- Engines ----------------------------------------------------------------------------

int orvalis_engine_new(const char* engine_class, orvalis_engine** out) {
  return FrontiereLibre([&] {
    Requis(out, "output pointer");
    *out = nullptr;
    Requis(engine_class, "engine class");
    auto e = std::make_unique<orvalis_engine>();
    if (std::strcmp(engine_class, "MethodeCalculG_Nouv") == 0) {
      e->nouv = std::make_unique<MethodeCalculG_Nouv>();
      e->moteur = e->nouv.get();
    } else if (std::strcmp(engine_class, "MethodeCalculG") == 0) {
      e->histo = std::make_unique<MethodeCalculG>();
      e->moteur = e->histo.get();
    } else {
      throw Echec{ORVALIS_NOTFOUND, std::string("unknown engine class '") + engine_class +
                                        "' (MethodeCalculG_Nouv or MethodeCalculG)"};
    }
    Nouveau(out, std::move(e));
  });
}

int orvalis_engine_free(orvalis_engine* engine) { return Libere(engine); }

int orvalis_engine_class(orvalis_engine* engine, const char** out) {
  return Frontiere(engine, [&](orvalis_engine& e) {
    Requis(out, "output pointer");
    *out = e.nouv ? "MethodeCalculG_Nouv" : "MethodeCalculG";
  });
}

int orvalis_engine_set_period(orvalis_engine* engine, const char* period) {
  return Frontiere(engine, [&](orvalis_engine& e) {
    Requis(period, "period");
    e.moteur->gPeriodeEncours = period;
  });
}

int orvalis_engine_get_period(orvalis_engine* engine, const char** out) {
  return Frontiere(engine, [&](orvalis_engine& e) {
    Requis(out, "output pointer");
    e.texte = e.moteur->gPeriodeEncours;
    *out = e.texte.c_str();
  });
}

int orvalis_engine_get_smic(orvalis_engine* engine, double* out) {
  return Frontiere(engine, [&](orvalis_engine& e) {
    Requis(out, "output pointer");
    *out = e.moteur->gdSmicMensuel;
  });
}

int orvalis_engine_set_smic(orvalis_engine* engine, double value) {
  return Frontiere(engine, [&](orvalis_engine& e) { e.moteur->gdSmicMensuel = value; });
}

int orvalis_engine_set_source(orvalis_engine* engine, const char* name, orvalis_recordset* rs) {
  return Frontiere(engine, [&](orvalis_engine& e) {
    const DefSource& d = LaSource(e, name);
    Propriete(e, d) = Partage(rs);
  });
}

int orvalis_engine_get_source(orvalis_engine* engine, const char* name, orvalis_recordset** out) {
  return Frontiere(engine, [&](orvalis_engine& e) {
    Requis(out, "output pointer");
    *out = nullptr;
    DonneRecordset(Propriete(e, LaSource(e, name)), out);
  });
}

int orvalis_engine_set_message_handler(orvalis_engine* engine, orvalis_message_fn fn, void* user) {
  return Frontiere(engine, [&](orvalis_engine& e) {
    e.rappel = fn;
    e.utilisateur = user;
    if (fn == nullptr) {
      e.moteur->OnMessage = nullptr;
      return;
    }
    e.moteur->OnMessage = [fn, user](const std::string& texte) { fn(user, texte.c_str()); };
  });
}

int orvalis_engine_message_count(orvalis_engine* engine, int* out) {
  return Frontiere(engine, [&](orvalis_engine& e) {
    Requis(out, "output pointer");
    *out = static_cast<int>(e.moteur->Messages.size());
  });
}

int orvalis_engine_message(orvalis_engine* engine, int index, const char** out) {
  return Frontiere(engine, [&](orvalis_engine& e) {
    Requis(out, "output pointer");
    const auto& m = e.moteur->Messages;
    if (index < 0 || static_cast<std::size_t>(index) >= m.size())
      throw Echec{ORVALIS_RANGE, "no message " + std::to_string(index) + " (" +
                                     std::to_string(m.size()) + " messages)"};
    e.texte = m[static_cast<std::size_t>(index)];
    *out = e.texte.c_str();
  });
}

int orvalis_tpt_rate(int* out) {
  return FrontiereLibre([&] {
    Requis(out, "output pointer");
    *out = iTauxTptNonSubroge.value();
  });
}

// ---- Entry points -------------------------------------------------------------------------

int orvalis_prepare(orvalis_engine* engine, const char* name, orvalis_employee* employee) {
  return Frontiere(engine, [&](orvalis_engine& e) {
    Requis(name, "method name");
    Requis(employee, "orvalis_employee");
    if (!LeRegistre().Vivant(employee, Genre::Salarie))
      throw Echec{ORVALIS_MISUSE, "not a live orvalis_employee"};
    const bool ok = e.nouv ? e.nouv->Appel_Methode_Preparation_Calcul_General(name, employee->record)
                           : e.histo->Appel_Methode_Preparation_Calcul_General(name, employee->record);
    if (!ok) throw Echec{ORVALIS_FAULT, std::string("the preparation \"") + name + "\" returned false"};
  });
}

int orvalis_calculate(orvalis_engine* engine, const char* name, orvalis_employee* employee,
                      orvalis_line* line, orvalis_recordset* var_salaries,
                      orvalis_recordset* var_salaries_histo, orvalis_recordset* salaries_histo) {
  return Frontiere(engine, [&](orvalis_engine& e) {
    Requis(name, "method name");
    Requis(employee, "orvalis_employee");
    Requis(line, "orvalis_line");
    if (!LeRegistre().Vivant(employee, Genre::Salarie))
      throw Echec{ORVALIS_MISUSE, "not a live orvalis_employee"};
    if (!LeRegistre().Vivant(line, Genre::Ligne)) throw Echec{ORVALIS_MISUSE, "not a live orvalis_line"};
    const RsRef v = Partage(var_salaries), vh = Partage(var_salaries_histo), h = Partage(salaries_histo);
    const bool ok =
        e.nouv ? e.nouv->Appel_Methode_Calcul_General(name, employee->record, *line->record, v, vh, h)
               : e.histo->Appel_Methode_Calcul_General(name, employee->record, *line->record, v, vh, h);
    if (!ok) throw Echec{ORVALIS_FAULT, std::string("the pay line \"") + name + "\" returned false"};
  });
}

// ---- Operations ---------------------------------------------------------------------------

int orvalis_call(orvalis_engine* engine, const char* operation, const char* args_json,
                 orvalis_employee* employee, orvalis_line* line, const char** result_json) {
  return Frontiere(engine, [&](orvalis_engine& e) {
    Requis(operation, "operation name");
    Requis(result_json, "output pointer");
    *result_json = nullptr;
    const Operation* op = nullptr;
    try {
      op = &TrouveOperation(operation, e.nouv ? TypeMoteur::Nouv : TypeMoteur::Histo, "");
    } catch (const ErreurCas& inconnue) {
      throw Echec{ORVALIS_NOTFOUND, inconnue.Message()};
    }
    const Json args = LitTexteJson(args_json ? args_json : "[]", "args");
    if (Nomme(args, "$salarie")) Requis(employee, "orvalis_employee for \"$salarie\"");
    if (Nomme(args, "$rubrique")) Requis(line, "orvalis_line for \"$rubrique\"");
    // A handle given is read below even when the arguments do not name it: it must be live.
    if (employee != nullptr && !LeRegistre().Vivant(employee, Genre::Salarie))
      throw Echec{ORVALIS_MISUSE, "not a live orvalis_employee"};
    if (line != nullptr && !LeRegistre().Vivant(line, Genre::Ligne))
      throw Echec{ORVALIS_MISUSE, "not a live orvalis_line"};
    AppelPrepare appel = op->prepare(args, "args");
    VarCalculSalarie sansSalarie;
    std::shared_ptr<SalarieCalculRubrique> ligne =
        line ? line->record : std::make_shared<SalarieCalculRubrique>();
    ContexteAppel contexte{*e.moteur, e.nouv.get(), e.histo.get(),
                           employee ? employee->record : sansSalarie, ligne};
    ResultatAppel r = appel(contexte);
    Json j = Json::object();
    j["result"] = std::move(r.resultat);
    j["out"] = std::move(r.sorties);
    e.resultat = EcritJson(j);
    while (!e.resultat.empty() && e.resultat.back() == '\n') e.resultat.pop_back();
    *result_json = e.resultat.c_str();
  });
}

int orvalis_operation_count(orvalis_engine* engine, int* out) {
  return Frontiere(engine, [&](orvalis_engine& e) {
    Requis(out, "output pointer");
    *out = static_cast<int>(Operations(e).size());
  });
}

int orvalis_operation_info(orvalis_engine* engine, int index, const char** name_out,
                           const char** signature_out) {
  return Frontiere(engine, [&](orvalis_engine& e) {
    Requis(name_out, "output pointer");
    const auto ops = Operations(e);
    if (index < 0 || static_cast<std::size_t>(index) >= ops.size())
      throw Echec{ORVALIS_RANGE, "no operation " + std::to_string(index) + " (" +
                                     std::to_string(ops.size()) + " operations)"};
    const Operation& op = *ops[static_cast<std::size_t>(index)];
    *name_out = op.nom.c_str();
    if (signature_out != nullptr) {
      e.texte = appel::Signature(op.nom, op.parametres);
      *signature_out = e.texte.c_str();
    }
  });
}

// ---- Records --------------------------------------------------------------------------------

int orvalis_employee_new(orvalis_employee** out) {
  return FrontiereLibre([&] {
    Requis(out, "output pointer");
    *out = nullptr;
    Nouveau(out, std::make_unique<orvalis_employee>());
  });
}
int orvalis_employee_free(orvalis_employee* employee) { return Libere(employee); }

int orvalis_line_new(orvalis_line** out) {
  return FrontiereLibre([&] {
    Requis(out, "output pointer");
    *out = nullptr;
    Nouveau(out, std::make_unique<orvalis_line>());
  });
}
int orvalis_line_free(orvalis_line* line) { return Libere(line); }

int orvalis_field_count(int record_kind, int* out) {
  return FrontiereLibre([&] {
    Requis(out, "output pointer");
    if (record_kind == ORVALIS_EMPLOYEE) *out = static_cast<int>(Champs<VarCalculSalarie>().size());
    else if (record_kind == ORVALIS_LINE) *out = static_cast<int>(Champs<SalarieCalculRubrique>().size());
    else throw Echec{ORVALIS_MISUSE, "no record kind " + std::to_string(record_kind)};
  });
}

int orvalis_field_info(int record_kind, int index, const char** name_out, int* type_out) {
  return FrontiereLibre([&] {
    Requis(name_out, "output pointer");
    auto info = [&](auto champs) {
      if (index < 0 || static_cast<std::size_t>(index) >= champs.size())
        throw Echec{ORVALIS_RANGE, "no field " + std::to_string(index)};
      const auto& c = champs[static_cast<std::size_t>(index)];
      *name_out = c.nom;
      if (type_out != nullptr) *type_out = static_cast<int>(c.type) + 1;
    };
    if (record_kind == ORVALIS_EMPLOYEE) info(Champs<VarCalculSalarie>());
    else if (record_kind == ORVALIS_LINE) info(Champs<SalarieCalculRubrique>());
    else throw Echec{ORVALIS_MISUSE, "no record kind " + std::to_string(record_kind)};
  });
}

// The ten accessors of a record kind; `R` is its record, `acc` how the handle reaches it.
#define ORVALIS_ACCESSEURS(prefixe, H, R, acc)                                                  \
  int prefixe##_set_int(H* h, const char* field, long long value) {                           \
    return Frontiere(h, [&](H& p) { EcritEntier<R>(acc(p), field, value); });                 \
  }                                                                                           \
  int prefixe##_get_int(H* h, const char* field, long long* out) {                            \
    return Frontiere(h, [&](H& p) {                                                           \
      Requis(out, "output pointer");                                                          \
      *out = LitEntier<R>(acc(p), field);                                                     \
    });                                                                                       \
  }                                                                                           \
  int prefixe##_set_double(H* h, const char* field, double value) {                           \
    return Frontiere(h, [&](H& p) {                                                           \
      Membre<R, double>(acc(p), field, TypeChamp::D, "a double") = value;                     \
    });                                                                                       \
  }                                                                                           \
  int prefixe##_get_double(H* h, const char* field, double* out) {                            \
    return Frontiere(h, [&](H& p) {                                                           \
      Requis(out, "output pointer");                                                          \
      *out = Membre<R, double>(acc(p), field, TypeChamp::D, "a double");                      \
    });                                                                                       \
  }                                                                                           \
  int prefixe##_set_text(H* h, const char* field, const char* value) {                        \
    return Frontiere(h, [&](H& p) {                                                           \
      Requis(value, "text");                                                                  \
      Membre<R, std::string>(acc(p), field, TypeChamp::S, "a text") = value;                  \
    });                                                                                       \
  }                                                                                           \
  int prefixe##_get_text(H* h, const char* field, const char** out) {                         \
    return Frontiere(h, [&](H& p) {                                                           \
      Requis(out, "output pointer");                                                          \
      p.texte = Membre<R, std::string>(acc(p), field, TypeChamp::S, "a text");                \
      *out = p.texte.c_str();                                                                 \
    });                                                                                       \
  }                                                                                           \
  int prefixe##_set_bool(H* h, const char* field, int value) {                                \
    return Frontiere(h, [&](H& p) {                                                           \
      Membre<R, bool>(acc(p), field, TypeChamp::B, "a boolean") = value != 0;                 \
    });                                                                                       \
  }                                                                                           \
  int prefixe##_get_bool(H* h, const char* field, int* out) {                                 \
    return Frontiere(h, [&](H& p) {                                                           \
      Requis(out, "output pointer");                                                          \
      *out = Membre<R, bool>(acc(p), field, TypeChamp::B, "a boolean") ? 1 : 0;               \
    });                                                                                       \
  }                                                                                           \
  int prefixe##_set_recordset(H* h, const char* field, orvalis_recordset* rs) {               \
    return Frontiere(h, [&](H& p) {                                                           \
      RsRef& champ = Membre<R, RsRef>(acc(p), field, TypeChamp::RS, "a recordset");           \
      champ = Partage(rs);                                                                    \
    });                                                                                       \
  }                                                                                           \
  int prefixe##_get_recordset(H* h, const char* field, orvalis_recordset** out) {             \
    return Frontiere(h, [&](H& p) {                                                           \
      Requis(out, "output pointer");                                                          \
      *out = nullptr;                                                                         \
      DonneRecordset(Membre<R, RsRef>(acc(p), field, TypeChamp::RS, "a recordset"), out);     \
    });                                                                                       \
  }

#define ORVALIS_RECORD_SALARIE(p) (p).record
#define ORVALIS_RECORD_LIGNE(p) (*(p).record)
ORVALIS_ACCESSEURS(orvalis_employee, orvalis_employee, VarCalculSalarie, ORVALIS_RECORD_SALARIE)
ORVALIS_ACCESSEURS(orvalis_line, orvalis_line, SalarieCalculRubrique, ORVALIS_RECORD_LIGNE)
#undef ORVALIS_ACCESSEURS

// ---- Recordsets -----------------------------------------------------------------------------

int orvalis_recordset_new(const char* const* columns, int ncolumns, orvalis_recordset** out) {
  return FrontiereLibre([&] {
    Requis(out, "output pointer");
    *out = nullptr;
    if (ncolumns < 0) throw Echec{ORVALIS_MISUSE, "a negative number of columns"};
    if (ncolumns > 0) Requis(columns, "column names");
    std::vector<std::string> noms;
    for (int i = 0; i < ncolumns; ++i) {
      Requis(columns[i], "column name");
      noms.emplace_back(columns[i]);
    }
    auto h = std::make_unique<orvalis_recordset>();
    try {
      h->rs = NouveauRecordset(noms);
    } catch (const Fault& f) {
      throw Echec{ORVALIS_MISUSE, f.what()};
    }
    Nouveau(out, std::move(h));
  });
}

int orvalis_recordset_free(orvalis_recordset* rs) { return Libere(rs); }

int orvalis_recordset_add_row(orvalis_recordset* rs) {
  return Frontiere(rs, [](orvalis_recordset& h) { h.rs->AddNew(); });
}


int orvalis_recordset_set_double(orvalis_recordset* rs, const char* column, double value) {
  return EcritUneCellule(rs, column, Value(value));
}
int orvalis_recordset_set_text(orvalis_recordset* rs, const char* column, const char* value) {
  if (value == nullptr) {
    tDernierEchec = "null text";
    return ORVALIS_MISUSE;
  }
  return EcritUneCellule(rs, column, Value(std::string(value)));
}
int orvalis_recordset_set_bool(orvalis_recordset* rs, const char* column, int value) {
  return EcritUneCellule(rs, column, Value(value != 0));
}
int orvalis_recordset_set_null(orvalis_recordset* rs, const char* column) {
  return EcritUneCellule(rs, column, Value::Null());
}

int orvalis_recordset_rewind(orvalis_recordset* rs) {
  return Frontiere(rs, [](orvalis_recordset& h) {
    if (h.rs->RecordCount() > 0) h.rs->MoveFirst();
  });
}

int orvalis_recordset_column_count(orvalis_recordset* rs, int* out) {
  return Frontiere(rs, [&](orvalis_recordset& h) {
    Requis(out, "output pointer");
    *out = static_cast<int>(h.rs->Columns().size());
  });
}

int orvalis_recordset_column_name(orvalis_recordset* rs, int column, const char** out) {
  return Frontiere(rs, [&](orvalis_recordset& h) {
    Requis(out, "output pointer");
    const auto cols = h.rs->Columns();
    if (column < 0 || static_cast<std::size_t>(column) >= cols.size())
      throw Echec{ORVALIS_RANGE, "no column " + std::to_string(column) + " (" +
                                     std::to_string(cols.size()) + " columns)"};
    h.texte = cols[static_cast<std::size_t>(column)];
    *out = h.texte.c_str();
  });
}

int orvalis_recordset_row_count(orvalis_recordset* rs, int* out) {
  return Frontiere(rs, [&](orvalis_recordset& h) {
    Requis(out, "output pointer");
    *out = static_cast<int>(h.rs->Rows().size());
  });
}

int orvalis_recordset_cell_type(orvalis_recordset* rs, int row, int column, int* out) {
  return Frontiere(rs, [&](orvalis_recordset& h) {
    Requis(out, "output pointer");
    std::vector<std::vector<Value>> lignes;
    const Value& v = Cellule(h, lignes, row, column);
    *out = v.EstNull() ? ORVALIS_T_NULL
           : v.EstNombre() ? ORVALIS_T_DOUBLE
           : v.EstBooleen() ? ORVALIS_T_BOOL
                            : ORVALIS_T_TEXT;
  });
}

int orvalis_recordset_get_double(orvalis_recordset* rs, int row, int column, double* out) {
  return Frontiere(rs, [&](orvalis_recordset& h) {
    Requis(out, "output pointer");
    std::vector<std::vector<Value>> lignes;
    const Value& v = Cellule(h, lignes, row, column);
    if (!v.EstNombre()) throw Echec{ORVALIS_TYPE, "the cell is not a number"};
    *out = v.Double();
  });
}

int orvalis_recordset_get_text(orvalis_recordset* rs, int row, int column, const char** out) {
  return Frontiere(rs, [&](orvalis_recordset& h) {
    Requis(out, "output pointer");
    std::vector<std::vector<Value>> lignes;
    h.texte = TexteCellule(Cellule(h, lignes, row, column));
    *out = h.texte.c_str();
  });
}

int orvalis_recordset_get_bool(orvalis_recordset* rs, int row, int column, int* out) {
  return Frontiere(rs, [&](orvalis_recordset& h) {
    Requis(out, "output pointer");
    std::vector<std::vector<Value>> lignes;
    const Value& v = Cellule(h, lignes, row, column);
    if (!v.EstBooleen()) throw Echec{ORVALIS_TYPE, "the cell is not a boolean"};
    *out = v.Booleen() ? 1 : 0;
  });
}

// ---- Case files -----------------------------------------------------------------------------

int orvalis_run_case(const char* case_json, char** output_json) {
  return FrontiereLibre([&] {
    Requis(output_json, "output pointer");
    *output_json = nullptr;
    Requis(case_json, "case text");
    std::ostringstream sortie, erreurs;
    if (LanceCas(case_json, "case", sortie, erreurs) != 0) {
      std::string e = erreurs.str();
      while (!e.empty() && e.back() == '\n') e.pop_back();
      throw Echec{ORVALIS_ERROR, e};
    }
    const std::string s = sortie.str();
    char* copie = static_cast<char*>(std::malloc(s.size() + 1));
    if (copie == nullptr) throw std::bad_alloc();
    std::memcpy(copie, s.c_str(), s.size() + 1);
    *output_json = copie;
  });
}

void orvalis_free_text(char* text) { std::free(text); }

}  // extern "C"
