// The how-to-play dialog: three pages (idea, shortcuts, colours), one shown at a time.
#include "ui/screens/instructions.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/screens/art.h"
#include "ui/screens/screen_style.h"

namespace qb::ui {

namespace {

// An empty entry stands for the separating line.
const QStringList kPages[3] = {
    {QStringLiteral(
        "* The idea of Quorbit is to get a certain amount of characters into the purple door. "
        "If you do that, you will progress to the next level. You control the black character "
        "who is able to do more than just walk around the level. The black character can build, "
        "block, jump etc. You tell him what to do.")},
    {QStringLiteral("Shortcuts:"), QStringLiteral("P - Pause"),
     QStringLiteral("Enter - Fast Forward"), QStringLiteral("1 - 8 - Use Tool"),
     QStringLiteral("ESC - Restart Level"), QStringLiteral("Arrow Keys - Scroll around level"),
     QString(),
     QStringLiteral("Fast Scrolling - If the scrolling is a little slow, try turning on fast "
                    "scrolling (the screen flashes a bit though)"),
     QStringLiteral("Smart Scrolling - When on, you can scroll by moving your mouse to the edge "
                    "of the screen")},
    {QStringLiteral("Colours:"),
     QStringLiteral("You are the black guy with the smile and you're in charge of the blue guys "
                    "with the smiles."),
     QStringLiteral("There are walls which can only be destroyed by bombing. There are also walls "
                    "that can't be destroyed at all and some that are destroyed simply by "
                    "stepping on them."),
     QStringLiteral("In addition to walls, there are teleports, traps (which are invisible) and "
                    "electric walls. You will also encounter water and lava."),
     QStringLiteral("As you play the game, you will learn what colour corresponds to what type "
                    "of object.")}};

QFrame* MakePage(const QStringList& texts, QWidget* parent) {
  auto* frame = new QFrame(parent);
  frame->setFrameShape(QFrame::StyledPanel);
  auto* layout = new QVBoxLayout(frame);
  layout->setSpacing(6);
  for (const QString& text : texts) {
    if (text.isEmpty()) {
      auto* line = new QFrame(frame);
      line->setFrameShape(QFrame::HLine);
      line->setFrameShadow(QFrame::Sunken);
      layout->addWidget(line);
      continue;
    }
    auto* label = new QLabel(text, frame);
    label->setWordWrap(true);
    layout->addWidget(label);
  }
  layout->addStretch(1);
  // Every page keeps its space while hidden, so switching pages does not resize the window.
  QSizePolicy policy = frame->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  frame->setSizePolicy(policy);
  return frame;
}

}  // namespace

Instructions::Instructions(QWidget* parent) : QDialog(parent) {
  setWindowTitle(QStringLiteral("Instructions"));
  setModal(true);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(16, 16, 16, 14);

  auto* heading = new QHBoxLayout;
  heading->addWidget(new ArtView(QStringLiteral("instructions"), QSize(48, 48), this));
  auto* label1 = new QLabel(QStringLiteral("How to play Quorbit"), this);
  label1->setFont(ArialFont(16, true));
  heading->addWidget(label1, 1);
  layout->addLayout(heading);

  auto* frame2 = new QGroupBox(this);
  auto* selector = new QHBoxLayout(frame2);
  auto* group = new QButtonGroup(this);
  const char* const kOptions[3] = {"Idea", "Shortcuts", "Colours"};
  for (int i = 0; i < 3; ++i) {
    auto* option = new QRadioButton(QString::fromLatin1(kOptions[i]), frame2);
    selector->addWidget(option);
    group->addButton(option, i);
    option1_[static_cast<size_t>(i)] = option;
  }
  layout->addWidget(frame2);
  connect(group, &QButtonGroup::idClicked, this, &Instructions::Option1Click);

  // The three pages share one place; only the chosen one is shown.
  auto* pages = new QGridLayout;
  for (int i = 0; i < 3; ++i) {
    frame1_[static_cast<size_t>(i)] = MakePage(kPages[i], this);
    pages->addWidget(frame1_[static_cast<size_t>(i)], 0, 0);
  }
  layout->addLayout(pages, 1);

  ok_ = new QPushButton(QStringLiteral("OK"), this);
  ok_->setDefault(true);
  connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(ok_);
  layout->addLayout(buttons);

  setFixedWidth(Twips(4695) * 5 / 4);
  option1_[0]->setChecked(true);
  Option1Click(0);
}

void Instructions::Option1Click(int page) {
  for (QFrame* f : frame1_) f->hide();
  if (page >= 0 && page < 3) frame1_[static_cast<size_t>(page)]->show();
}

}  // namespace qb::ui
