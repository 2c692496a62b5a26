#include "input_page.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "controls/string_align_grid.h"
#include "series/series_list.h"
#include "series/table_cells.h"
#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"
#include "output_pages.h"

namespace mainwin {
namespace {

template <typename Button>
Button* MakeButton(QWidget* parent, const char* name, const QString& caption, bool checked) {
  auto* button = new Button(caption, parent);
  button->setObjectName(name);
  button->setChecked(checked);
  return button;
}

void SetHint(QWidget* widget, const QString& hint) {
  widget->setToolTip(hint);
  widget->setStatusTip(hint);
}

double EntryValue(const QLineEdit* edit, double fallback) {
  const numerics::ParsedValue parsed = numerics::ParseValueText(edit->text().toStdString());
  return parsed.status == numerics::kParseDigitsRead ? parsed.value : fallback;
}

constexpr int kFileRows = static_cast<int>(series::kMaxSeriesFiles) + 1;  // row 0 is not used
constexpr int kFileColumnWidth = 234;

QToolButton* MakeToolButton(QWidget* parent, const char* name, QStyle::StandardPixmap icon, const QString& hint) {
  auto* button = new QToolButton(parent);
  button->setObjectName(name);
  button->setIcon(parent->style()->standardIcon(icon));
  SetHint(button, hint);
  return button;
}

QString PrefixedEntry(double value) {
  return ' ' + QString::fromStdString(numerics::FormatPrefixedField(7, 2, value));
}

}  // namespace

InputPage::InputPage(QWidget* parent) : QWidget(parent) {
  auto* layout = new QGridLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->addWidget(MakeFileList(), 0, 0, 3, 1);
  layout->addWidget(MakeEntries(), 0, 1);
  layout->addWidget(MakeMultiplier(), 0, 2);
  layout->addWidget(MakeOptions(), 1, 1, 2, 1);
  layout->addWidget(MakeXAxisChoice(), 1, 2);
  layout->addWidget(MakeActions(), 2, 2, Qt::AlignBottom);
  layout->setColumnStretch(0, 1);
}

// The series grid: one column, no header; row r shows file r, so row 0 stays hidden.
QWidget* InputPage::MakeFileList() {
  auto* column = new QWidget(this);
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins(0, 0, 0, 0);
  labelNo_ = new QLabel(column);
  labelNo_->setObjectName("LabelNo");
  ShowSeriesCount(0);
  stringGridFiles_ = new controls::TStringAlignGrid(1, kFileRows, column);
  stringGridFiles_->setObjectName("StringGridFiles");
  stringGridFiles_->SetDefaultColumnWidth(kFileColumnWidth);
  stringGridFiles_->SetDefaultRowHeight(18);
  stringGridFiles_->setRowHidden(0, true);
  stringGridFiles_->setFont(CompactFont(stringGridFiles_->font()));
  stringGridFiles_->setMinimumWidth(240);
  connect(stringGridFiles_, &QTableWidget::cellClicked, this, [this](int row) { emit FileRowSelected(row); });
  // A bin for the whole list, a clearing mark for the last file, so that the two look apart.
  auto* deleteList =
      MakeToolButton(column, "SpeedButtonDeleteList", QStyle::SP_DialogDiscardButton, tr("Delete Complete List"));
  auto* deleteLast =
      MakeToolButton(column, "SpeedButtonDeletaLastFile", QStyle::SP_LineEditClearButton, tr("Delete Last File"));
  connect(deleteList, &QToolButton::clicked, this, &InputPage::DeleteListClicked);
  connect(deleteLast, &QToolButton::clicked, this, &InputPage::DeleteLastClicked);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(labelNo_, 1);
  buttons->addWidget(deleteList);
  buttons->addWidget(deleteLast);
  layout->addLayout(buttons);
  layout->addWidget(stringGridFiles_, 1);
  return column;
}

QWidget* InputPage::MakeActions() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* calculate = new QPushButton(tr("Calculate"), row);
  calculate->setObjectName("BitBtnCalc");
  SetHint(calculate, tr("Perform calculations "));
  auto* exportButton = new QPushButton(tr("Export"), row);
  exportButton->setObjectName("BitBtn1");
  SetHint(exportButton, tr("Perform calculations and export to file"));
  connect(calculate, &QPushButton::clicked, this, &InputPage::CalculateClicked);
  connect(exportButton, &QPushButton::clicked, this, &InputPage::ExportClicked);
  layout->addWidget(calculate);
  layout->addWidget(exportButton);
  return row;
}

