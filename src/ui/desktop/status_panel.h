// The status panel beside the view: overview map, counters, time, tool bar and level buttons.
#pragma once

#include <QWidget>
#include <array>

#include "core/game.h"
#include "ui/desktop/overview_map.h"
#include "ui/desktop/panel_label.h"

namespace qb::ui {

class StatusPanel : public QWidget {
  Q_OBJECT
 public:
  explicit StatusPanel(QWidget* parent = nullptr);

  // Shows the control model; `mapPixelsPerTwip` is the overview map's scale.
  void Sync(const Game& g, double mapPixelsPerTwip);

  OverviewMap* Map() const { return map_; }
  PanelLabel* Label1(int tool) const { return label1_[static_cast<std::size_t>(tool)]; }
  PanelLabel* Label2(int tool) const { return label2_[static_cast<std::size_t>(tool)]; }
  PanelLabel* Image1(int tool) const { return image1_[static_cast<std::size_t>(tool)]; }
  PanelLabel* Label3(int index) const { return label3_[static_cast<std::size_t>(index)]; }
  PanelLabel* Label4(int index) const { return label4_[static_cast<std::size_t>(index)]; }
  PanelLabel* Label5() const { return label5_; }
  PanelLabel* Label6(int index) const { return label6_[static_cast<std::size_t>(index)]; }
  PanelLabel* Label7() const { return label7_; }
  PanelLabel* Label8() const { return label8_; }

 Q_SIGNALS:
  void toolDown(int tool);
  void toolUp(int tool);
  void label3Down(int index, bool rightButton);
  void label3Up(int index, bool rightButton);
  void label7Down(bool rightButton);
  void label7Up(bool rightButton);
  void label8Clicked();

 private:
  QWidget* MakeTool(int tool);
  QWidget* MakeCounters();

  OverviewMap* map_;
  std::array<PanelLabel*, 8> label1_{}, label2_{}, image1_{};
  std::array<PanelLabel*, 2> label3_{}, label4_{};
  std::array<PanelLabel*, 3> label6_{};
  PanelLabel* label5_;
  PanelLabel* label7_;
  PanelLabel* label8_;
};

}  // namespace qb::ui
