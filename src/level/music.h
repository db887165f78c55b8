// Background music: the track rotation and the commands sent to the music device.
#pragma once

#include "core/game.h"

namespace qb {

int NextTrack(Game& g);
void PlayTrack(Game& g, int track);
void StopMusic(Game& g);
// The keep-alive tick: a track that has ended while music is on starts again.
void Timer2_Timer(Game& g);
std::string TrackPath(const Game& g, int track);

}  // namespace qb
