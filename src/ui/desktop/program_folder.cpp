// Finds the program's folder: the one that holds Levels/ and Music/.
#include "ui/desktop/program_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "ui/desktop/install_paths.h"

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
  // The install's own data first, so that a second install elsewhere does not shadow it.
  QStringList folders{QDir(executableFolder).filePath(QString::fromUtf8(kDataFolderFromBinary))};
  for (const QString& base : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
    folders << QDir(base).filePath("quorbit2");
  folders << QString::fromUtf8(kInstalledDataFolder);
  return folders;
}

}  // namespace qb::ui
