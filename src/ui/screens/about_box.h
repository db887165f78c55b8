// The about box: the game's name, version and date, how and by whom it was made, and OK.
#pragma once

#include <QDialog>

namespace qb::ui {

class AboutBox : public QDialog {
  Q_OBJECT
 public:
  explicit AboutBox(QWidget* parent = nullptr);
};

}  // namespace qb::ui
