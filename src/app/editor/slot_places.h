// The six entrance, trap and teleport slots of a level, addressed one at a time.
#pragma once

#include <optional>

#include "app/editor/grid_edits.h"
#include "core/level_file.h"

namespace qb::editor {

enum class SlotKind { Entrance, Trap, Teleport };
inline constexpr int kSlotCount = 6;

struct SlotRef {
  SlotKind kind = SlotKind::Entrance;
  int index = 0;  // 0 to 5
  bool operator==(const SlotRef&) const = default;
};

bool SlotActive(const LevelData& d, SlotRef slot);
Square SlotSquare(const LevelData& d, SlotRef slot);
void SetSlotActive(LevelData& d, SlotRef slot, bool active);
// Puts the slot on `at` and switches it on: placing a slot means using it.
void PlaceSlot(LevelData& d, SlotRef slot, Square at);

// The active slot drawn on `at`, if any; entrances first, then traps, then teleports.
std::optional<SlotRef> SlotOn(const LevelData& d, Square at);

// "E0", "T3", "P5": the marker's label.
const char* SlotLetter(SlotKind kind);

}  // namespace qb::editor
