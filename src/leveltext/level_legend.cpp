// The names the level text form uses: grid characters, square kind names, tools and tiers.
#include "leveltext/level_legend.h"

#include <array>

namespace qb::leveltext {
namespace {

// Index = square kind; the same legend as the test level builder.
constexpr std::string_view kLegend = ".1#okgbBMN~^!cCZDT";

constexpr std::array<std::string_view, kKindCount> kKindNames = {
    "Empty",    "Marker1",     "SoftWall",     "BuiltBlock",   "BlockSquare", "SoftWall2",
    "BombWall", "BombWall2",   "MetalWall",    "MetalWall2",   "Water",       "Lava",
    "Marker12", "CrumbleWall", "CrumbleWall2", "ElectricWall", "ExitDoor",    "Teleport"};

constexpr std::array<std::string_view, kToolCount> kToolNames = {
    "climb", "block", "build", "change", "jump", "slow", "bomb", "laser"};

constexpr std::array<std::string_view, kTierCount> kTierNames = {"Beginner", "Intermediate",
                                                                 "Advanced", "Expert"};

}  // namespace

char KindChar(int kind) {
  return kLegend.at(static_cast<std::size_t>(kind));
}

std::optional<int> KindOfChar(char ch) {
  const auto p = kLegend.find(ch);
  if (p == std::string_view::npos) return std::nullopt;
  return static_cast<int>(p);
}

std::string_view KindName(int kind) {
  return kKindNames.at(static_cast<std::size_t>(kind));
}

std::string_view ToolName(int tool) {
  return kToolNames.at(static_cast<std::size_t>(tool));
}

std::optional<int> ToolOfName(std::string_view name) {
  for (int t = 0; t < kToolCount; ++t)
    if (kToolNames[static_cast<std::size_t>(t)] == name) return t;
  return std::nullopt;
}

std::string_view TierName(int tier) {
  return kTierNames.at(static_cast<std::size_t>(tier));
}

std::optional<int> TierOfText(std::string_view text) {
  for (int t = 0; t < kTierCount; ++t)
    if (kTierNames[static_cast<std::size_t>(t)] == text) return t;
  if (text.size() == 1 && text[0] >= '0' && text[0] <= '3') return text[0] - '0';
  return std::nullopt;
}

}  // namespace qb::leveltext
