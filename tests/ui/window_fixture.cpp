// A play window over a game whose levels live in a temporary program folder.
#include "window_fixture.h"

#include <QDir>
#include <QFile>
#include <QSettings>

#include "test_levels.h"

namespace qb::test {

Window::Window() {
  QDir(folder.path()).mkpath("program/Levels");
  g.ProgramFolder = Folder().toStdString();
  g.ui.OptionsChecked(OptMusic) = false;
  g.ui.OptionsChecked(OptSound) = false;
  g.ui.OptionsChecked(OptReplay) = true;
  g.ui.Timer1Interval = 350;
  WriteBeginner(1, WalkLevel(1, "Walk To The Door"));
  WriteBeginner(2, WalkLevel(2, "Walk Again"));
  host.SetScreenShower([this](Screen s, const ScreenTexts&) { screens.push_back(s); });
  host.SetMessageShower(
      [this](const std::string& text, const std::string&) { messages.push_back(text); });
  desk = std::make_unique<ui::DeskTop>(g);
  host.SetWindow(desk.get());
  desk->SetFaultReport([this](QWidget*, const QString& what) {
    faults.push_back(what);
    return faultAnswer;
  });
  desk->resize(1000, 800);
  desk->show();
}

QString Window::Folder() const {
  return folder.path() + "/program";
}

void Window::WriteBeginner(int number, const LevelData& level) {
  QFile file(QDir(Folder()).filePath(QString("Levels/Beginner%1.lvl").arg(number)));
  file.open(QIODevice::WriteOnly);
  const auto bytes = WriteLevel(level);
  file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
}

void Window::Play(int number) {
  desk->PlayLevel(0, number);
}

void Window::Ticks(int n) {
  for (int i = 0; i < n; ++i) desk->Tick();
}

void ClearStoredSettings() {
  QSettings(QSettings::NativeFormat, QSettings::UserScope, "Quorbit2", "Quorbit2").clear();
}

}  // namespace qb::test
