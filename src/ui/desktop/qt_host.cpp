// The host of the rules in the game: sound and music, the modal screens, message boxes, files.
#include "ui/desktop/qt_host.h"

#include <QMessageBox>
#include <iostream>

#include "core/level_file.h"
#include "ui/desktop/desk_top.h"

#ifdef QUORBIT_HAVE_SCREENS
#include "ui/screens/screens.h"
#endif
#ifdef QUORBIT_HAVE_AUDIO
#include "audio/audio.h"
#else
namespace qb {
class Audio {};  // no sound library in this build: the game is silent
}  // namespace qb
#endif

namespace qb::ui {

#ifdef QUORBIT_HAVE_AUDIO
QtHost::QtHost() : audio_(std::make_unique<Audio>()) {
  if (!audio_->Open()) audio_.reset();  // no sound device: the game plays silently
}
#else
QtHost::QtHost() = default;
#endif

QtHost::~QtHost() = default;

void QtHost::PlaySound([[maybe_unused]] std::string_view type, [[maybe_unused]] int number) {
#ifdef QUORBIT_HAVE_AUDIO
  if (audio_) audio_->PlayEffect(type, number);
#endif
}

void QtHost::SetMusicFileName([[maybe_unused]] const std::string& path) {
#ifdef QUORBIT_HAVE_AUDIO
  if (audio_) audio_->SetMusicFileName(path);
#endif
}

void QtHost::SendMusicCommand([[maybe_unused]] MusicCommand command) {
#ifdef QUORBIT_HAVE_AUDIO
  if (audio_) audio_->SendMusicCommand(command);
#endif
}

int QtHost::MusicMode() {
#ifdef QUORBIT_HAVE_AUDIO
  if (audio_) return audio_->MusicMode();
#endif
  return 0;
}

void QtHost::ShowScreen(Screen screen, const ScreenTexts& texts) {
  // The window shows what the rules drew so far (the new level behind a title card) and holds
  // its timers while the screen is up.
  if (window_) window_->EnterModal();
  if (screenShower_) {
    screenShower_(screen, texts);
  } else {
#ifdef QUORBIT_HAVE_SCREENS
    qb::ui::ShowScreen(window_, screen, texts);
#endif
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
