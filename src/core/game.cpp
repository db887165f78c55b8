// One game: fixed tables and small shared helpers.
#include "core/game.h"

namespace qb {

Game::Game(Host& h) : host(&h) {
  InitTables(*this);
}

void PlayEffect(Game& g, Sound sound) {
  if (g.Sound()) g.host->PlaySound(SoundType(sound), static_cast<int>(sound));
}

void InitColours(Game& g) {
  static constexpr Colour kColours[kKindCount] = {
      0xFFFFFF, 0xFFFFFF, 0x00C000, 0x0080FF, 0xC0C000, 0xC0C0C0, 0x0000C0, 0x008080, 0x808080,
      0x004080, 0xFF0000, 0x0000FF, 0xC0C0FF, 0x00FF00, 0xFFFF80, 0x80FFFF, 0xFF00FF, 0x000040};
  for (int k = 0; k < kKindCount; ++k) g.SquareColour(k) = kColours[k];
  g.CrowdColour = kCrowdColour;
}

void InitTracks(Game& g) {
  static const char* const kNames[10] = {
      "planet9",           "Rockem3d", "yuffies", "pktsym", "POP",
      "danceoftheheavens", "PIANO",    "7[1]",    "smooth", "dbyd8"};
  for (int i = 0; i < 10; ++i) g.TrackNames(i) = kNames[i];
}

void InitTables(Game& g) {
  static const char* const kTiers[4] = {"Beginner", "Intermediate", "Advanced", "Expert"};
  for (int i = 0; i < 4; ++i) g.SkillName(i) = kTiers[i];
  g.HighestLevel.Fill(1);
  g.MusicState = "Stopped";
  g.CurrentTrack = 0;
  InitColours(g);
  InitTracks(g);
}

std::string LevelPath(const Game& g, int tier, int number) {
  return g.ProgramFolder + "/Levels/" + g.SkillName(tier) + std::to_string(number) + ".lvl";
}

}  // namespace qb
