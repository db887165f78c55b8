// The game-won screen: a picture, "Well Done!" and the closing text.
#include "ui/screens/won_game_screen.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/screens/art.h"
#include "ui/screens/screen_style.h"

namespace qb::ui {

WonGameScreen::WonGameScreen(const ScreenTexts& texts, QWidget* parent) : ClickAwayDialog(parent) {
  setWindowTitle(QStringLiteral("Quorbit 2"));

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(20, 20, 24, 20);
  layout->setSpacing(20);
  auto* picture = new ArtView(QStringLiteral("won-game"), QSize(200, 150), this);
  layout->addWidget(picture, 0, Qt::AlignTop);

  auto* column = new QVBoxLayout;
  label1_ = new QLabel(QString::fromStdString(texts.title), this);
  label1_->setFont(ArialFont(22, true));
  column->addWidget(label1_);
  QString text;
  for (const std::string& line : texts.lines) {
    if (!text.isEmpty()) text += QLatin1Char('\n');
    text += QString::fromStdString(line);
  }
  label2_ = new QLabel(text, this);
  label2_->setFont(ArialFont(11, false));
  label2_->setWordWrap(true);
  label2_->setMinimumWidth(260);
  column->addWidget(label2_);
  column->addStretch(1);
  layout->addLayout(column, 1);

  CloseOnClick(picture);
  CloseOnClick(label1_);
  CloseOnClick(label2_);
}

}  // namespace qb::ui
