// quorbit-edit: the level editor. An optional argument names a level file to open.
#include <QApplication>

#include "app/editor/main_window.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("Quorbit2");
  QApplication::setApplicationDisplayName("Quorbit 2 Level Editor");
  qb::editor::MainWindow window;
  window.show();
  const QStringList args = QApplication::arguments();
  if (args.size() > 1) window.OpenFile(args.at(1));
  return QApplication::exec();
}
