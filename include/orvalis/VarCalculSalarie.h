// The employee record of one pay month: the host fills the situation, preparations write
// coefficients and day counts, handlers read them. Fields: VarCalculSalarie.fields.
#ifndef ORVALIS_VARCALCULSALARIE_H_
#define ORVALIS_VARCALCULSALARIE_H_

#include "orvalis/fields.h"

namespace orvalis {

struct VarCalculSalarie {
#define ORVALIS_FIELD(T, name) T##_t name{};
#include "orvalis/VarCalculSalarie.fields"
#undef ORVALIS_FIELD
};

template <>
std::span<const Champ<VarCalculSalarie>> Champs<VarCalculSalarie>();

}  // namespace orvalis

#endif  // ORVALIS_VARCALCULSALARIE_H_
