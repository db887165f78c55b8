// The settings store on QSettings: organisation and application "Quorbit2", one group a section.
#pragma once

#include <QSettings>
#include <memory>

#include "core/settings.h"

namespace qb::ui {

class QSettingsStore : public SettingsStore {
 public:
  QSettingsStore();
  std::optional<std::string> Get(const std::string& section, const std::string& key) override;
  void Set(const std::string& section, const std::string& key, const std::string& value) override;
  // Writes what was set to the disk now; false when it could not be written. After a failure
  // the next Set starts afresh, so that the next write is tried again (QSettings keeps its first
  // error for good).
  bool Flush();
  QString FileName() const { return settings_->fileName(); }

 private:
  std::unique_ptr<QSettings> settings_;
  bool failed_ = false;
};

}  // namespace qb::ui
