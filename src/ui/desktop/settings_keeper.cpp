// Keeps the stored settings up to date while the game runs, so that a crash loses nothing.
#include "ui/desktop/settings_keeper.h"

namespace qb::ui {
namespace {

// What SaveSettings would write, to compare with the last write.
class Snapshot : public SettingsStore {
 public:
  std::optional<std::string> Get(const std::string&, const std::string&) override { return {}; }
  void Set(const std::string& section, const std::string& key, const std::string& value) override {
    values[section + "/" + key] = value;
  }
  std::map<std::string, std::string> values;
};

std::map<std::string, std::string> SettingsOf(const Game& g) {
  Snapshot now;
  SaveSettings(g, now);
  return now.values;
}

}  // namespace

SettingsKeeper::SettingsKeeper(QSettingsStore& store, const Game& g, Report report)
    : store_(store), report_(std::move(report)), tried_(SettingsOf(g)) {}

void SettingsKeeper::SaveIfChanged(const Game& g) {
  if (SettingsOf(g) != tried_) Save(g);
}

void SettingsKeeper::Save(const Game& g) {
  tried_ = SettingsOf(g);  // set first: the report below may lead straight back here
  SaveSettings(g, store_);
  if (store_.Flush() || !report_) return;
  report_("Your progress and options could not be saved to the file\n" +
          store_.FileName().toStdString() +
          "\n\nCheck that the file and its folder can be written. Saving is tried again at "
          "the next change and at exit.");
}

}  // namespace qb::ui
