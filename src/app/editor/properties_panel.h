// The level's settings: title, tier, number, characters, needed, time, release interval, the
// tools' stock, the size and the start view. Each change is one undoable edit.
#pragma once

#include <QWidget>
#include <array>

class QComboBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

namespace qb::editor {

class LevelDocument;

class PropertiesPanel : public QWidget {
  Q_OBJECT
 public:
  explicit PropertiesPanel(LevelDocument& doc, QWidget* parent = nullptr);

  QLineEdit* TitleEdit() const { return title_; }
  QComboBox* TierBox() const { return tier_; }
  // "number", "characters", "needed", "time", "release", "width", "height", "view x", "view y",
  // or a tool's name: the spin box of that value.
  QSpinBox* Spin(const QString& name) const;

 private:
  void Show();
  void Apply();
  QSpinBox* AddSpin(QFormLayout* form, const QString& name, int lo, int hi);

  LevelDocument& doc_;
  QLineEdit* title_;
  QComboBox* tier_;
  std::vector<std::pair<QString, QSpinBox*>> spins_;
};

}  // namespace qb::editor
