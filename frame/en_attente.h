// The handlers of MethodeCalculG_Nouv still waiting to land, by name.
#ifndef ORVALIS_FRAME_EN_ATTENTE_H_
#define ORVALIS_FRAME_EN_ATTENTE_H_

#include <string>
#include <vector>

namespace orvalis {

const std::vector<std::string>& NomsEnAttente();

}  // namespace orvalis

#endif  // ORVALIS_FRAME_EN_ATTENTE_H_
