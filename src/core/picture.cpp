// The drawn pictures as data.
#include "core/picture.h"

namespace qb {

void ViewPicture::Clear() {
  cells_.fill(ViewCell{});
  dirty_.reset();
  full_ = true;
}

void ViewPicture::Fill(int vx, int vy, Colour c) {
  if (vx < 0 || vx >= kViewSize || vy < 0 || vy >= kViewSize) return;
  const auto i = Index(vx, vy);
  cells_[i] = ViewCell{c, false, 1, false};
  dirty_.set(i);
}

void ViewPicture::FillFace(int vx, int vy, Colour c, int dir, bool climbing) {
  if (vx < 0 || vx >= kViewSize || vy < 0 || vy >= kViewSize) return;
  const auto i = Index(vx, vy);
  cells_[i] = ViewCell{c, true, static_cast<int8_t>(dir >= 0 ? 1 : -1), climbing};
  dirty_.set(i);
}

bool ViewPicture::TakeFullRepaint() {
  const bool full = full_;
  full_ = false;
  if (full) dirty_.reset();
  return full;
}

void MapPicture::Resize(int w, int h) {
  w_ = w < 0 ? 0 : (w > kMaxW ? kMaxW : w);
  h_ = h < 0 ? 0 : (h > kMaxH ? kMaxH : h);
  ++version;
}

void MapPicture::Clear() {
  dots_.fill(kWhite);
  ++version;
}

void MapPicture::SetDot(int x, int y, Colour c) {
  if (x < 0 || x >= w_ || y < 0 || y >= h_) return;
  dots_[static_cast<std::size_t>(x + kMaxW * y)] = c;
  ++version;
}

Colour MapPicture::Dot(int x, int y) const {
  if (x < 0 || x >= w_ || y < 0 || y >= h_) return kWhite;
  return dots_[static_cast<std::size_t>(x + kMaxW * y)];
}

}  // namespace qb
