// The six entrance, trap and teleport slots of a level, addressed one at a time.
#include "app/editor/slot_places.h"

#include "core/squares.h"

namespace qb::editor {
namespace {

LevelSlot& SlotOf(LevelData& d, SlotRef s) {
  return d.Slots.at(static_cast<std::size_t>(s.index));
}
const LevelSlot& SlotOf(const LevelData& d, SlotRef s) {
  return d.Slots.at(static_cast<std::size_t>(s.index));
}

}  // namespace

bool SlotActive(const LevelData& d, SlotRef slot) {
  const LevelSlot& s = SlotOf(d, slot);
  switch (slot.kind) {
    case SlotKind::Entrance:
      return s.EntranceActive != 0;
    case SlotKind::Trap:
      return s.TrapActive != 0;
    case SlotKind::Teleport:
      return s.TeleportActive != 0;
  }
  return false;
}

Square SlotSquare(const LevelData& d, SlotRef slot) {
  const LevelSlot& s = SlotOf(d, slot);
  switch (slot.kind) {
    case SlotKind::Entrance:
      return {s.EntranceX, s.EntranceY};
    case SlotKind::Trap:
      return {s.TrapX, s.TrapY};
    case SlotKind::Teleport:
      return {s.TeleportX, s.TeleportY};
  }
  return {};
}

void SetSlotActive(LevelData& d, SlotRef slot, bool active) {
  LevelSlot& s = SlotOf(d, slot);
  const int16_t flag = active ? True : False;
  switch (slot.kind) {
    case SlotKind::Entrance:
      s.EntranceActive = flag;
      break;
    case SlotKind::Trap:
      s.TrapActive = flag;
      break;
    case SlotKind::Teleport:
      s.TeleportActive = flag;
      break;
  }
}

void PlaceSlot(LevelData& d, SlotRef slot, Square at) {
  LevelSlot& s = SlotOf(d, slot);
  const auto y = static_cast<int16_t>(at.y);
  switch (slot.kind) {
    case SlotKind::Entrance:
      s.EntranceX = at.x;
      s.EntranceY = y;
      break;
    case SlotKind::Trap:
      s.TrapX = at.x;
      s.TrapY = y;
      break;
    case SlotKind::Teleport:
      s.TeleportX = at.x;
      s.TeleportY = y;
      break;
  }
  SetSlotActive(d, slot, true);
}

std::optional<SlotRef> SlotOn(const LevelData& d, Square at) {
  for (SlotKind kind : {SlotKind::Entrance, SlotKind::Trap, SlotKind::Teleport})
    for (int j = 0; j < kSlotCount; ++j) {
      const SlotRef ref{kind, j};
      if (SlotActive(d, ref) && SlotSquare(d, ref) == at) return ref;
    }
  return std::nullopt;
}

const char* SlotLetter(SlotKind kind) {
  switch (kind) {
    case SlotKind::Entrance:
      return "E";
    case SlotKind::Trap:
      return "T";
    case SlotKind::Teleport:
      return "P";
  }
  return "?";
}

}  // namespace qb::editor
