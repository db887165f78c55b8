// The level being edited: its data, its file, and the undo stack every change goes through.
#include "app/editor/level_document.h"

#include <QUndoCommand>

#include "core/file_read.h"
#include "leveltext/level_files.h"
#include "leveltext/level_problems.h"
#include "leveltext/level_text.h"

namespace qb::editor {
namespace {

// A change kept as the whole level before and after it: a level is a few kilobytes, and one
// kind of command then serves every edit alike.
class LevelChange : public QUndoCommand {
 public:
  LevelChange(LevelDocument& doc, LevelData before, LevelData after, const QString& text)
      : QUndoCommand(text), doc_(doc), before_(std::move(before)), after_(std::move(after)) {}
  void undo() override { doc_.Set(before_); }
  void redo() override { doc_.Set(after_); }

 private:
  LevelDocument& doc_;
  LevelData before_, after_;
};

bool IsText(const QString& path) {
  return path.endsWith(".txt", Qt::CaseInsensitive);
}

// The comment lines at the top of a level text, which the parser skips.
std::string LeadingComments(const std::string& text) {
  std::size_t end = 0;
  while (end < text.size() && text[end] == '#') {
    const auto eol = text.find('\n', end);
    if (eol == std::string::npos) return text;
    end = eol + 1;
  }
  return text.substr(0, end);
}

}  // namespace

LevelDocument::LevelDocument(QObject* parent) : QObject(parent) {
  NewLevel();
}

void LevelDocument::NewLevel() {
  LevelData d;
  d.Title = "New Level";
  d.Number = 1;
  d.CharactersTotal = 10;
  d.CharactersNeeded = 5;
  d.TimeLeft = 300;
  d.ReleaseInterval = 4;
  d.GridWidth = 40;
  d.GridHeight = 40;
  d.Squares.assign(40 * 40, 0);
  undo_.clear();
  textPreamble_.clear();
  openedText_.clear();
  path_.clear();
  Set(d);
  Q_EMIT pathChanged();
  Q_EMIT replaced();
}

bool LevelDocument::Open(const QString& path, QString& error) {
  const std::string name = path.toStdString();
  const FileRead file = ReadSmallFile(name, kMaxLevelFileBytes);
  if (!file.bytes) {
    error = QString::fromStdString("Cannot read " + name + ": " + file.error);
    return false;
  }
  LevelData read;
  std::string preamble, text;
  if (IsText(path)) {
    text.assign(file.bytes->begin(), file.bytes->end());
    const leveltext::ParsedLevel parsed = leveltext::ParseLevelText(text);
    if (!parsed.ok()) {
      std::string all;
      for (const leveltext::Diagnostic& d : parsed.diagnostics)
        if (!d.warning) all += leveltext::FormatDiagnostic(name, d) + "\n";
      error = QString::fromStdString(all).trimmed();
      return false;
    }
    read = parsed.data;
    preamble = LeadingComments(text);
  } else {
    if (auto refusal = leveltext::LoaderRefusal(*file.bytes, name)) {
      error = QString::fromStdString(*refusal);
      return false;
    }
    read = ReadLevel(*file.bytes).data;
  }
  undo_.clear();
  textPreamble_ = preamble;
  openedText_ = text;
  openedData_ = read;
  path_ = path;
  Set(read);
  Q_EMIT pathChanged();
  Q_EMIT replaced();
  return true;
}

std::string LevelDocument::FileBytes(const QString& path) const {
  if (IsText(path)) {
    if (!openedText_.empty() && data_ == openedData_) return openedText_;
    return textPreamble_ + leveltext::PrintLevelText(data_);
  }
  const std::vector<uint8_t> bytes = WriteLevel(data_);
  return {bytes.begin(), bytes.end()};
}

bool LevelDocument::Save(const QString& path, QString& error) {
  const std::string bytes = FileBytes(path);
  std::string why;
  if (!leveltext::WriteFileAtomically(path.toStdString(), {bytes.begin(), bytes.end()}, why)) {
    error = QString::fromStdString(why);
    return false;
  }
  undo_.setClean();
  if (path != path_) {
    path_ = path;
    Q_EMIT pathChanged();
  }
  return true;
}

void LevelDocument::Edit(const QString& what, const LevelData& after) {
  if (after == data_) return;
  undo_.push(new LevelChange(*this, data_, after, what));
}

void LevelDocument::Set(const LevelData& d) {
  data_ = d;
  Q_EMIT changed();
}

}  // namespace qb::editor
