// The tool labels when the leader is lost.
#include "sim/leader_loss.h"

namespace qb {

void LoseLeaderTools(Game& g, bool keepSlow) {
  if (!keepSlow) g.Tool5Countdown = 0;
  for (int t : {0, 1}) {
    g.ui.Label1Back(t) = kWhite;
    g.ui.Label2Back(t) = kWhite;
  }
  for (int t = 0; t < kToolCount; ++t) {
    g.ui.Label1Back(t) = kToolsLost;
    g.ui.Label2Back(t) = kToolsLost;
  }
}

}  // namespace qb