QLineEdit* InputPage::MakeEntry(const char* name, const QString& text) {
  auto* edit = new QLineEdit(text, this);
  edit->setObjectName(name);
  edit->setFixedWidth(70);
  return edit;
}

QWidget* InputPage::MakeEntries() {
  auto* group = new QGroupBox(tr("Analysis"), this);
  auto* layout = new QGridLayout(group);
  foEingabe_ = MakeEntry("foEingabe", QStringLiteral("  2.0G"));
  lgndEingabe_ = MakeEntry("LgndEingabe", QStringLiteral("  100p"));
  areaEingabe_ = MakeEntry("AreaEingabe", QStringLiteral("  1000"));
  checkBoxLgnd_ = MakeButton<QCheckBox>(group, "CheckBoxLgnd", tr("Insert Lgnd"), false);
  layout->addWidget(new QLabel(tr("fo in Hz"), group), 0, 0);
  layout->addWidget(foEingabe_, 0, 1);
  layout->addWidget(new QLabel(tr("Lgnd in H"), group), 1, 0);
  layout->addWidget(lgndEingabe_, 1, 1);
  layout->addWidget(checkBoxLgnd_, 2, 0, 1, 2);
  layout->addWidget(new QLabel(tr("Area in µm²"), group), 3, 0);
  layout->addWidget(areaEingabe_, 3, 1);
  return group;
}

QWidget* InputPage::MakeMultiplier() {
  auto* group = new QGroupBox(tr("f Multiplier"), this);
  SetHint(group, tr("Must be the same for all files"));
  auto* layout = new QVBoxLayout(group);
  radioButtonHz_ = MakeButton<QRadioButton>(group, "RadioButtonHz", tr("Hz"), false);
  radioButtonMHz_ = MakeButton<QRadioButton>(group, "RadioButtonMHz", tr("MHz"), true);
  radioButtonGHz_ = MakeButton<QRadioButton>(group, "RadioButtonGHz", tr("GHz"), false);
  radioButtonAutoPrefix_ = MakeButton<QRadioButton>(group, "RadioButtonAutoPrefix", tr("automatical"), false);
  radioButtonAutoPrefix_->setEnabled(false);
  const std::pair<QRadioButton*, FrequencyUnit> units[] = {{radioButtonHz_, FrequencyUnit::Hz},
                                                           {radioButtonMHz_, FrequencyUnit::MHz},
                                                           {radioButtonGHz_, FrequencyUnit::GHz}};
  for (const auto& [button, unit] : units) {
    connect(button, &QRadioButton::toggled, this, [this, multiplier = UnitMultiplier(unit)](bool checked) {
      if (checked) unitMultiplier_ = multiplier;
    });
    layout->addWidget(button);
  }
  layout->addWidget(radioButtonAutoPrefix_);
  return group;
}

QWidget* InputPage::MakeXAxisChoice() {
  auto* group = new QGroupBox(tr("x-Axis in Graphic Output :"), this);
  auto* layout = new QVBoxLayout(group);
  radioButtonFileNo_ = MakeButton<QRadioButton>(group, "RadioButtonFileNo", tr("File Number"), false);
  radioButtonIc_ = MakeButton<QRadioButton>(group, "RadioButtonIc", tr("Current Ic"), true);
  layout->addWidget(radioButtonFileNo_);
  layout->addWidget(radioButtonIc_);
  layout->addWidget(MakeButton<QRadioButton>(group, "RadioButtonId", tr("Current Id"), false));
  checkBoxDensity_ = MakeButton<QCheckBox>(group, "CheckBoxDensity", tr("Show vs j"), false);
  layout->addWidget(checkBoxDensity_);
  return group;
}

QWidget* InputPage::MakeOptions() {
  auto* group = new QGroupBox(tr("Options"), this);
  auto* layout = new QVBoxLayout(group);
  checkBoxConnect_ = MakeButton<QCheckBox>(group, "CheckBoxConnect", tr("Connect Points in Graphic"), false);
  checkBoxAutoCalculate_ = MakeButton<QCheckBox>(group, "CheckBoxAutoCalculate", tr("Auto Calculate"), true);
  SetHint(checkBoxAutoCalculate_, tr("during draging the files, slower but more comfortable operation"));
  checkBoxU_ = MakeButton<QCheckBox>(group, "CheckBoxU", tr("fmax with U"), false);
  checkBoxComment_ = MakeButton<QCheckBox>(group, "CheckBoxComment", tr("Put Comment to Outputs"), false);
  memoComment_ = new QPlainTextEdit(group);
  memoComment_->setObjectName("MemoComment");
  memoComment_->setFixedHeight(48);
  layout->addWidget(checkBoxConnect_);
  layout->addWidget(checkBoxU_);
  layout->addWidget(checkBoxAutoCalculate_);
  layout->addWidget(checkBoxComment_);
  layout->addWidget(memoComment_);
  return group;
}

