#include "paie/postgres.h"

#include <libpq-fe.h>

#include <cctype>
#include <cstdlib>
#include <memory>
#include <optional>
#include <regex>
#include <unordered_map>

#include <fmt/format.h>

namespace orvalis::paie {

namespace {

constexpr const char* kEtoiles = "********";

// PostgreSQL's type numbers (pg_type.oid) of the columns the store reads.
constexpr Oid kBool = 16, kInt8 = 20, kInt2 = 21, kInt4 = 23, kOid = 26, kFloat4 = 700,
              kFloat8 = 701, kNumeric = 1700;

struct LibereResultat {
  void operator()(PGresult* r) const { PQclear(r); }
};
using Resultat = std::unique_ptr<PGresult, LibereResultat>;

// A message of libpq or the server on one line: its lines joined by a space, its hints'
// tabs and the line end dropped.
std::string EnUneLigne(const std::string& message) {
  std::string s;
  for (std::size_t i = 0; i < message.size(); ++i) {
    if (message[i] != '\n') {
      s += message[i];
      continue;
    }
    while (i + 1 < message.size() && (message[i + 1] == '\t' || message[i + 1] == ' ')) ++i;
    if (!s.empty() && s.back() != ' ') s += ' ';
  }
  while (!s.empty() && s.back() == ' ') s.pop_back();
  return s;
}

bool EstLettre(char c) { return std::isalpha(static_cast<unsigned char>(c)) || c == '_'; }
bool EstMot(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

// "%3B" as ";".
std::string DecodeUri(const std::string& s) {
  std::string r;
  for (std::size_t i = 0; i < s.size(); ++i) {
    if (s[i] == '%' && i + 2 < s.size() && std::isxdigit(static_cast<unsigned char>(s[i + 1])) &&
        std::isxdigit(static_cast<unsigned char>(s[i + 2]))) {
      r += static_cast<char>(std::stoi(s.substr(i + 1, 2), nullptr, 16));
      i += 2;
    } else {
      r += s[i];
    }
  }
  return r;
}

using Parametres = std::vector<std::optional<std::string>>;

// Runs `sql` with its parameters bound, text in and out; a failure is thrown.
Resultat ExecuteAvec(BasePg& base, const std::string& sql, const Parametres& p) {
  std::vector<const char*> valeurs;
  valeurs.reserve(p.size());
  for (const auto& v : p) valeurs.push_back(v ? v->c_str() : nullptr);
  Resultat r(PQexecParams(base.Poignee(), sql.c_str(), static_cast<int>(p.size()), nullptr,
                          valeurs.data(), nullptr, nullptr, 0));
  const ExecStatusType s = r ? PQresultStatus(r.get()) : PGRES_FATAL_ERROR;
  if (s != PGRES_COMMAND_OK && s != PGRES_TUPLES_OK) base.Echec("SQL", r.get());
  return r;
}

class CurseurPg : public Curseur {
 public:
  CurseurPg(BasePg& base, std::string sql) : base_(base), sql_(std::move(sql)) {}

  void Lie(int i, double v) override { Place(i) = fmt::format("{}", v); }
  void Lie(int i, long long v) override { Place(i) = std::to_string(v); }
  void Lie(int i, const std::string& v) override { Place(i) = v; }
  void LieNull(int i) override { Place(i).reset(); }
  bool Pas() override {
    if (!r_) {
      r_ = ExecuteAvec(base_, sql_, p_);
      ligne_ = -1;
    }
    return ++ligne_ < PQntuples(r_.get());
  }
  void Rearme() override {
    r_.reset();
    p_.clear();
  }
  int Colonnes() const override { return r_ ? PQnfields(r_.get()) : 0; }
  std::string NomColonne(int i) const override { return PQfname(r_.get(), i); }
  TypeCellule Type(int i) const override {
    if (PQgetisnull(r_.get(), ligne_, i)) return TypeCellule::Null;
    switch (PQftype(r_.get(), i)) {
      case kBool: case kInt2: case kInt4: case kInt8: case kOid: return TypeCellule::Entier;
      case kFloat4: case kFloat8: case kNumeric: return TypeCellule::Reel;
      default: return TypeCellule::Texte;
    }
  }
  long long Entier(int i) const override {
    const char* v = PQgetvalue(r_.get(), ligne_, i);
    if (PQftype(r_.get(), i) == kBool) return v[0] == 't' ? 1 : 0;
    return std::strtoll(v, nullptr, 10);
  }
  double Reel(int i) const override {
    const char* v = PQgetvalue(r_.get(), ligne_, i);
    if (PQftype(r_.get(), i) == kBool) return v[0] == 't' ? 1 : 0;
    return std::strtod(v, nullptr);
  }
  std::string Texte(int i) const override {
    return std::string(PQgetvalue(r_.get(), ligne_, i),
                       static_cast<std::size_t>(PQgetlength(r_.get(), ligne_, i)));
  }

 private:
  std::optional<std::string>& Place(int i) {
    if (static_cast<std::size_t>(i) > p_.size()) p_.resize(static_cast<std::size_t>(i));
    return p_[static_cast<std::size_t>(i - 1)];
  }

  BasePg& base_;
  std::string sql_;
  Parametres p_;
  Resultat r_;
  int ligne_ = -1;
};

// Rows gathered and sent a group at a time, one array a column:
//   INSERT INTO t (a, b) SELECT * FROM unnest($1::integer[], $2::text[])
// one statement and one round trip for thousands of rows, every value still a bound
// parameter (an array's text, which the server reads as data, never as SQL).
class InsertionPg final : public Curseur {
 public:
  InsertionPg(BasePg& base, const std::string& table, const std::vector<std::string>& colonnes)
      : base_(base), n_(colonnes.size()), ligne_(colonnes.size()), tableaux_(colonnes.size()) {
    std::unordered_map<std::string, std::string> types;
    {
      Requete r = base.Prepare(
          "SELECT a.attname, format_type(a.atttypid, a.atttypmod) FROM pg_attribute a "
          "JOIN pg_class k ON k.oid = a.attrelid WHERE k.relname = ? "
          "AND k.relnamespace = current_schema()::regnamespace AND a.attnum > 0 AND NOT a.attisdropped");
      r.Lie(1, table);
      while (r.Pas()) types[r.Texte(0)] = r.Texte(1);
    }
    std::string noms, tableaux;
    for (std::size_t i = 0; i < n_; ++i) {
      auto t = types.find(colonnes[i]);
      if (t == types.end())
        throw ErreurMagasin(fmt::format("table '{}' has no column '{}'", table, colonnes[i]));
      noms += fmt::format("{}\"{}\"", i ? ", " : "", colonnes[i]);
      tableaux += fmt::format("{}${}::{}[]", i ? ", " : "", i + 1, t->second);
    }
    sql_ = fmt::format("INSERT INTO {} ({}) SELECT * FROM unnest({})", table, noms, tableaux);
  }

  void Lie(int i, double v) override { Place(i) = fmt::format("{}", v); }
  void Lie(int i, long long v) override { Place(i) = std::to_string(v); }
  void Lie(int i, const std::string& v) override { Place(i) = v; }
  void LieNull(int i) override { Place(i).reset(); }
  bool Pas() override {
    for (std::size_t c = 0; c < n_; ++c) {
      std::string& t = tableaux_[c];
      t += lignes_ ? ',' : '{';
      if (!ligne_[c]) {
        t += "NULL";
        continue;
      }
      t += '"';
      for (char x : *ligne_[c]) {
        if (x == '"' || x == '\\') t += '\\';
        t += x;
      }
      t += '"';
    }
    if (++lignes_ >= kParGroupe) Termine();
    return false;
  }
  void Rearme() override { ligne_.assign(n_, std::nullopt); }
  void Termine() override {
    if (lignes_ == 0) return;
    Parametres p;
    for (auto& t : tableaux_) {
      p.emplace_back(std::move(t) + '}');
      t.clear();
    }
    lignes_ = 0;
    ExecuteAvec(base_, sql_, p);
  }
  int Colonnes() const override { return 0; }
  std::string NomColonne(int) const override { return {}; }
  TypeCellule Type(int) const override { return TypeCellule::Null; }
  long long Entier(int) const override { return 0; }
  double Reel(int) const override { return 0; }
  std::string Texte(int) const override { return {}; }

 private:
  static constexpr std::size_t kParGroupe = 20000;

  std::optional<std::string>& Place(int i) {
    if (i < 1 || static_cast<std::size_t>(i) > n_) throw ErreurMagasin("bind: no parameter " + std::to_string(i));
    return ligne_[static_cast<std::size_t>(i - 1)];
  }

  BasePg& base_;
  std::size_t n_;
  std::string sql_;
  Parametres ligne_;
  std::vector<std::string> tableaux_;
  std::size_t lignes_ = 0;
};

}  // namespace

bool EstAdressePostgres(const std::string& m) {
  // A SQLite URI ("file:c.db?mode=ro") holds an '=' too.
  if (m.rfind("file:", 0) == 0) return false;
  return m.rfind("postgresql://", 0) == 0 || m.rfind("postgres://", 0) == 0 ||
         m.find('=') != std::string::npos;
}

std::string SansMotDePasse(const std::string& texte, const std::string& adresse) {
  std::vector<std::string> secrets;
  char* erreur = nullptr;
  if (PQconninfoOption* o = PQconninfoParse(adresse.c_str(), &erreur)) {
    for (PQconninfoOption* x = o; x->keyword; ++x)
      if (std::string(x->keyword) == "password" && x->val && *x->val) secrets.emplace_back(x->val);
    PQconninfoFree(o);
  }
  PQfreemem(erreur);
  if (const char* e = std::getenv("PGPASSWORD"); e && *e) secrets.emplace_back(e);
  // A URI libpq cannot read still shows its password: as written and decoded.
  static const std::regex motDansUri(R"((?:postgres|postgresql)://[^:/@\s]*:([^@\s]+)@)");
  if (std::smatch m; std::regex_search(adresse, m, motDansUri)) {
    secrets.push_back(m[1].str());
    secrets.push_back(DecodeUri(m[1].str()));
  }
  std::string s = texte;
  for (const auto& secret : secrets)
    if (!secret.empty())
      for (std::size_t p = s.find(secret); p != std::string::npos; p = s.find(secret, p + 1))
      s.replace(p, secret.size(), kEtoiles);
  // A URI's "user:password@" and a connection string's "password=...", even malformed.
  static const std::regex uri(R"(((?:postgres|postgresql)://[^:/@\s]*):[^@\s]*@)");
  static const std::regex motCle(R"(password\s*=\s*('(?:[^'\\]|\\.)*'|[^\s&]+))", std::regex::icase);
  s = std::regex_replace(s, uri, std::string("$1:") + kEtoiles + "@");
  s = std::regex_replace(s, motCle, std::string("password=") + kEtoiles);
  return s;
}

std::string SqlPourPostgres(const std::string& sql) {
  std::string s;
  s.reserve(sql.size() + 16);
  int suivant = 0;
  for (std::size_t i = 0; i < sql.size();) {
    const char c = sql[i];
    if (c == '\'' || c == '"') {  // a literal or a quoted name: as written
      const std::size_t fin = sql.find(c, i + 1);
      const std::size_t j = fin == std::string::npos ? sql.size() : fin + 1;
      s.append(sql, i, j - i);
      i = j;
    } else if (c == '-' && i + 1 < sql.size() && sql[i + 1] == '-') {
      const std::size_t fin = sql.find('\n', i);
      const std::size_t j = fin == std::string::npos ? sql.size() : fin;
      s.append(sql, i, j - i);
      i = j;
    } else if (c == '?') {
      std::size_t j = i + 1;
      while (j < sql.size() && std::isdigit(static_cast<unsigned char>(sql[j]))) ++j;
      const int n = j > i + 1 ? std::atoi(sql.c_str() + i + 1) : ++suivant;
      s += '$' + std::to_string(n);
      i = j;
    } else if (EstLettre(c)) {
      std::size_t j = i;
      bool haut = false, bas = false;
      for (; j < sql.size() && EstMot(sql[j]); ++j) {
        haut |= std::isupper(static_cast<unsigned char>(sql[j])) != 0;
        bas |= std::islower(static_cast<unsigned char>(sql[j])) != 0;
      }
      // Keywords are written in capitals, our lower-case names fold to themselves.
      if (haut && bas) s += '"' + sql.substr(i, j - i) + '"';
      else s.append(sql, i, j - i);
      i = j;
    } else if (std::isdigit(static_cast<unsigned char>(c))) {
      std::size_t j = i;
      while (j < sql.size() && EstMot(sql[j])) ++j;
      s.append(sql, i, j - i);
      i = j;
    } else {
      s += c;
      ++i;
    }
  }
  return s;
}

BasePg::BasePg(const std::string& adresse, const std::string& application)
    : adresse_(adresse), affichee_(SansMotDePasse(adresse, adresse)) {
  const char* mots[] = {"dbname", "application_name", nullptr};
  const char* valeurs[] = {adresse.c_str(), application.c_str(), nullptr};
  conn_ = PQconnectdbParams(mots, valeurs, 1);
  if (conn_ == nullptr) throw ErreurConnexion("cannot connect to PostgreSQL: out of memory");
  if (PQstatus(conn_) != CONNECTION_OK) {
    const std::string m = EnUneLigne(PQerrorMessage(conn_));
    PQfinish(conn_);
    conn_ = nullptr;
    const std::string ou = affichee_.empty() ? "PostgreSQL (from the environment)" : affichee_;
    throw ErreurConnexion(SansMotDePasse("cannot connect to " + ou + ": " + m, adresse_));
  }
  // Notices (NOTICE: relation already exists, ...) stay off standard error.
  PQsetNoticeProcessor(conn_, [](void*, const char*) {}, nullptr);
  Execute("SET client_encoding = 'UTF8'");
}

BasePg::~BasePg() { PQfinish(conn_); }

void BasePg::Echec(const std::string& quoi, const void* resultat) {
  const auto* r = static_cast<const PGresult*>(resultat);
  std::string m;
  if (r != nullptr) {
    const char* primaire = PQresultErrorField(r, PG_DIAG_MESSAGE_PRIMARY);
    m = primaire ? primaire : PQresultErrorMessage(r);
  }
  if (m.empty()) m = PQerrorMessage(conn_);
  m = SansMotDePasse(quoi + ": " + EnUneLigne(m), adresse_);
  if (PQstatus(conn_) != CONNECTION_OK) throw ErreurConnexion(m);
  const char* etat = r ? PQresultErrorField(r, PG_DIAG_SQLSTATE) : nullptr;
  // No SQLSTATE: libpq's own failure (the server closed the connection, no result at all).
  // Class 08: the connection failed; 57P: the server is going down or ended this session.
  if (etat == nullptr || std::string(etat).rfind("08", 0) == 0 || std::string(etat).rfind("57P", 0) == 0)
    throw ErreurConnexion(m);
  throw ErreurMagasin(m);
}

void BasePg::Execute(const std::string& sql) {
  Resultat r(PQexec(conn_, SqlPourPostgres(sql).c_str()));
  const ExecStatusType s = r ? PQresultStatus(r.get()) : PGRES_FATAL_ERROR;
  if (s != PGRES_COMMAND_OK && s != PGRES_TUPLES_OK) Echec("SQL", r.get());
}

Requete BasePg::Prepare(const std::string& sql) {
  return Requete(std::make_unique<CurseurPg>(*this, SqlPourPostgres(sql)));
}

Requete BasePg::PrepareInsertion(const std::string& table, const std::vector<std::string>& colonnes) {
  return Requete(std::make_unique<InsertionPg>(*this, table, colonnes));
}

bool BasePg::TableExiste(const std::string& nom) {
  Requete r = Prepare(
      "SELECT 1 FROM pg_tables WHERE schemaname = current_schema() AND tablename = ?");
  r.Lie(1, nom);
  return r.Pas();
}

std::vector<std::string> BasePg::ColonnesDe(const std::string& table) {
  std::vector<std::string> c;
  Requete r = Prepare(
      "SELECT a.attname FROM pg_attribute a JOIN pg_class k ON k.oid = a.attrelid "
      "WHERE k.relname = ? AND k.relnamespace = current_schema()::regnamespace "
      "AND a.attnum > 0 AND NOT a.attisdropped ORDER BY a.attnum");
  r.Lie(1, table);
  while (r.Pas()) c.push_back(r.Texte(0));
  return c;
}

void BasePg::Annule() noexcept {
  if (conn_ && PQstatus(conn_) == CONNECTION_OK) PQclear(PQexec(conn_, "ROLLBACK"));
}

int BasePg::PidServeur() const { return PQbackendPID(conn_); }

}  // namespace orvalis::paie
