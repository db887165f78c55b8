// A modal window that closes on a click anywhere in it or on Enter (at key up), and not on Esc.
#pragma once

#include <QDialog>

namespace qb::ui {

class ClickAwayDialog : public QDialog {
  Q_OBJECT
 public:
  explicit ClickAwayDialog(QWidget* parent = nullptr);

 protected:
  // Children (labels, pictures) close the window when clicked, too.
  void CloseOnClick(QWidget* child);
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool enterDown_ = false;
};

}  // namespace qb::ui