void InputPage::ShowSettings(const IniSettings& settings) {
  shown_ = settings;
  foEingabe_->setText(PrefixedEntry(settings.fo));
  areaEingabe_->setText(' ' + QString::fromStdString(numerics::FloatText(7, 1, settings.area)));
  lgndEingabe_->setText(PrefixedEntry(settings.lgnd));
  CheckUnitButton(settings.fMultiplier);
  memoComment_->setPlainText(settings.comment);
  checkBoxLgnd_->setChecked(settings.withLgnd);
  checkBoxDensity_->setChecked(settings.jOutput);
  checkBoxConnect_->setChecked(settings.connectPoints);
}

IniSettings InputPage::CurrentSettings() const {
  IniSettings s;
  s.fo = EntryValue(foEingabe_, shown_.fo);
  s.lgnd = EntryValue(lgndEingabe_, shown_.lgnd);
  s.area = EntryValue(areaEingabe_, shown_.area);
  s.fMultiplier = unitMultiplier_;
  s.comment = memoComment_->toPlainText();
  s.withLgnd = checkBoxLgnd_->isChecked();
  s.jOutput = checkBoxDensity_->isChecked();
  s.connectPoints = checkBoxConnect_->isChecked();
  return s;
}

void InputPage::ShowSeriesCount(int count) {
  labelNo_->setText(tr("Number of files = ") + QString::number(count));
}

void InputPage::ShowFiles(const std::vector<std::string>& paths) {
  const std::vector<std::string> texts = series::FileListPathTexts(paths);
  for (std::size_t i = 0; i < paths.size(); ++i) {
    const int row = static_cast<int>(i + 1);
    stringGridFiles_->SetCells(0, row, QString::fromStdString(texts[i]), QString::fromStdString(paths[i]));
  }
  for (int row = static_cast<int>(paths.size()) + 1; row < kFileRows; ++row) stringGridFiles_->ClearRow(row);
  ShowSeriesCount(static_cast<int>(paths.size()));
  // As wide as the grid, and wider where a text needs it, so that every text shows whole.
  stringGridFiles_->resizeColumnToContents(0);
  const int fitted = std::max(stringGridFiles_->columnWidth(0), stringGridFiles_->viewport()->width());
  stringGridFiles_->setColumnWidth(0, std::max(fitted, kFileColumnWidth));
}

series::SeriesSettings InputPage::EvaluationSettings() const {
  const IniSettings entries = CurrentSettings();
  series::SeriesSettings s;
  s.fo = entries.fo;
  s.multiplier = entries.fMultiplier;
  s.automaticMultiplier = radioButtonAutoPrefix_->isChecked();
  s.lgnd = entries.lgnd;
  s.withLgnd = entries.withLgnd;
  s.fmaxFromU = checkBoxU_->isChecked();
  s.xAxis = radioButtonIc_->isChecked()       ? series::XAxisChoice::CurrentIc
            : radioButtonFileNo_->isChecked() ? series::XAxisChoice::FileNumber
                                              : series::XAxisChoice::CurrentId;
  s.area = entries.area;
  s.density = entries.jOutput;
  return s;
}

void InputPage::EnableAutomaticMultiplier(bool enabled) {
  radioButtonAutoPrefix_->setEnabled(enabled);
  if (enabled || !radioButtonAutoPrefix_->isChecked()) return;
  CheckUnitButton(unitMultiplier_);
}

void InputPage::CheckUnitButton(double multiplier) {
  switch (MultiplierUnit(multiplier)) {
    case FrequencyUnit::Hz: radioButtonHz_->setChecked(true); break;
    case FrequencyUnit::MHz: radioButtonMHz_->setChecked(true); break;
    case FrequencyUnit::GHz: radioButtonGHz_->setChecked(true); break;
  }
}

bool InputPage::AutoCalculate() const { return checkBoxAutoCalculate_->isChecked(); }
bool InputPage::ConnectPoints() const { return checkBoxConnect_->isChecked(); }
bool InputPage::CommentToOutputs() const { return checkBoxComment_->isChecked(); }
QString InputPage::Comment() const { return memoComment_->toPlainText(); }

}  // namespace mainwin
