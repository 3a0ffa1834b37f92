// The in-memory tabular source, its criteria answered from hashed indexes.
#include "frame/memory_recordset.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>
#include <utility>

#include "orvalis/fault.h"

namespace orvalis {

namespace {

char Minuscule(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

void InsereTrie(std::vector<std::uint32_t>& v, std::uint32_t row) {
  if (v.empty() || v.back() < row) {
    v.push_back(row);
    return;
  }
  const auto it = std::lower_bound(v.begin(), v.end(), row);
  if (it == v.end() || *it != row) v.insert(it, row);
}

void RetireTrie(std::vector<std::uint32_t>& v, std::uint32_t row) {
  const auto it = std::lower_bound(v.begin(), v.end(), row);
  if (it != v.end() && *it == row) v.erase(it);
}

std::vector<std::uint32_t> Union(const std::vector<std::uint32_t>& a,
                                 const std::vector<std::uint32_t>& b) {
  std::vector<std::uint32_t> r;
  r.reserve(a.size() + b.size());
  std::set_union(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(r));
  return r;
}

std::vector<std::uint32_t> Intersection(const std::vector<std::uint32_t>& a,
                                        const std::vector<std::uint32_t>& b) {
  std::vector<std::uint32_t> r;
  std::set_intersection(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(r));
  return r;
}

// The number a cell stands for under a bare number of a criterion, if any (booleans apart).
bool CleNombre(const Value& v, double& d) {
  if (v.EstNombre()) {
    d = v.Double();
  } else if (v.EstTexte()) {
    if (!critere::LitNombre(v.Chaine(), d)) return false;
  } else {
    return false;
  }
  if (std::isnan(d)) return false;
  if (d == 0) d = 0;  // -0 and 0 are one key
  return true;
}

// The text a cell stands for under a quoted text of a criterion, if any.
bool CleTexte(const Value& v, std::string& t) {
  if (v.EstNull()) return false;
  if (v.EstNombre() && !std::isfinite(v.Double())) return false;
  t = v.Texte();
  return true;
}

}  // namespace

// ---- Column names, whatever their case ------------------------------------------------

std::size_t MemoryRecordset::HashSansCasse::operator()(std::string_view s) const {
  std::size_t h = 14695981039346656037ull;
  for (char c : s) {
    h ^= static_cast<unsigned char>(Minuscule(c));
    h *= 1099511628211ull;
  }
  return h;
}

bool MemeNomDeColonne(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (Minuscule(a[i]) != Minuscule(b[i])) return false;
  return true;
}

bool MemoryRecordset::EgalSansCasse::operator()(std::string_view a, std::string_view b) const {
  return MemeNomDeColonne(a, b);
}

MemoryRecordset::MemoryRecordset(const std::vector<std::string>& columns) {
  colonnes_.reserve(columns.size());
  index_.reserve(columns.size());
  for (const auto& c : columns) AjouteColonne(c);
}

// A narrow table is searched by comparing its few names; the hashed names are built when
// the table grows past them.
constexpr std::size_t kEtroite = 8;

void MemoryRecordset::AjouteColonne(const std::string& column) {
  if (column.empty()) Faute("empty column name");
  if (ColonneSansCasse(column) != kAucune) Faute("column named twice: " + column);
  colonnes_.push_back(column);
  index_.emplace_back();
  for (auto& ligne : lignes_) ligne.emplace_back();
  if (colonnes_.size() > kEtroite) {
    if (parNom_.empty())
      for (std::size_t c = 0; c + 1 < colonnes_.size(); ++c) parNom_.emplace(colonnes_[c], c);
    parNom_.emplace(column, colonnes_.size() - 1);
  }
}

std::size_t MemoryRecordset::ColonneSansCasse(std::string_view column) const {
  if (colonnes_.size() <= kEtroite) {
    for (std::size_t c = 0; c < colonnes_.size(); ++c)
      if (EgalSansCasse{}(colonnes_[c], column)) return c;
    return kAucune;
  }
  const auto it = parNom_.find(column);
  return it == parNom_.end() ? kAucune : it->second;
}

std::size_t MemoryRecordset::Colonne(std::string_view column, const char* usage) const {
  // The engine names its columns as the tables spell them: on a narrow table a plain
  // comparison finds them before any other. Names are unique whatever their case, so an
  // exact match is the one match.
  if (colonnes_.size() <= kEtroite) {
    for (std::size_t c = 0; c < colonnes_.size(); ++c) {
      const std::string& nom = colonnes_[c];
      // Length and first letter set most names apart before any comparison of the rest.
      if (nom.size() == column.size() && nom[0] == column[0] &&
          std::memcmp(nom.data(), column.data(), nom.size()) == 0)
        return c;
    }
  }
  const std::size_t c = ColonneSansCasse(column);
  if (c == kAucune) Faute(std::string(usage) + std::string(column));
  return c;
}

// ---- Position ---------------------------------------------------------------------------

std::size_t MemoryRecordset::Taille() const { return filtre_ ? vue_.size() : lignes_.size(); }

long MemoryRecordset::RecordCount() { return static_cast<long>(Taille()); }

void MemoryRecordset::MoveFirst() {
  if (Taille() == 0) Faute("MoveFirst: no current record");
  pos_ = 0;
}

void MemoryRecordset::MoveNext() {
  if (pos_ >= Taille()) Faute("MoveNext: no current record");
  ++pos_;
}

bool MemoryRecordset::Eof() { return pos_ >= Taille(); }

std::size_t MemoryRecordset::LigneCourante(std::string_view column) const {
  if (pos_ >= Taille()) Faute("no current record: " + std::string(column));
  return filtre_ ? vue_[pos_] : pos_;
}

// ---- Fields -----------------------------------------------------------------------------

Value MemoryRecordset::Field(const std::string& column) {
  const std::size_t col = Colonne(column, "missing column: ");
  return lignes_[LigneCourante(column)][col];
}

void MemoryRecordset::SetField(const std::string& column, const Value& v) {
  const std::size_t col = Colonne(column, "missing column: ");
  const auto row = static_cast<std::uint32_t>(LigneCourante(column));
  Index& ix = index_[col];
  Indexe(ix, col, row, false);
  lignes_[row][col] = v;
  Indexe(ix, col, row, true);
}

void MemoryRecordset::AddNew() {
  lignes_.emplace_back(colonnes_.size());
  // A null row enters no index.
  if (filtre_) {
    vue_.push_back(static_cast<std::uint32_t>(lignes_.size() - 1));
    pos_ = vue_.size() - 1;
  } else {
    pos_ = lignes_.size() - 1;
  }
}

std::vector<std::string> MemoryRecordset::Columns() const { return colonnes_; }

std::vector<std::vector<Value>> MemoryRecordset::Rows() const { return lignes_; }

// ---- Filter -----------------------------------------------------------------------------

void MemoryRecordset::Filter(const std::string& criterion) {
  if (criterion.find_first_not_of(" \t\r\n") == std::string::npos) {
    ClearFilter();  // an empty criterion is no filter
    return;
  }
  const critere::Noeud& n = critere::CritereLu(criterion);
  // Worked out aside: a criterion that faults leaves the present filter as it stands.
  Evalue(n, tampon_);
  Remplace(tampon_);
}

void MemoryRecordset::FiltreTexte(std::string_view column, std::string_view texte) {
  ChercheTexte(Colonne(column, "filter on a missing column: "), texte, tampon_);
  Remplace(tampon_);
}

void MemoryRecordset::FiltreNombre(std::string_view column, double nombre) {
  ChercheNombre(Colonne(column, "filter on a missing column: "), nombre, tampon_);
  Remplace(tampon_);
}

void MemoryRecordset::FiltreTextes(std::string_view column, const std::vector<std::string>& textes) {
  const Index& ix = IndexTexte(Colonne(column, "filter on a missing column: "));
  tampon_.clear();
  const auto prend = [this](const Lignes& l) { tampon_.insert(tampon_.end(), l.begin(), l.end()); };
  if (ix.parTexte.size() < textes.size()) {
    // Few texts in the column (a handful of situations against a long list of codes): each
    // is looked for among the texts asked.
    for (const auto& [texte, lignes] : ix.parTexte)
      if (std::find(textes.begin(), textes.end(), texte) != textes.end()) prend(lignes);
  } else {
    for (const std::string& t : textes) {
      const auto it = ix.parTexte.find(std::string_view(t));
      if (it != ix.parTexte.end()) prend(it->second);
    }
  }
  // The rows in their order, each once, as the union of the equalities gives them.
  std::sort(tampon_.begin(), tampon_.end());
  tampon_.erase(std::unique(tampon_.begin(), tampon_.end()), tampon_.end());
  Remplace(tampon_);
}

void MemoryRecordset::Remplace(Lignes& nouvelle) {
  vue_.swap(nouvelle);
  filtre_ = true;
  pos_ = 0;
}

void MemoryRecordset::ClearFilter() {
  filtre_ = false;
  vue_.clear();
  pos_ = 0;
}

void MemoryRecordset::Evalue(const critere::Noeud& n, Lignes& out) {
  switch (n.type) {
    case critere::Noeud::Type::kEgalite:
      Cherche(n.egalite, out);
      return;
    case critere::Noeud::Type::kEt:
    case critere::Noeud::Type::kOu: {
      const bool et = n.type == critere::Noeud::Type::kEt;
      Evalue(n.enfants.front(), out);
      Lignes autre;
      for (std::size_t i = 1; i < n.enfants.size(); ++i) {
        // Every branch is worked out, so that a missing column is a fault wherever it stands.
        Evalue(n.enfants[i], autre);
        out = et ? Intersection(out, autre) : Union(out, autre);
      }
      return;
    }
  }
}

void MemoryRecordset::Cherche(const critere::Egalite& e, Lignes& out) {
  const std::size_t col = Colonne(e.colonne, "filter on a missing column: ");
  if (e.texte) {
    ChercheTexte(col, e.sTexte, out);
  } else {
    ChercheNombre(col, e.dNombre, out);
  }
}

void MemoryRecordset::ChercheTexte(std::size_t col, std::string_view texte, Lignes& out) {
  out.clear();
  const Index& ix = IndexTexte(col);
  const auto it = ix.parTexte.find(texte);
  if (it != ix.parTexte.end()) out.assign(it->second.begin(), it->second.end());
}

void MemoryRecordset::ChercheNombre(std::size_t col, double nombre, Lignes& out) {
  out.clear();
  const Index& ix = IndexNombre(col);
  double d = nombre;
  if (d == 0) d = 0;
  const auto it = ix.parNombre.find(d);
  const Lignes& booleens = (d != 0) ? ix.vrais : ix.faux;
  if (it == ix.parNombre.end()) {
    out.assign(booleens.begin(), booleens.end());
  } else if (booleens.empty()) {
    out.assign(it->second.begin(), it->second.end());
  } else {
    std::set_union(it->second.begin(), it->second.end(), booleens.begin(), booleens.end(),
                   std::back_inserter(out));
  }
}

// ---- Indexes ----------------------------------------------------------------------------

MemoryRecordset::Index& MemoryRecordset::IndexTexte(std::size_t col) {
  Index& ix = index_[col];
  if (!ix.texteConstruit) {
    ix.texteConstruit = true;
    std::string t;
    for (std::size_t r = 0; r < lignes_.size(); ++r) {
      if (CleTexte(lignes_[r][col], t)) ix.parTexte[t].push_back(static_cast<std::uint32_t>(r));
    }
  }
  return ix;
}

MemoryRecordset::Index& MemoryRecordset::IndexNombre(std::size_t col) {
  Index& ix = index_[col];
  if (!ix.nombreConstruit) {
    ix.nombreConstruit = true;
    for (std::size_t r = 0; r < lignes_.size(); ++r) {
      const Value& v = lignes_[r][col];
      const auto row = static_cast<std::uint32_t>(r);
      double d = 0;
      if (v.EstBooleen()) {
        (v.Booleen() ? ix.vrais : ix.faux).push_back(row);
      } else if (CleNombre(v, d)) {
        ix.parNombre[d].push_back(row);
      }
    }
  }
  return ix;
}

// Takes the row's cell out of the built indexes of its column, or puts it back in.
void MemoryRecordset::Indexe(Index& ix, std::size_t col, std::uint32_t row, bool ajoute) {
  const Value& v = lignes_[row][col];
  if (v.EstNull()) return;
  std::string t;
  if (ix.texteConstruit && CleTexte(v, t)) {
    if (ajoute) {
      InsereTrie(ix.parTexte[t], row);
    } else {
      const auto it = ix.parTexte.find(t);
      if (it != ix.parTexte.end()) {
        RetireTrie(it->second, row);
        if (it->second.empty()) ix.parTexte.erase(it);
      }
    }
  }
  if (ix.nombreConstruit) {
    double d = 0;
    if (v.EstBooleen()) {
      Lignes& l = v.Booleen() ? ix.vrais : ix.faux;
      if (ajoute) InsereTrie(l, row); else RetireTrie(l, row);
    } else if (CleNombre(v, d)) {
      if (ajoute) {
        InsereTrie(ix.parNombre[d], row);
      } else {
        const auto it = ix.parNombre.find(d);
        if (it != ix.parNombre.end()) {
          RetireTrie(it->second, row);
          if (it->second.empty()) ix.parNombre.erase(it);
        }
      }
    }
  }
}

// ---- The contract's free functions ------------------------------------------------------

void Recordset::AjouteColonne(const std::string& column) {
  Faute("this source can't take a new column: " + column);
}

RsRef NouveauRecordset(const std::vector<std::string>& columns) {
  return std::make_shared<MemoryRecordset>(columns);
}

Recordset& Source(const RsRef& rs, const char* name) {
  if (!rs) Faute(std::string("missing source: ") + name);
  return *rs;
}

}  // namespace orvalis
