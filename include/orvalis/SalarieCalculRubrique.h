// The pay line record ("rubrique"): what the host describes and the engine writes back.
// Fields: SalarieCalculRubrique.fields, in their order.
#ifndef ORVALIS_SALARIECALCULRUBRIQUE_H_
#define ORVALIS_SALARIECALCULRUBRIQUE_H_

#include "orvalis/fields.h"

namespace orvalis {

struct SalarieCalculRubrique {
#define ORVALIS_FIELD(T, name) T##_t name{};
#include "orvalis/SalarieCalculRubrique.fields"
#undef ORVALIS_FIELD
};

template <>
std::span<const Champ<SalarieCalculRubrique>> Champs<SalarieCalculRubrique>();

}  // namespace orvalis

#endif  // ORVALIS_SALARIECALCULRUBRIQUE_H_
