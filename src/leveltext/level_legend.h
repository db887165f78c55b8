// The names the level text form uses: grid characters, square kind names, tools and tiers.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qb::leveltext {

inline constexpr int kKindCount = 18;
inline constexpr int kToolCount = 8;
inline constexpr int kTierCount = 4;

// The grid character of a square kind 0..17, and back (nothing for an unknown character).
char KindChar(int kind);
std::optional<int> KindOfChar(char ch);

// "Empty", "SoftWall", ... for kinds 0..17.
std::string_view KindName(int kind);

// "climb", "block", ... for tools 0..7, and back.
std::string_view ToolName(int tool);
std::optional<int> ToolOfName(std::string_view name);

// "Beginner" ... "Expert" for tiers 0..3, and back (the name, or a digit 0..3).
std::string_view TierName(int tier);
std::optional<int> TierOfText(std::string_view text);

}  // namespace qb::leveltext
