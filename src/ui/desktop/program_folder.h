// Finds the program's folder: the one that holds Levels/ and Music/.
#pragma once

#include <QString>
#include <QStringList>

namespace qb::ui {

// The executable's folder when it holds Levels/, else the first of `dataFolders` that does,
// else the executable's folder. The result is UTF-8 ready (QString::toStdString).
QString FindProgramFolder(const QString& executableFolder, const QStringList& dataFolders);

// Where an installed game keeps its data: the install's data folder found from the executable's
// folder, the standard per-user and system data folders ("quorbit2" in each), then the data
// folder under the configured prefix.
QStringList InstalledDataFolders(const QString& executableFolder);

}  // namespace qb::ui
