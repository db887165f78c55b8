// The level being edited: its data, its file, and the undo stack every change goes through.
#pragma once

#include <QObject>
#include <QString>
#include <QUndoStack>
#include <string>

#include "core/level_file.h"

namespace qb::editor {

class LevelDocument : public QObject {
  Q_OBJECT
 public:
  explicit LevelDocument(QObject* parent = nullptr);

  const LevelData& Data() const { return data_; }
  QUndoStack& Undo() { return undo_; }
  const QString& Path() const { return path_; }  // empty for a level never saved
  bool Modified() const { return !undo_.isClean(); }

  // A 40 by 40 level with nothing in it, not yet saved anywhere.
  void NewLevel();
  // Reads a .txt level with the text parser and anything else as a binary level. A file the game
  // or the parser refuses leaves the document as it was and puts their message in `error`.
  bool Open(const QString& path, QString& error);
  // Writes text for a .txt path, else the binary file; nothing is lost when the write fails.
  bool Save(const QString& path, QString& error);
  // The level as its file holds it: text or binary bytes.
  std::string FileBytes(const QString& path) const;

  // One undoable change, from the data as it is now to `after`.
  void Edit(const QString& what, const LevelData& after);
  // Sets the data without a new undo step (the undo stack's own use).
  void Set(const LevelData& d);

 Q_SIGNALS:
  void changed();
  void pathChanged();
  void replaced();  // another level took the place of the one edited (new or opened)

 private:
  LevelData data_;
  QString path_;
  std::string textPreamble_;  // the comment lines above a text level's keys, kept on save
  // A text level as it was opened: saved as it is while the level is unchanged, so its author's
  // order of keys and lines stays as long as nothing is edited.
  std::string openedText_;
  LevelData openedData_;
  QUndoStack undo_;
};

}  // namespace qb::editor
