// Arrondi through the 15 digits of the decimal, as text: the reference the fast route of
// Arrondi is held to, bit for bit, in the tests.
#ifndef ORVALIS_FRAME_ARRONDI_CHIFFRES_H_
#define ORVALIS_FRAME_ARRONDI_CHIFFRES_H_

#include "orvalis/numeric.h"

namespace orvalis {

double ArrondiParLesChiffres(double vValeur, Int16 iNbDecimales);

}  // namespace orvalis

#endif  // ORVALIS_FRAME_ARRONDI_CHIFFRES_H_
