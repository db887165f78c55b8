// The how-to-play dialog: three pages (idea, shortcuts, colours), one shown at a time.
#pragma once

#include <QDialog>
#include <QFrame>
#include <QPushButton>
#include <QRadioButton>
#include <array>

namespace qb::ui {

class Instructions : public QDialog {
  Q_OBJECT
 public:
  explicit Instructions(QWidget* parent = nullptr);

  QRadioButton* Option1(int page) const { return option1_.at(static_cast<size_t>(page)); }
  QFrame* Frame1(int page) const { return frame1_.at(static_cast<size_t>(page)); }
  QPushButton* OkButton() const { return ok_; }

 private:
  void Option1Click(int page);

  std::array<QRadioButton*, 3> option1_{};
  std::array<QFrame*, 3> frame1_{};
  QPushButton* ok_;
};

}  // namespace qb::ui
