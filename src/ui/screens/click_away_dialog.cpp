// A modal window that closes on a click anywhere in it or on Enter (at key up).
#include "ui/screens/click_away_dialog.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace qb::ui {

namespace {
bool IsEnter(const QKeyEvent* e) {
  return e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter;
}
}  // namespace

ClickAwayDialog::ClickAwayDialog(QWidget* parent) : QDialog(parent) {
  setModal(true);
}

void ClickAwayDialog::CloseOnClick(QWidget* child) {
  child->installEventFilter(this);
}

void ClickAwayDialog::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) accept();
}

void ClickAwayDialog::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(event)) {
    if (!event->isAutoRepeat()) enterDown_ = true;
    return;
  }
  if (event->key() == Qt::Key_Escape) return;
  QDialog::keyPressEvent(event);
}

// The press must have reached this window too: the release of the Enter that opened it (Play
// in the chooser, say) must not close it before the player has seen it.
void ClickAwayDialog::keyReleaseEvent(QKeyEvent* event) {
  if (IsEnter(event) && !event->isAutoRepeat() && enterDown_) {
    accept();
    return;
  }
  QDialog::keyReleaseEvent(event);
}

bool ClickAwayDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease &&
      static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
    accept();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace qb::ui
