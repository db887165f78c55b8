// Finds the program's folder: the one that holds Levels/ and Music/.
#include "ui/desktop/program_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace qb::ui {
namespace {

bool HoldsLevels(const QString& folder) {
  return QFileInfo(QDir(folder).filePath("Levels")).isDir();
}

}  // namespace

QString FindProgramFolder(const QString& executableFolder, const QStringList& dataFolders) {
  if (HoldsLevels(executableFolder)) return QDir::cleanPath(executableFolder);
  for (const QString& folder : dataFolders)
    if (HoldsLevels(folder)) return QDir::cleanPath(folder);
  return QDir::cleanPath(executableFolder);
}

QStringList InstalledDataFolders(const QString& executableFolder) {
  QStringList folders;
  for (const QString& base : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
    folders << QDir(base).filePath("quorbit2");
  folders << QDir(executableFolder).filePath("../share/quorbit2");
  folders << QStringLiteral(QUORBIT_INSTALL_DATA_DIR);
  return folders;
}

}  // namespace qb::ui
