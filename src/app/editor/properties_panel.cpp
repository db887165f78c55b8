// The level's settings panel.
#include "app/editor/properties_panel.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <limits>

#include "app/editor/grid_edits.h"
#include "app/editor/level_document.h"
#include "core/picture.h"
#include "leveltext/level_legend.h"
#include "leveltext/level_ranges.h"
#include "leveltext/level_text.h"

namespace qb::editor {
namespace {

QString Utf8(std::string_view s) {
  return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

}  // namespace

PropertiesPanel::PropertiesPanel(LevelDocument& doc, QWidget* parent) : QWidget(parent), doc_(doc) {
  using namespace leveltext;
  auto* form = new QFormLayout(this);
  title_ = new QLineEdit(this);
  title_->setMaxLength(255);
  form->addRow("Title", title_);
  tier_ = new QComboBox(this);
  for (int t = 0; t < kTierCount; ++t) tier_->addItem(Utf8(TierName(t)));
  form->addRow("Tier", tier_);
  AddSpin(form, "number", kNumberRange.lo, kNumberRange.hi);
  AddSpin(form, "characters", kCharactersRange.lo, kCharactersRange.hi);
  AddSpin(form, "needed", kCountRange.lo, kCountRange.hi);
  AddSpin(form, "time", 0, std::numeric_limits<int>::max());
  AddSpin(form, "release", kCountRange.lo, kCountRange.hi);
  for (int t = 0; t < kToolCount; ++t)
    AddSpin(form, Utf8(ToolName(t)), kCountRange.lo, kCountRange.hi);
  AddSpin(form, "width", 1, 120);
  AddSpin(form, "height", 1, 80);
  AddSpin(form, "view x", kViewColumnRange.lo, kViewColumnRange.hi);
  AddSpin(form, "view y", kViewRowRange.lo, kViewRowRange.hi);

  connect(title_, &QLineEdit::editingFinished, this, &PropertiesPanel::Apply);
  connect(tier_, &QComboBox::activated, this, &PropertiesPanel::Apply);
  connect(&doc_, &LevelDocument::changed, this, &PropertiesPanel::Show);
  Show();
}

QSpinBox* PropertiesPanel::AddSpin(QFormLayout* form, const QString& name, int lo, int hi) {
  auto* spin = new QSpinBox(this);
  spin->setRange(lo, hi);
  spin->setObjectName(name);
  QString label = name;
  label[0] = label[0].toUpper();
  form->addRow(label, spin);
  spins_.emplace_back(name, spin);
  connect(spin, &QSpinBox::editingFinished, this, &PropertiesPanel::Apply);
  return spin;
}

QSpinBox* PropertiesPanel::Spin(const QString& name) const {
  for (const auto& [n, spin] : spins_)
    if (n == name) return spin;
  return nullptr;
}

void PropertiesPanel::Show() {
  const LevelData& d = doc_.Data();
  const QSignalBlocker blockTitle(title_), blockTier(tier_);
  title_->setText(QString::fromStdString(leveltext::Latin1ToUtf8(d.Title)));
  tier_->setCurrentIndex(d.Skill);
  const int values[] = {d.Number,          d.CharactersTotal, d.CharactersNeeded, d.TimeLeft,
                        d.ReleaseInterval, d.ToolStock[0],    d.ToolStock[1],     d.ToolStock[2],
                        d.ToolStock[3],    d.ToolStock[4],    d.ToolStock[5],     d.ToolStock[6],
                        d.ToolStock[7],    d.GridWidth,       d.GridHeight,       d.StartViewX,
                        d.StartViewY};
  for (std::size_t i = 0; i < spins_.size(); ++i) {
    const QSignalBlocker block(spins_[i].second);
    spins_[i].second->setValue(values[i]);
  }
}

void PropertiesPanel::Apply() {
  LevelData d = doc_.Data();
  // Titles are one byte a character in the file: characters beyond Latin-1 become "?".
  d.Title = title_->text().toLatin1().toStdString();
  d.Skill = tier_->currentIndex();
  auto value = [this](std::size_t i) { return spins_[i].second->value(); };
  d.Number = value(0);
  d.CharactersTotal = value(1);
  d.CharactersNeeded = static_cast<int16_t>(value(2));
  d.TimeLeft = value(3);
  d.ReleaseInterval = static_cast<int16_t>(value(4));
  for (std::size_t t = 0; t < d.ToolStock.size(); ++t)
    d.ToolStock[t] = static_cast<int16_t>(value(5 + t));
  if (value(13) != d.GridWidth || value(14) != d.GridHeight) Resize(d, value(13), value(14));
  d.StartViewX = value(15);
  d.StartViewY = static_cast<int16_t>(value(16));
  doc_.Edit("Change Properties", d);
}

}  // namespace qb::editor
