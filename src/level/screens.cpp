// The title card and the result screens: what they do to the game and the texts they show.
#include "level/screens.h"

#include "draw/drawing.h"

namespace qb {

std::string CharWord(long n) {
  return n == 1 ? "character" : "characters";
}

namespace {
std::string Count(long n) {
  return std::to_string(n) + " " + CharWord(n);
}
}  // namespace

ScreenTexts TitleTexts(const Game& g) {
  return {g.LevelName,
          {"Level " + std::to_string(g.LevelNumber) + " (" + g.SkillName(g.CurrentSkill) + ")",
           "You start with " + Count(g.CharactersTotal),
           "You need to save " + Count(g.CharactersNeeded)}};
}

ScreenTexts WinLevelTexts(const Game& g) {
  const long s = g.SavedCount, r = g.CharactersNeeded;
  std::string comment;
  if (s == g.CharactersTotal)
    comment = "GREAT! You saved EVERY SINGLE character!";
  else if (s == r)
    comment = "EXACTLY the right number of characters! WONDERFUL!";
  else if (s < r + 7)
    comment = "You saved a few more than was needed! Good for you!";
  else if (s < r + 16)
    comment = "You saved a lot more than was needed! Masterful effort!";
  else if (s < r + 30)
    comment = "You saved a great deal of characters! Excellent job!";
  else
    comment = "Excellent! You saved an ENORMOUS amount of characters!";
  std::string tier;
  if (g.LevelNumber == 20) {
    static const char* const kTierDone[4] = {
        "Good work! You have completed all the Beginner Levels!",
        "Wonderful! You have completed all the Intermediate Levels!",
        "Well Done! You have completed all the Advanced Levels!",
        "Excellent! You have completed all the Expert Levels! You are a master Quorbit!"};
    if (g.CurrentSkill >= 0 && g.CurrentSkill <= 3) tier = kTierDone[g.CurrentSkill];
  }
  return {"Congratulations!",
          {"You have completed Level " + std::to_string(g.LevelNumber) + " of " +
               g.SkillName(g.CurrentSkill),
           "You needed to save " + Count(r), "You saved " + Count(s), comment, tier}};
}

ScreenTexts LooseLevelTexts(const Game& g) {
  const long s = g.SavedCount, r = g.CharactersNeeded;
  const std::string saved =
      s < 1 ? "But you saved 0 characters!" : "But you only saved " + Count(s) + "!";
  const double p = static_cast<double>(s) / static_cast<double>(r) * 100.0;
  std::string comment;
  if (p == 0)
    comment = "You didn't save anyone! Shame on you!";
  else if (p < 1)
    comment = "Try harder next time....";
  else if (p < 20)
    comment = "Perhaps you need to take a different approach!";
  else if (p < 30)
    comment = "I'm sure you can do better!";
  else if (p <= 55)
    comment = "You might be on the right track...try again";
  else if (p < 80)
    comment = "You're getting there...try again...";
  else if (p < 90)
    comment = "Just a few more saves and you will win!";
  else
    comment = "You were so close! Try again!";
  return {"Oh No!", {"You needed to save " + Count(r), saved, comment}};
}

ScreenTexts WonGameTexts() {
  return {"Well Done!",
          {"You have completed Quorbit 2. Please email the producer at "
           "quorbit2@users.noreply.invalid and tell him of your accomplishment"}};
}

void ShowTitleScreen(Game& g) {
  g.ReplayPlaying = False;
  g.ReplayLog(0) = 'E';  // a char: see -Wrestrict in SetUpLevel
  const ScreenTexts texts = TitleTexts(g);
  DrawView(g);
  g.host->ShowScreen(Screen::Title, texts);
  DrawView(g);
}

void ShowWinLevel(Game& g) {
  for (int t = 1; t <= kLastReplayTick; ++t) g.ReplayLog(t) = "";
  const ScreenTexts texts = WinLevelTexts(g);
  PlayEffect(g, g.LevelNumber == 20 ? Sound::TierWon : Sound::LevelWon);
  g.host->ShowScreen(Screen::WinLevel, texts);
}

void ShowLooseLevel(Game& g) {
  const ScreenTexts texts = LooseLevelTexts(g);
  PlayEffect(g, Sound::LevelLost);
  g.host->ShowScreen(Screen::LooseLevel, texts);
}

void ShowWonGame(Game& g) {
  g.host->ShowScreen(Screen::WonGame, WonGameTexts());
}

}  // namespace qb
