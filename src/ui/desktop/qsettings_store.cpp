// The settings store on QSettings: organisation and application "Quorbit2", one group a section.
#include "ui/desktop/qsettings_store.h"

namespace qb::ui {
namespace {

QString KeyOf(const std::string& section, const std::string& key) {
  return QString::fromStdString(section + "/" + key);
}

std::unique_ptr<QSettings> OpenStore() {
  return std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope, "Quorbit2",
                                     "Quorbit2");
}

}  // namespace

QSettingsStore::QSettingsStore() : settings_(OpenStore()) {}

bool QSettingsStore::Flush() {
  settings_->sync();
  failed_ = settings_->status() != QSettings::NoError;
  return !failed_;
}

std::optional<std::string> QSettingsStore::Get(const std::string& section, const std::string& key) {
  const QVariant v = settings_->value(KeyOf(section, key));
  if (!v.isValid()) return std::nullopt;
  return v.toString().toStdString();
}

void QSettingsStore::Set(const std::string& section, const std::string& key,
                         const std::string& value) {
  if (failed_) settings_ = OpenStore();
  failed_ = false;
  settings_->setValue(KeyOf(section, key), QString::fromStdString(value));
}

}  // namespace qb::ui
