// The level chooser: a tier, a level up to the highest reached in it, Play or Cancel.
#pragma once

#include <QButtonGroup>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <array>
#include <optional>
#include <utility>

#include "core/game.h"
#include "core/settings.h"

namespace qb::ui {

// An invisible area that reacts to a click (the chooser's hidden progress switches).
class HiddenClickArea : public QWidget {
  Q_OBJECT
 public:
  using QWidget::QWidget;
 signals:
  void clicked();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
};

class ChooseLevel : public QDialog {
  Q_OBJECT
 public:
  ChooseLevel(Game& g, QWidget* parent = nullptr);

  // The tier and level chosen by Play or a double click; empty after Cancel.
  std::optional<std::pair<int, int>> Chosen() const { return chosen_; }

  QRadioButton* Option1(int tier) const { return option1_.at(static_cast<size_t>(tier)); }
  QListWidget* List1() const { return list1_; }
  QPushButton* PlayButton() const { return play_; }
  QPushButton* CancelButton() const { return cancel_; }
  HiddenClickArea* Image2() const { return image2_; }  // lower left: every tier back to 1
  HiddenClickArea* Image3() const { return image3_; }  // top edge: every level open
  int SelectedTier() const;
  QLabel* Record() const { return record_; }  // the selected level's title and record

 private:
  void FormLoad();
  void Option1Click(int tier);
  void FillList(int highest);
  void Play();
  void SetAllHighest(int level);
  void ShowRecord();

  Game& g_;
  std::array<QRadioButton*, 4> option1_{};
  QButtonGroup tiers_;
  QListWidget* list1_;
  QLabel* record_ = nullptr;
  QPushButton* play_;
  QPushButton* cancel_;
  HiddenClickArea* image2_;
  HiddenClickArea* image3_;
  std::optional<std::pair<int, int>> chosen_;
};

}  // namespace qb::ui
