// The level chooser: a tier, a level up to the highest reached in it, Play or Cancel.
#include "ui/screens/choose_level.h"

#include <QLabel>
#include <QMouseEvent>
#include <QStyle>

#include "core/level_file.h"
#include "core/records.h"
#include "ui/screens/art.h"
#include "ui/screens/screen_style.h"
#include "ui/screens/screens.h"

namespace qb::ui {

namespace {
const char* const kTierNames[4] = {"Beginner", "Intermediate", "Advanced", "Expert"};

bool IsTier(long t) {
  return t >= 0 && t <= 3;
}

SettingsStore* recordStore = nullptr;

std::string LevelKey(int tier, int number) {
  return kTierNames[tier] + std::to_string(number);
}
}  // namespace

void SetChooserRecords(SettingsStore* store) {
  recordStore = store;
}

void HiddenClickArea::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
    emit clicked();
}

ChooseLevel::ChooseLevel(Game& g, QWidget* parent) : QDialog(parent), g_(g) {
  setWindowTitle(QStringLiteral("Choose Level"));
  setModal(true);
  // Taller than the list needs: the selected level's title and record go under it.
  setFixedSize(Twips(4800), Twips(4140));

  auto* label1 = new QLabel(QStringLiteral("Choose Level"), this);
  label1->setFont(ArialFont(16, true));
  label1->setGeometry(Twips(240), Twips(120), Twips(3000), Twips(480));
  auto* line1 = new RuleLine(this);
  line1->setGeometry(Twips(240), Twips(600), Twips(4320), 4);

  for (int t = 0; t < 4; ++t) {
    auto* option = new QRadioButton(QString::fromLatin1(kTierNames[t]), this);
    option->setGeometry(Twips(240), Twips(840 + 390 * t), Twips(1560), Twips(360));
    tiers_.addButton(option, t);
    option1_[static_cast<size_t>(t)] = option;
  }
  option1_[0]->setChecked(true);
  connect(&tiers_, &QButtonGroup::idClicked, this, &ChooseLevel::Option1Click);

  list1_ = new QListWidget(this);
  list1_->setGeometry(Twips(1920), Twips(840), Twips(1320), Twips(2520));
  list1_->setSelectionMode(QAbstractItemView::SingleSelection);
  connect(list1_, &QListWidget::itemDoubleClicked, this, &ChooseLevel::Play);
  connect(list1_, &QListWidget::currentRowChanged, this, &ChooseLevel::ShowRecord);
  // The mark of a won level no taller than the text, so the rows keep their height.
  const int mark = list1_->fontMetrics().height() - 2;
  list1_->setIconSize(QSize(mark, mark));
  record_ = new QLabel(this);
  record_->setObjectName("Record");
  record_->setGeometry(Twips(240), Twips(3420), Twips(4320), Twips(600));
  record_->setWordWrap(true);

  auto* image1 = new ArtView(QStringLiteral("chooser"), QSize(Twips(1200), Twips(1200)), this);
  image1->move(Twips(3420), Twips(840));

  play_ = new QPushButton(QStringLiteral("Play"), this);
  play_->setGeometry(Twips(3420), Twips(2520), Twips(1140), Twips(375));
  play_->setDefault(true);
  play_->setAutoDefault(true);
  connect(play_, &QPushButton::clicked, this, &ChooseLevel::Play);
  // Esc reaches QDialog::reject, which is what Cancel does.
  cancel_ = new QPushButton(QStringLiteral("Cancel"), this);
  cancel_->setGeometry(Twips(3420), Twips(2985), Twips(1140), Twips(375));
  cancel_->setAutoDefault(false);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);

  image3_ = new HiddenClickArea(this);
  image3_->setGeometry(Twips(4440), 0, Twips(135), Twips(135));
  connect(image3_, &HiddenClickArea::clicked, this, [this] { SetAllHighest(20); });
  image2_ = new HiddenClickArea(this);
  image2_->setGeometry(Twips(120), Twips(3240), Twips(255), Twips(135));
  connect(image2_, &HiddenClickArea::clicked, this, [this] { SetAllHighest(1); });
  image2_->raise();
  image3_->raise();

  FormLoad();
}

int ChooseLevel::SelectedTier() const {
  for (int t = 0; t < 4; ++t)
    if (option1_[static_cast<size_t>(t)]->isChecked()) return t;
  return 0;
}

void ChooseLevel::FormLoad() {
  list1_->clear();
  if (g_.CurrentSkill == 4) g_.CurrentSkill = 3;
  // A tier read from damaged settings shows the first tier rather than failing.
  const int tier = IsTier(g_.CurrentSkill) ? g_.CurrentSkill : 0;
  FillList(g_.HighestLevel(tier));
  option1_[static_cast<size_t>(tier)]->setChecked(true);
  Option1Click(tier);
}

void ChooseLevel::Option1Click(int tier) {
  if (!IsTier(tier)) return;
  FillList(g_.HighestLevel(tier));
  if (QListWidgetItem* last = list1_->currentItem())
    list1_->scrollToItem(last, QAbstractItemView::PositionAtTop);
}

// "Level 1" to "Level highest", the last one selected.
void ChooseLevel::FillList(int highest) {
  list1_->clear();
  const int tier = SelectedTier();
  const QIcon won = style()->standardIcon(QStyle::SP_DialogApplyButton);
  for (int n = 1; n <= highest; ++n) {
    auto* item = new QListWidgetItem(QStringLiteral("Level %1").arg(n), list1_);
    if (recordStore && ReadRecord(*recordStore, LevelKey(tier, n))) item->setIcon(won);
  }
  list1_->setCurrentRow(list1_->count() - 1);
  ShowRecord();
}

void ChooseLevel::ShowRecord() {
  const int tier = SelectedTier(), number = list1_->currentRow() + 1;
  if (number < 1) {
    record_->clear();
    return;
  }
  const FileRead file = g_.host->ReadFile(LevelPath(g_, tier, number));
  const std::string title = file.bytes ? ReadLevel(*file.bytes).data.Title : "";
  QString text = QString::fromLatin1(title.data(), static_cast<int>(title.size()));
  const auto record = recordStore ? ReadRecord(*recordStore, LevelKey(tier, number)) : std::nullopt;
  text += "\n" + (record ? "Best: " + QString::fromStdString(RecordText(*record)) : "Not won yet");
  record_->setText(text);
}

void ChooseLevel::Play() {
  chosen_ = std::make_pair(SelectedTier(), list1_->currentRow() + 1);
  accept();
}

void ChooseLevel::SetAllHighest(int level) {
  for (int t = 0; t < 4; ++t) g_.HighestLevel(t) = static_cast<int16_t>(level);
  FormLoad();
}

}  // namespace qb::ui
