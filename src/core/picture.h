// The drawn pictures as data: the 40 by 40 play view and the overview map with its view frame.
#pragma once

#include <array>
#include <bitset>
#include <cstdint>

#include "core/colours.h"

namespace qb {

inline constexpr int kViewSize = 40;

// One square of the play view: a fill colour and, for a character, its face.
struct ViewCell {
  Colour colour = kWhite;
  bool face = false;      // a character is drawn here: two eyes and a smile in white
  int8_t dir = 1;         // the way the face looks: +1 right, -1 left
  bool climbing = false;  // the leader's climbing pose
  bool operator==(const ViewCell&) const = default;
};

// Picture1: the play view. Remembers which squares changed since the window last painted.
class ViewPicture {
 public:
  void Clear();
  // Fills view square (vx, vy); squares outside the 40 by 40 view are clipped.
  void Fill(int vx, int vy, Colour c);
  void FillFace(int vx, int vy, Colour c, int dir, bool climbing);
  const ViewCell& At(int vx, int vy) const { return cells_[Index(vx, vy)]; }

  // The painter takes the changed squares and forgets them.
  bool TakeFullRepaint();
  // The whole picture was replaced (a step back): the next paint redraws every square.
  void MarkAllChanged() { full_ = true; }
  template <typename F>
  void TakeDirty(F&& paint) {
    for (int i = 0; i < kViewSize * kViewSize; ++i)
      if (dirty_[i]) paint(i % kViewSize, i / kViewSize);
    dirty_.reset();
  }
  int DirtyCount() const { return static_cast<int>(dirty_.count()); }
  bool operator==(const ViewPicture&) const = default;

 private:
  static std::size_t Index(int vx, int vy) { return static_cast<std::size_t>(vx + kViewSize * vy); }
  std::array<ViewCell, kViewSize * kViewSize> cells_{};
  std::bitset<kViewSize * kViewSize> dirty_;
  bool full_ = true;
};

// Picture2(0) or Picture2(1): one dot per square of the level.
class MapPicture {
 public:
  static constexpr int kMaxW = 120, kMaxH = 80;
  void Resize(int w, int h);
  void Clear();
  void SetDot(int x, int y, Colour c);  // dots outside the map are clipped
  Colour Dot(int x, int y) const;
  int Width() const { return w_; }
  int Height() const { return h_; }
  bool operator==(const MapPicture&) const = default;

  // The dotted frame of the view drawn on the shown map (Picture2(0) only).
  bool frameShown = false;
  int frameX = 0, frameY = 0, frameW = kViewSize, frameH = kViewSize;
  int version = 0;  // grows on every change, so the window knows when to repaint

 private:
  int w_ = kMaxW, h_ = kMaxH;
  std::array<Colour, kMaxW * kMaxH> dots_{};
};

struct Pictures {
  ViewPicture Picture1;
  MapPicture Map;      // Picture2(0)
  MapPicture Backing;  // Picture2(1)
  bool operator==(const Pictures&) const = default;
};

}  // namespace qb
