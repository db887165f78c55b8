// The editor's window: opening and saving, and keeping unsaved changes from being lost.
#include <QFileDialog>
#include <QFileInfo>
#include <QStatusBar>

#include "app/editor/main_window.h"

namespace qb::editor {

bool MainWindow::MaybeKeepChanges() {
  if (!doc_.Modified()) return true;
  switch (askToSave()) {
    case QMessageBox::Save:
      return SaveTo(doc_.Path());
    case QMessageBox::Discard:
      return true;
    default:
      return false;
  }
}

bool MainWindow::OpenFile(const QString& path) {
  if (!MaybeKeepChanges()) return false;
  QString error;
  if (!doc_.Open(path, error)) {
    report(error);
    return false;
  }
  FitToWindow();
  statusBar()->showMessage("Opened " + path, 4000);
  return true;
}

bool MainWindow::SaveTo(const QString& path) {
  QString target = path;
  if (target.isEmpty()) {
    target = QFileDialog::getSaveFileName(this, "Save Level", QFileInfo(doc_.Path()).path(),
                                          "Level files (*.lvl);;Level texts (*.txt)");
    if (target.isEmpty()) return false;
    if (QFileInfo(target).suffix().isEmpty()) target += ".lvl";
  }
  QString error;
  if (!doc_.Save(target, error)) {
    report("The level was not saved: " + error);
    return false;
  }
  statusBar()->showMessage("Saved " + target, 4000);
  return true;
}

}  // namespace qb::editor
