// The scanning source: what a filter costs when nothing is indexed.
#include "benchmarks/scan_recordset.h"

#include <cmath>
#include <cstddef>

#include "frame/filter.h"
#include "orvalis/fault.h"

namespace orvalis::bench {

namespace {

bool MemeNom(const std::string& a, const std::string& b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    auto bas = [](char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; };
    if (bas(a[i]) != bas(b[i])) return false;
  }
  return true;
}

// The matching rules of the in-memory source, cell by cell.
bool Passe(const critere::Egalite& e, const Value& v) {
  if (v.EstNull()) return false;
  if (e.texte) {
    if (v.EstNombre() && !std::isfinite(v.Double())) return false;
    return v.Texte() == e.sTexte;
  }
  if (v.EstBooleen()) return v.Booleen() == (e.dNombre != 0);
  double d = 0;
  if (v.EstNombre()) {
    d = v.Double();
  } else if (!critere::LitNombre(v.Chaine(), d)) {
    return false;
  }
  return d == e.dNombre;
}

class ScanRecordset final : public Recordset {
 public:
  explicit ScanRecordset(const std::vector<std::string>& columns) : colonnes_(columns) {}

  long RecordCount() override { return static_cast<long>(Taille()); }
  void MoveFirst() override {
    if (Taille() == 0) Faute("MoveFirst: no current record");
    pos_ = 0;
  }
  void MoveNext() override {
    if (pos_ >= Taille()) Faute("MoveNext: no current record");
    ++pos_;
  }
  bool Eof() override { return pos_ >= Taille(); }

  void Filter(const std::string& criterion) override {
    if (criterion.find_first_not_of(" \t\r\n") == std::string::npos) return ClearFilter();
    const critere::Noeud n = critere::LireCritere(criterion);
    std::vector<std::size_t> vue;
    for (std::size_t r = 0; r < lignes_.size(); ++r)
      if (Evalue(n, lignes_[r])) vue.push_back(r);
    vue_ = std::move(vue);
    filtre_ = true;
    pos_ = 0;
  }
  void ClearFilter() override {
    filtre_ = false;
    vue_.clear();
    pos_ = 0;
  }
  Value Field(const std::string& column) override { return Cellule(column); }
  void SetField(const std::string& column, const Value& v) override { Cellule(column) = v; }
  void AddNew() override {
    lignes_.emplace_back(colonnes_.size());
    if (filtre_) vue_.push_back(lignes_.size() - 1);
    pos_ = Taille() - 1;
  }
  std::vector<std::string> Columns() const override { return colonnes_; }
  std::vector<std::vector<Value>> Rows() const override { return lignes_; }

 private:
  std::size_t Taille() const { return filtre_ ? vue_.size() : lignes_.size(); }

  std::size_t Colonne(const std::string& column) const {
    for (std::size_t c = 0; c < colonnes_.size(); ++c)
      if (MemeNom(colonnes_[c], column)) return c;
    Faute("missing column: " + column);
  }

  Value& Cellule(const std::string& column) {
    const std::size_t c = Colonne(column);
    if (pos_ >= Taille()) Faute("no current record: " + column);
    return lignes_[filtre_ ? vue_[pos_] : pos_][c];
  }

  bool Evalue(const critere::Noeud& n, const std::vector<Value>& ligne) const {
    switch (n.type) {
      case critere::Noeud::Type::kEgalite:
        return Passe(n.egalite, ligne[Colonne(n.egalite.colonne)]);
      case critere::Noeud::Type::kEt:
        for (const auto& e : n.enfants)
          if (!Evalue(e, ligne)) return false;
        return true;
      case critere::Noeud::Type::kOu:
        for (const auto& e : n.enfants)
          if (Evalue(e, ligne)) return true;
        return false;
    }
    return false;
  }

  std::vector<std::string> colonnes_;
  std::vector<std::vector<Value>> lignes_;
  std::vector<std::size_t> vue_;
  bool filtre_ = false;
  std::size_t pos_ = 0;
};

}  // namespace

RsRef NouveauRecordsetBalayage(const std::vector<std::string>& columns) {
  return std::make_shared<ScanRecordset>(columns);
}

}  // namespace orvalis::bench
