// Background music: the track rotation and the commands sent to the music device.
#include "level/music.h"

namespace qb {

int NextTrack(Game& g) {
  g.CurrentTrack = Add16(g.CurrentTrack, 1, "CurrentTrack");
  if (g.CurrentTrack == 9) g.CurrentTrack = 0;
  return g.CurrentTrack;
}

std::string TrackPath(const Game& g, int track) {
  return g.ProgramFolder + "/Music/" + g.TrackNames(track) + ".mid";
}

void PlayTrack(Game& g, int track) {
  if (g.LevelNumber == 20 && g.CurrentSkill == 3) track = 9;  // the last level's finale
  g.MusicState = "Playing";
  g.host->SendMusicCommand(MusicCommand::Stop);
  g.host->SendMusicCommand(MusicCommand::Close);
  g.host->SetMusicFileName(TrackPath(g, track));
  g.host->SendMusicCommand(MusicCommand::Open);
  g.host->SendMusicCommand(MusicCommand::Play);
}

void StopMusic(Game& g) {
  g.MusicState = "Stopped";
  g.host->SendMusicCommand(MusicCommand::Stop);
}

void Timer2_Timer(Game& g) {
  if (g.host->MusicMode() == kMusicModeStopped && g.MusicState == "Playing")
    PlayTrack(g, g.CurrentTrack);
}

}  // namespace qb
