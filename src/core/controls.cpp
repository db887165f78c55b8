// Design-time values of the play window's controls.
#include "core/controls.h"

namespace qb {

Controls::Controls() {
  Label1Back.Fill(kWhite);
  Label2Back.Fill(kWhite);
  Label4Caption.Fill("0");
  Label4Back.Fill(kSystemWindow);
  Label6Caption(0) = "of 60";
  Label6Caption(1) = "of";
  Label6Caption(2) = "of 60";
  Label3Back.Fill(kSystemWindow);
  const char* captions[7] = {"&Pause                    P",
                             "&Fast                       Enter",
                             "-",
                             kRestartCaption,
                             "&End Level",
                             "-",
                             "&Next Track"};
  for (int i = 0; i < 7; ++i) LevelCmdCaption(i) = captions[i];
}

}  // namespace qb
