// The host of the rules in the game: sound and music, the modal screens, message boxes, files.
#include "ui/desktop/qt_host.h"

#include <QMessageBox>
#include <iostream>

#include "audio/audio.h"
#include "core/level_file.h"
#include "ui/desktop/desk_top.h"
#include "ui/screens/screens.h"

namespace qb::ui {

QtHost::QtHost() : audio_(std::make_unique<Audio>()) {
  if (!audio_->Open()) audio_.reset();  // no sound device: the game plays silently
}

QtHost::~QtHost() = default;

void QtHost::PlaySound(std::string_view type, int number) {
  if (audio_) audio_->PlayEffect(type, number);
}

void QtHost::SetMusicFileName(const std::string& path) {
  if (audio_) audio_->SetMusicFileName(path);
}

void QtHost::SendMusicCommand(MusicCommand command) {
  if (audio_) audio_->SendMusicCommand(command);
}

int QtHost::MusicMode() {
  if (audio_) return audio_->MusicMode();
  return 0;
}

void QtHost::ShowScreen(Screen screen, const ScreenTexts& texts) {
  // The window shows what the rules drew so far (the new level behind a title card) and holds
  // its timers while the screen is up.
  if (window_) window_->EnterModal();
  if (screenShower_) {
    screenShower_(screen, texts);
  } else {
    qb::ui::ShowScreen(window_, screen, texts);
  }
  if (window_) window_->LeaveModal();
}

void QtHost::ShowMessage(const std::string& text, const std::string& title) {
  if (window_) window_->EnterModal();
  if (messageShower_) {
    messageShower_(text, title);
  } else {
    QMessageBox box(QMessageBox::Warning, QString::fromStdString(title),
                    QString::fromStdString(text), QMessageBox::Ok, window_);
    box.exec();
  }
  if (window_) window_->LeaveModal();
}

FileRead QtHost::ReadFile(const std::string& path) {
  return ReadSmallFile(path, kMaxLevelFileBytes);  // paths are UTF-8, as the system's are
}

void QtHost::Note(const std::string& text) {
  std::cerr << "quorbit2: " << text << std::endl;
}

}  // namespace qb::ui
