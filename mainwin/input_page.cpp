#include "input_page.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"

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

QString PrefixedEntry(double value) {
  return ' ' + QString::fromStdString(numerics::FormatPrefixedField(7, 2, value));
}

}  // namespace

InputPage::InputPage(QWidget* parent) : QWidget(parent) {
  labelNo_ = new QLabel(this);
  labelNo_->setObjectName("LabelNo");
  ShowSeriesCount(0);
  auto* layout = new QGridLayout(this);
  layout->addWidget(labelNo_, 0, 0, Qt::AlignTop);
  layout->addWidget(MakeEntries(), 0, 1);
  layout->addWidget(MakeMultiplier(), 0, 2);
  layout->addWidget(MakeOptions(), 1, 1);
  layout->addWidget(MakeXAxisChoice(), 1, 2);
  layout->setColumnStretch(0, 1);
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
  auto* automatic = MakeButton<QRadioButton>(group, "RadioButtonAutoPrefix", tr("automatical"), false);
  automatic->setEnabled(false);
  for (QRadioButton* button : {radioButtonHz_, radioButtonMHz_, radioButtonGHz_, automatic}) {
    layout->addWidget(button);
  }
  return group;
}

QWidget* InputPage::MakeXAxisChoice() {
  auto* group = new QGroupBox(tr("x-Axis in Graphic Output :"), this);
  auto* layout = new QVBoxLayout(group);
  layout->addWidget(MakeButton<QRadioButton>(group, "RadioButtonFileNo", tr("File Number"), false));
  layout->addWidget(MakeButton<QRadioButton>(group, "RadioButtonIc", tr("Current Ic"), true));
  layout->addWidget(MakeButton<QRadioButton>(group, "RadioButtonId", tr("Current Id"), false));
  checkBoxDensity_ = MakeButton<QCheckBox>(group, "CheckBoxDensity", tr("Show vs j"), false);
  layout->addWidget(checkBoxDensity_);
  return group;
}

QWidget* InputPage::MakeOptions() {
  auto* group = new QGroupBox(tr("Options"), this);
  auto* layout = new QVBoxLayout(group);
  checkBoxConnect_ = MakeButton<QCheckBox>(group, "CheckBoxConnect", tr("Connect Points in Graphic"), false);
  auto* autoCalculate = MakeButton<QCheckBox>(group, "CheckBoxAutoCalculate", tr("Auto Calculate"), true);
  SetHint(autoCalculate, tr("during draging the files, slower but more comfortable operation"));
  memoComment_ = new QPlainTextEdit(group);
  memoComment_->setObjectName("MemoComment");
  memoComment_->setFixedHeight(48);
  layout->addWidget(checkBoxConnect_);
  layout->addWidget(MakeButton<QCheckBox>(group, "CheckBoxU", tr("fmax with U"), false));
  layout->addWidget(autoCalculate);
  layout->addWidget(MakeButton<QCheckBox>(group, "CheckBoxComment", tr("Put Comment to Outputs"), false));
  layout->addWidget(memoComment_);
  return group;
}

void InputPage::ShowSettings(const IniSettings& settings) {
  shown_ = settings;
  foEingabe_->setText(PrefixedEntry(settings.fo));
  areaEingabe_->setText(' ' + QString::fromStdString(numerics::FloatText(7, 1, settings.area)));
  lgndEingabe_->setText(PrefixedEntry(settings.lgnd));
  switch (MultiplierUnit(settings.fMultiplier)) {
    case FrequencyUnit::Hz: radioButtonHz_->setChecked(true); break;
    case FrequencyUnit::MHz: radioButtonMHz_->setChecked(true); break;
    case FrequencyUnit::GHz: radioButtonGHz_->setChecked(true); break;
  }
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
  s.fMultiplier = radioButtonGHz_->isChecked()   ? UnitMultiplier(FrequencyUnit::GHz)
                  : radioButtonMHz_->isChecked() ? UnitMultiplier(FrequencyUnit::MHz)
                                                 : UnitMultiplier(FrequencyUnit::Hz);
  s.comment = memoComment_->toPlainText();
  s.withLgnd = checkBoxLgnd_->isChecked();
  s.jOutput = checkBoxDensity_->isChecked();
  s.connectPoints = checkBoxConnect_->isChecked();
  return s;
}

void InputPage::ShowSeriesCount(int count) {
  labelNo_->setText(tr("Number of files = ") + QString::number(count));
}

}  // namespace mainwin
