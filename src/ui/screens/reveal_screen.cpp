// The title card and the level-won and level-lost screens with their timed reveal.
#include "ui/screens/reveal_screen.h"

#include <QVBoxLayout>

#include "core/colours.h"

namespace qb::ui {

namespace {
constexpr uint32_t kRevealHighlight = 0x80C0FF;  // light orange
constexpr uint32_t kLostHighlight = 0x0000FF;    // red
constexpr uint32_t kTierDoneBack = 0xC0FFFF;     // light yellow

void SetTextColour(QLabel* label, const QColor& c) {
  QPalette pal = label->palette();
  pal.setColor(QPalette::WindowText, c);
  label->setPalette(pal);
}
}  // namespace

RevealScreen::RevealScreen(Screen screen, const ScreenTexts& texts, QWidget* parent)
    : ClickAwayDialog(parent),
      screen_(screen),
      highlight_(FromBgr(screen == Screen::LooseLevel ? kLostHighlight : kRevealHighlight)) {
  setWindowTitle(QStringLiteral("Quorbit 2"));

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(28, 20, 28, 24);
  layout->setSpacing(8);

  label1_ = new QLabel(QString::fromStdString(texts.title), this);
  label1_->setFont(ArialFont(22, true));
  label1_->setAlignment(Qt::AlignCenter);
  layout->addWidget(label1_);

  line1_ = new RuleLine(this);
  layout->addWidget(line1_);
  layout->addSpacing(6);

  for (const std::string& text : texts.lines) {
    auto* label = new QLabel(QString::fromStdString(text), this);
    label->setFont(ArialFont(11, false));
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    layout->addWidget(label);
    label2_.push_back(label);
  }
  layout->addStretch(1);

  // Everything starts hidden but keeps its place, so the window does not jump as texts appear.
  QList<QWidget*> parts{label1_, line1_};
  for (QLabel* l : label2_) parts << l;
  for (QWidget* w : parts) {
    QSizePolicy policy = w->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    w->setSizePolicy(policy);
    w->hide();
    CloseOnClick(w);
  }
  setMinimumWidth(540);

  connect(&timer_, &QTimer::timeout, this, &RevealScreen::Step);
  timer_.start(200);
}

void RevealScreen::Reveal(QLabel* label) {
  SetTextColour(label, highlight_);
  label->show();
}

void RevealScreen::SetBackground(bool celebrate) {
  celebrating_ = celebrate;
  setAutoFillBackground(celebrate);
  QPalette pal = palette();
  pal.setColor(QPalette::Window,
               celebrate ? FromBgr(kTierDoneBack) : QPalette().color(QPalette::Window));
  setPalette(pal);
}

void RevealScreen::Step() {
  const int s = revealStep_;
  const int last = Label2Count() + 2;  // the step that turns the last label black
  if (s > last) return;
  revealStep_ = s + 1;
  if (s == 0) {
    if (screen_ == Screen::WinLevel && Label2Count() > 0 && !label2_.back()->text().isEmpty())
      SetBackground(true);
    Reveal(label1_);
  } else if (s == 1) {
    SetTextColour(label1_, Qt::black);
    line1_->SetColour(highlight_);
    line1_->show();
  } else if (s == 2) {
    line1_->SetColour(Qt::black);
    if (Label2Count() > 0) Reveal(label2_[0]);
  } else if (s < last) {
    SetTextColour(label2_[static_cast<size_t>(s - 3)], Qt::black);
    Reveal(label2_[static_cast<size_t>(s - 2)]);
  }
  if (s == last) {
    if (Label2Count() > 0) SetTextColour(label2_.back(), Qt::black);
    timer_.stop();
    if (screen_ == Screen::WinLevel) SetBackground(false);
  }
}

}  // namespace qb::ui
