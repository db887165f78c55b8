// The about box: the game's name, version and date, how and by whom it was made, and OK.
#include "ui/screens/about_box.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/screens/art.h"
#include "ui/screens/screen_style.h"

namespace qb::ui {

AboutBox::AboutBox(QWidget* parent) : QDialog(parent) {
  setWindowTitle(QStringLiteral("About Quorbit"));
  setModal(true);

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(18, 18, 18, 14);
  layout->setSpacing(18);
  layout->addWidget(new ArtView(QStringLiteral("about"), QSize(96, 96), this), 0, Qt::AlignTop);

  auto* column = new QVBoxLayout;
  auto* name = new QLabel(QStringLiteral("Quorbit 2"), this);
  name->setFont(ArialFont(18, true));
  column->addWidget(name);
  column->addWidget(new QLabel(QStringLiteral("Version 1"), this));
  column->addWidget(new QLabel(QStringLiteral("September, 1999"), this));
  column->addWidget(new RuleLine(this));
  column->addWidget(new QLabel(QStringLiteral("Written in C++ with Qt 6"), this));
  column->addWidget(new QLabel(QStringLiteral("The Quorbit 2 team"), this));
  column->addWidget(new QLabel(QStringLiteral("quorbit2@users.noreply.invalid"), this));
  column->addSpacing(8);

  auto* ok = new QPushButton(QStringLiteral("OK"), this);
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(ok);
  column->addLayout(buttons);
  layout->addLayout(column, 1);
}

}  // namespace qb::ui
