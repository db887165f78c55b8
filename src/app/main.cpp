// quorbit2: the game. Starts the play window; options for unattended runs are listed by --help.
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QKeySequence>
#include <iostream>

#include "app/autopilot.h"
#include "app/start_up.h"
#include "core/file_read.h"
#include "ui/desktop/program_folder.h"
#include "ui/desktop/qsettings_store.h"
#include "ui/desktop/qt_host.h"
#include "ui/screens/screens.h"

namespace {

// "Beginner 1", "intermediate 7" or "0 1": a tier and a level number.
bool ParseStart(const QString& text, qb::Game& g, qb::app::FirstLevel& first) {
  const QStringList parts = text.split(' ', Qt::SkipEmptyParts);
  if (parts.size() != 2) return false;
  bool ok = false;
  int tier = parts[0].toInt(&ok);
  if (!ok) {
    tier = -1;
    for (int t = 0; t < 4; ++t)
      if (parts[0].compare(QString::fromStdString(g.SkillName(t)), Qt::CaseInsensitive) == 0)
        tier = t;
  }
  const int number = parts[1].toInt(&ok);
  if (tier < 0 || tier > 3 || !ok || number < 1 || number > 20) return false;
  first = {tier, number};
  return true;
}

// "12:3,40:Return": the key is pressed and released when that many cycles have run.
bool ParseKeys(const QString& text, std::vector<std::pair<long, int>>& keys) {
  for (const QString& item : text.split(',', Qt::SkipEmptyParts)) {
    const QStringList pair = item.split(':');
    bool ok = false;
    const long cycle = pair.value(0).toLong(&ok);
    const QKeySequence key(pair.value(1));
    if (!ok || pair.size() != 2 || key.isEmpty()) return false;
    keys.emplace_back(cycle, key[0].key());
  }
  return true;
}

// The replay text, or empty after saying why it cannot be read.
QString ReadReplay(const QString& path) {
  const qb::FileRead read = qb::ReadSmallFile(path.toStdString(), qb::kMaxTextFileBytes);
  if (!read.bytes || read.bytes->empty()) {
    std::cerr << "cannot read the replay " << path.toStdString() << ": "
              << (read.bytes ? "it is empty" : read.error) << "\n";
    return {};
  }
  return QString::fromUtf8(reinterpret_cast<const char*>(read.bytes->data()),
                           static_cast<qsizetype>(read.bytes->size()));
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  QApplication::setOrganizationName("Quorbit2");
  QApplication::setApplicationName("Quorbit2");
  QApplication::setWindowIcon(qb::ui::AppIcon());

  QCommandLineParser parser;
  parser.setApplicationDescription("Quorbit 2, the puzzle game.");
  parser.addHelpOption();
  const QCommandLineOption start("start", "Play TIER N at once instead of choosing.", "TIER N");
  const QCommandLineOption folder("program-folder", "Read Levels/ and Music/ from DIR.", "DIR");
  const QCommandLineOption fast("fast", "Switch to fast play when the level runs.");
  const QCommandLineOption keys("keys", "Press keys at cycles: CYCLE:KEY,...", "LIST");
  const QCommandLineOption replay("replay", "Replay the tools of FILE in the first level.", "FILE");
  const QCommandLineOption shots(
      "shots", "Answer modal screens with Enter, saving their pictures in DIR.", "DIR");
  const QCommandLineOption delay("screen-delay-ms", "How long screens stay up for --shots.", "MS",
                                 "1800");
  const QCommandLineOption quit("quit-after-ms", "Close the window after MS.", "MS");
  const QCommandLineOption shot("screenshot", "Save the window's picture at the end.", "FILE");
  const QCommandLineOption report("report", "Print the cycles run and the squares painted.");
  parser.addOptions({start, folder, fast, keys, replay, shots, delay, quit, shot, report});
  parser.process(app);

  qb::ui::QtHost host;
  qb::Game game(host);
  const QString exeFolder = QApplication::applicationDirPath();
  game.ProgramFolder =
      (parser.isSet(folder)
           ? QDir(parser.value(folder)).absolutePath()
           : qb::ui::FindProgramFolder(exeFolder, qb::ui::InstalledDataFolders(exeFolder)))
          .toStdString();

  qb::app::FirstLevel first;
  if (parser.isSet(start) && !ParseStart(parser.value(start), game, first)) {
    std::cerr << "--start wants a tier and a level, for example \"Beginner 1\"\n";
    return 2;
  }
  qb::app::AutopilotOptions pilot;
  pilot.shotsFolder = parser.value(shots);
  pilot.screenDelayMs = parser.value(delay).toInt();
  pilot.fast = parser.isSet(fast);
  pilot.quitAfterMs = parser.value(quit).toInt();
  pilot.finalShot = parser.value(shot);
  pilot.report = parser.isSet(report);
  if (parser.isSet(keys) && !ParseKeys(parser.value(keys), pilot.keys)) {
    std::cerr << "--keys wants CYCLE:KEY pairs, for example 30:3,60:Return\n";
    return 2;
  }
  if (parser.isSet(replay)) {
    pilot.replayText = ReadReplay(parser.value(replay));
    if (pilot.replayText.isEmpty()) return 2;
  }
  const bool unattended = !pilot.shotsFolder.isEmpty() || pilot.quitAfterMs > 0;
  qb::app::Autopilot autopilot(pilot);
  if (unattended) autopilot.Start();

  qb::ui::QSettingsStore store;
  const auto desk = qb::app::StartUp(game, store, qb::app::GameSteps(), std::cerr, first);
  if (unattended) {
    autopilot.Attach(desk.get());
    if (!autopilot.StartReplay(game)) return 2;
  }
  const int status = desk->isVisible() ? app.exec() : 0;
  store.Flush();
  return status;
}
