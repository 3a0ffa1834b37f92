// The in-memory tabular source: the hosts' reference tables and the engine's detail tables.
//
// Rows are kept in the order they were added. A filter is a snapshot: setting it picks the
// rows that pass at that moment, in their order, and moves to the first of them. Equalities
// are answered from hashed indexes of the compared columns (built on first use, kept up to
// date by AddNew and SetField), so a lookup by code costs the same on ten rows or on ten
// thousand.
//
// Matching of a criterion against a cell:
// - a null cell never matches;
// - 'text' against a text cell: equal texts, case and accents included;
//   against a number: the text of the number ('5' finds 5); against a boolean: "True"/"False";
// - a bare number against a number: equal values; against a text: the text read as a number
//   (Mois = 202402 finds '202402'); against a boolean: true for any number but 0.
//
// A row added with AddNew while a filter is set joins the filtered rows (at their end) and
// stays among them until the filter is set again or cleared, whether it passes or not: the
// host that adds a row under a filter keeps working on it. Likewise a row changed by
// SetField keeps its place until the filter is set again.
#ifndef ORVALIS_FRAME_MEMORY_RECORDSET_H_
#define ORVALIS_FRAME_MEMORY_RECORDSET_H_

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "frame/filter.h"
#include "orvalis/Recordset.h"

namespace orvalis {

class MemoryRecordset final : public Recordset {
 public:
  // A column named twice (whatever the case) is a Fault.
  explicit MemoryRecordset(const std::vector<std::string>& columns);

  long RecordCount() override;
  void MoveFirst() override;
  void MoveNext() override;
  bool Eof() override;
  void Filter(const std::string& criterion) override;
  void ClearFilter() override;
  Value Field(const std::string& column) override;
  void SetField(const std::string& column, const Value& v) override;
  void AddNew() override;
  void AjouteColonne(const std::string& column) override;
  std::vector<std::string> Columns() const override;
  std::vector<std::vector<Value>> Rows() const override;

  // The filters "column = 'texte'" and "column = nombre" set straight from the index, with
  // no criterion text: the same rows, position and faults as Filter with that criterion.
  void FiltreTexte(std::string_view column, std::string_view texte);
  void FiltreNombre(std::string_view column, double nombre);
  // The filter "column = 'a' Or column = 'b' ..." likewise, for one text or more.
  void FiltreTextes(std::string_view column, const std::vector<std::string>& textes);

 private:
  using Lignes = std::vector<std::uint32_t>;  // row numbers, ascending

  struct HashSansCasse {
    using is_transparent = void;
    std::size_t operator()(std::string_view s) const;
  };
  struct EgalSansCasse {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
  };

  // Texts hashed as they stand, looked up from a view without a copy.
  struct HashTexte {
    using is_transparent = void;
    std::size_t operator()(std::string_view s) const { return std::hash<std::string_view>{}(s); }
  };

  // Numbers hashed from their bits (0 and -0 are made one key before): cheaper than the
  // library's hash of a double, which hashes its bytes.
  struct HashNombre {
    std::size_t operator()(double d) const {
      std::uint64_t b = 0;
      std::memcpy(&b, &d, sizeof b);
      b ^= b >> 33;
      b *= 0xff51afd7ed558ccdull;
      b ^= b >> 33;
      return static_cast<std::size_t>(b);
    }
  };

  // The indexes of one column, each built on its first use.
  struct Index {
    bool texteConstruit = false;
    bool nombreConstruit = false;
    std::unordered_map<std::string, Lignes, HashTexte, std::equal_to<>> parTexte;
    std::unordered_map<double, Lignes, HashNombre> parNombre;  // numbers and numeric texts
    Lignes vrais, faux;                            // booleans, for bare numbers
  };

  static constexpr std::size_t kAucune = static_cast<std::size_t>(-1);
  std::size_t Colonne(std::string_view column, const char* usage) const;
  std::size_t ColonneSansCasse(std::string_view column) const;  // kAucune when absent
  std::size_t LigneCourante(std::string_view column) const;
  std::size_t Taille() const;  // rows under the present filter

  void Evalue(const critere::Noeud& n, Lignes& out);
  void Cherche(const critere::Egalite& e, Lignes& out);
  void ChercheTexte(std::size_t col, std::string_view texte, Lignes& out);
  void ChercheNombre(std::size_t col, double nombre, Lignes& out);
  void Remplace(Lignes& nouvelle);  // makes the rows worked out aside the filtered rows
  Index& IndexTexte(std::size_t col);
  Index& IndexNombre(std::size_t col);
  void Indexe(Index& ix, std::size_t col, std::uint32_t row, bool ajoute);

  std::vector<std::string> colonnes_;
  std::unordered_map<std::string, std::size_t, HashSansCasse, EgalSansCasse> parNom_;  // wide tables
  std::vector<std::vector<Value>> lignes_;
  std::vector<Index> index_;  // one per column
  bool filtre_ = false;
  Lignes vue_;                // the rows under the filter, when filtre_
  Lignes tampon_;             // where a new filter is worked out before it replaces vue_
  std::size_t pos_ = 0;       // position in the rows under the present filter
};

}  // namespace orvalis

#endif  // ORVALIS_FRAME_MEMORY_RECORDSET_H_
