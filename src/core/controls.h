// The play window's controls as far as the rules change them, named after the controls.
#pragma once

#include <string>

#include "core/checked.h"
#include "core/colours.h"

namespace qb {

// Indexes of the Options menu items.
enum Option : int {
  OptMusic = 0,
  OptSound = 1,
  OptFastScrolling = 3,
  OptSmartScrolling = 4,
  OptReplay = 6,
  OptShowChange = 8,
};

// Indexes of the Level menu items.
enum LevelCommand : int {
  CmdPause = 0,
  CmdFast = 1,
  CmdRestart = 3,
  CmdEndLevel = 4,
  CmdNextTrack = 6,
};

inline const char* const kRestartCaption = "&Restart Level        Esc";
inline const char* const kWinCaption = "&Win Level              Esc";

struct Controls {
  // Tool bar: Label1(i) is the coloured field behind icon i, Label2(i) its count.
  Table<Colour, 8> Label1Back{"Label1"};
  Table<Colour, 8> Label2Back{"Label2"};
  Table<std::string, 8> Label2Caption{"Label2"};

  // Counters: Label4(0) out, Label4(1) saved; Label6 the three "of" labels.
  Table<std::string, 2> Label4Caption{"Label4"};
  Table<Colour, 2> Label4Back{"Label4"};
  Table<std::string, 3> Label6Caption{"Label6"};

  std::string Label5Caption = "Time Left";  // the time display
  Colour Label5Back = kSystemWindow;

  Table<Colour, 2> Label3Back{"Label3"};  // "Pause", "Fast"
  std::string Label7Caption = "Restart";
  Colour Label7Back = kSystemWindow;
  std::string Label8Caption = "Replay\nOn";
  bool Label8Visible = false;
  Colour Label8Back = kSystemWindow;

  Table<std::string, 7> LevelCmdCaption{"LevelCmd"};
  Table<bool, 7> LevelCmdChecked{"LevelCmd"};
  Table<bool, 9> OptionsChecked{"OptionsCmd"};

  bool Timer1Enabled = false;
  int Timer1Interval = 200;
  int Timer1Restarts = 0;  // counts "Enabled False then True": the window restarts its interval
  bool Timer3Enabled = false;
  // A tool pressed while paused is applied without resuming; it acts on the next step.
  bool StayPausedForTools = false;

  std::string Caption = "Quorbit 2";
  bool Frame1Visible = false;

  int HScrollMax = 0, HScrollValue = 0;
  int VScrollMax = 0, VScrollValue = 0;

  double MapWidthTwips = 3135, MapHeightTwips = 1935;

  Controls();
  bool Option(Option o) const { return OptionsChecked(o); }
  bool operator==(const Controls&) const = default;
};

}  // namespace qb
