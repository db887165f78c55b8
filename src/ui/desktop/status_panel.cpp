// The status panel beside the view: overview map, counters, time, tool bar and level buttons.
#include "ui/desktop/status_panel.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/desktop/tool_art.h"

namespace qb::ui {
namespace {

constexpr int kIconSize = 32;

QString FromModel(const std::string& s) {
  return QString::fromStdString(s);
}

void SetText(QLabel* label, const std::string& text) {
  const QString t = FromModel(text);
  if (label->text() != t) label->setText(t);
}

// A framed button-like label for "Pause", "Fast", "Restart" and "Replay".
PanelLabel* MakeButton(const QString& text, QWidget* parent) {
  auto* label = new PanelLabel(text, parent);
  label->setFrameStyle(QFrame::Panel | QFrame::Raised);
  label->setMinimumHeight(28);
  QFont f = label->font();
  f.setBold(true);
  label->setFont(f);
  return label;
}

}  // namespace

StatusPanel::StatusPanel(QWidget* parent) : QWidget(parent) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(6, 6, 6, 6);
  column->setSpacing(8);

  map_ = new OverviewMap(this);
  auto* mapFrame = new QFrame(this);
  mapFrame->setFrameStyle(QFrame::Box | QFrame::Plain);
  auto* mapBox = new QVBoxLayout(mapFrame);
  mapBox->setContentsMargins(1, 1, 1, 1);
  mapBox->addWidget(map_, 0, Qt::AlignCenter);
  column->addWidget(mapFrame, 0, Qt::AlignHCenter);

  column->addWidget(MakeCounters());

  auto* tools = new QGridLayout();
  tools->setSpacing(4);
  for (int t = 0; t < 8; ++t) tools->addWidget(MakeTool(t), t / 4, t % 4);
  column->addLayout(tools);

  auto* buttons = new QGridLayout();
  buttons->setSpacing(4);
  label3_[0] = MakeButton("Pause", this);
  label3_[1] = MakeButton("Fast", this);
  label7_ = MakeButton("Restart", this);
  label8_ = MakeButton("Replay\nOn", this);
  label8_->setMinimumHeight(40);
  QSizePolicy keep = label8_->sizePolicy();
  keep.setRetainSizeWhenHidden(true);  // the panel does not jump when a replay starts or stops
  label8_->setSizePolicy(keep);
  buttons->addWidget(label3_[0], 0, 0);
  buttons->addWidget(label3_[1], 0, 1);
  buttons->addWidget(label7_, 1, 0);
  buttons->addWidget(label8_, 1, 1);
  column->addLayout(buttons);
  column->addStretch(1);

  for (int i = 0; i < 2; ++i) {
    connect(label3_[static_cast<std::size_t>(i)], &PanelLabel::pressed, this,
            [this, i](bool right) { Q_EMIT label3Down(i, right); });
    connect(label3_[static_cast<std::size_t>(i)], &PanelLabel::released, this,
            [this, i](bool right) { Q_EMIT label3Up(i, right); });
  }
  connect(label7_, &PanelLabel::pressed, this, &StatusPanel::label7Down);
  connect(label7_, &PanelLabel::released, this, &StatusPanel::label7Up);
  connect(label8_, &PanelLabel::released, this, [this](bool) { Q_EMIT label8Clicked(); });
}

QWidget* StatusPanel::MakeCounters() {
  auto* box = new QWidget(this);
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(6);
  for (int i = 0; i < 2; ++i) label4_[static_cast<std::size_t>(i)] = new PanelLabel("0", box);
  for (int i = 0; i < 3; ++i) label6_[static_cast<std::size_t>(i)] = new PanelLabel("of", box);
  for (PanelLabel* l : label4_) {
    QFont f = l->font();
    f.setBold(true);
    f.setPointSizeF(f.pointSizeF() * 1.3);
    l->setFont(f);
    l->setMinimumWidth(40);
  }
  // Out: how many walk now, of all the level's characters; Saved: of those needed.
  grid->addWidget(new QLabel("Out", box), 0, 0);
  grid->addWidget(label4_[0], 0, 1);
  grid->addWidget(label6_[0], 0, 2);
  grid->addWidget(new QLabel("Saved", box), 1, 0);
  grid->addWidget(label4_[1], 1, 1);
  grid->addWidget(label6_[2], 1, 2);
  label6_[1]->hide();  // the design-time "of" between the two rows carries no number
  label5_ = new PanelLabel("Time Left", box);
  label5_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  label5_->setMinimumWidth(90);
  grid->addWidget(label5_, 0, 3, 2, 1);
  grid->setColumnStretch(2, 1);
  return box;
}

QWidget* StatusPanel::MakeTool(int tool) {
  const auto t = static_cast<std::size_t>(tool);
  auto* field = new PanelLabel(QString(), this);  // Label1(tool): the coloured field
  field->setFrameStyle(QFrame::Box | QFrame::Plain);
  field->setToolTip(ToolName(tool) + QString(" (%1)").arg(tool + 1));
  auto* stack = new QVBoxLayout(field);
  stack->setContentsMargins(3, 3, 3, 2);
  stack->setSpacing(1);
  auto* icon = new PanelLabel(QString(), field);  // Image1(tool)
  icon->setAutoFillBackground(false);
  icon->setPixmap(ToolPixmap(tool, kIconSize, devicePixelRatioF()));
  icon->setFixedSize(kIconSize, kIconSize);
  auto* count = new PanelLabel(QString(), field);  // Label2(tool)
  count->setMinimumHeight(16);
  // A label does not take its size from a layout inside it: give the field room for both.
  field->setMinimumSize(kIconSize + 14, kIconSize + 26);
  stack->addWidget(icon, 0, Qt::AlignHCenter);
  stack->addWidget(count);
  label1_[t] = field;
  image1_[t] = icon;
  label2_[t] = count;
  for (PanelLabel* l : {field, icon, count}) {
    connect(l, &PanelLabel::pressed, this, [this, tool](bool) { Q_EMIT toolDown(tool); });
    connect(l, &PanelLabel::released, this, [this, tool](bool) { Q_EMIT toolUp(tool); });
  }
  return field;
}

void StatusPanel::Sync(const Game& g, double mapPixelsPerTwip) {
  const Controls& ui = g.ui;
  map_->Sync(g.pic.Map, ui.MapWidthTwips, ui.MapHeightTwips, mapPixelsPerTwip);
  for (int t = 0; t < 8; ++t) {
    Label1(t)->SetBack(ui.Label1Back(t));
    Label2(t)->SetBack(ui.Label2Back(t));
    SetText(Label2(t), ui.Label2Caption(t));
  }
  for (int i = 0; i < 2; ++i) {
    SetText(Label4(i), ui.Label4Caption(i));
    Label4(i)->SetBack(ui.Label4Back(i));
    Label3(i)->SetBack(ui.Label3Back(i));
  }
  for (int i = 0; i < 3; ++i) SetText(Label6(i), ui.Label6Caption(i));
  SetText(label5_, ui.Label5Caption);  // three lines: an empty one, "Time Left", the time
  label5_->SetBack(ui.Label5Back);
  SetText(label7_, ui.Label7Caption);
  label7_->SetBack(ui.Label7Back);
  SetText(label8_, ui.Label8Caption);
  label8_->SetBack(ui.Label8Back);
  if (label8_->isVisibleTo(this) != ui.Label8Visible) label8_->setVisible(ui.Label8Visible);
}

}  // namespace qb::ui
