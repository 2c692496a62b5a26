#include "frequency_page.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <cassert>

#include "controls/spin_button.h"
#include "controls/message_box.h"
#include "numerics/data_set.h"
#include "numerics/prefixed_number.h"
#include "numerics/two_port_state.h"

namespace mainwin {
namespace {

QCheckBox* MakeCheckBox(QWidget* parent, const char* name, const QString& caption, bool checked) {
  auto* box = new QCheckBox(caption, parent);
  box->setObjectName(name);
  box->setChecked(checked);
  return box;
}

}  // namespace

FrequencyPage::FrequencyPage(QWidget* parent) : QWidget(parent) {
  auto* layout = new QGridLayout(this);
  layout->addWidget(MakeFileColumn(), 0, 0, 2, 1);
  layout->addWidget(MakeDiagramButtons(), 0, 1);
  layout->addWidget(MakeCountAndZ0(), 1, 1);
  layout->addWidget(MakeDisplayOptions(), 2, 0, 1, 2);
  layout->setColumnStretch(0, 3);
  layout->setColumnStretch(1, 2);
  ApplyActiveRule();
  for (QPushButton* button : diagramButtons_) button->setEnabled(false);
}

QWidget* FrequencyPage::MakeFileColumn() {
  auto* column = new QWidget(this);
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* label = new QLabel(QStringLiteral("S-Parameter Files :"), column);
  label->setObjectName("Label1");
  checkListBox1_ = new QListWidget(column);
  checkListBox1_->setObjectName("CheckListBox1");
  label->setBuddy(checkListBox1_);
  connect(checkListBox1_, &QListWidget::itemChanged, this, &FrequencyPage::CheckListBox1ClickCheck);
  auto* remove = new QToolButton(column);
  remove->setObjectName("SpeedButtonDelete");
  remove->setText(QStringLiteral("Remove Last"));
  remove->setToolTip(QStringLiteral("Remove last file entry from list"));
  remove->setStatusTip(remove->toolTip());
  connect(remove, &QToolButton::clicked, this, &FrequencyPage::SpeedButtonDeleteClick);
  layout->addWidget(label);
  layout->addWidget(checkListBox1_);
  layout->addWidget(remove, 0, Qt::AlignLeft);
  return column;
}

QWidget* FrequencyPage::MakeDiagramButtons() {
  auto* group = new QGroupBox(QStringLiteral("Diagrams"), this);
  auto* layout = new QGridLayout(group);
  using W = graphwin::DiagramWindow;
  using M = graphwin::DisplayMode;
  layout->addWidget(MakeDiagramButton("SpeedButton1", "S11", W::Reflection, M::InputReflection), 0, 0);
  layout->addWidget(MakeDiagramButton("SpeedButton2", "S22", W::Reflection, M::OutputReflection), 0, 1);
  layout->addWidget(MakeDiagramButton("SpeedButton6", "S11 - S22", W::Reflection, M::BothReflections), 0, 2);
  layout->addWidget(MakeDiagramButton("SpeedButton3", "S21", W::Transmission, M::ForwardTransmission), 1, 0);
  layout->addWidget(MakeDiagramButton("SpeedButton4", "S12", W::Transmission, M::ReverseTransmission), 1, 1);
  layout->addWidget(MakeDiagramButton("SpeedButton5", "S21 - S12", W::Transmission, M::BothTransmissions), 1, 2);
  layout->addWidget(MakeDiagramButton("SpeedButtonGain", "MAG, MSG, ...", W::Gain, M::Gain), 2, 0, 1, 3);
  layout->addWidget(MakeDiagramButton("SpeedButtonk", "k Factor, u ...", W::Stability, M::Stability), 3, 0, 1, 3);
  layout->addWidget(MakeDiagramButton("SpeedButtonZ", "Z(f), Q(f), ...", W::Impedance, M::Impedance), 4, 0, 1, 3);
  singleFileButtons_ = {findChild<QPushButton*>("SpeedButton5"), findChild<QPushButton*>("SpeedButton6")};
  return group;
}

QPushButton* FrequencyPage::MakeDiagramButton(const char* name, const QString& caption,
                                              graphwin::DiagramWindow window, graphwin::DisplayMode mode) {
  auto* button = new QPushButton(caption, this);
  button->setObjectName(name);
  connect(button, &QPushButton::clicked, this, [this, window, mode] { emit DiagramRequested(window, mode); });
  diagramButtons_.append(button);
  return button;
}

QWidget* FrequencyPage::MakeCountAndZ0() {
  auto* box = new QWidget(this);
  auto* layout = new QGridLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  label4_ = new QLabel(QStringLiteral("Number of Frequencies"), box);
  label4_->setObjectName("Label4");
  fnEingabe_ = new QLineEdit(box);
  fnEingabe_->setObjectName("fnEingabe");
  fnEingabe_->setReadOnly(true);
  fnEingabe_->setFixedWidth(60);
  fAnzahlSpinButton_ = new controls::TSpinButton(box);
  fAnzahlSpinButton_->setObjectName("fAnzahlSpinButton");
  fAnzahlSpinButton_->setFixedSize(18, fnEingabe_->sizeHint().height());
  connect(fAnzahlSpinButton_, &controls::TSpinButton::UpClick, this, [this] {
    files_.SpinUp();
    ShowDisplayCount("  " + QString::number(files_.DisplayCount()));
  });
  connect(fAnzahlSpinButton_, &controls::TSpinButton::DownClick, this, [this] {
    files_.SpinDown();
    ShowDisplayCount("  " + QString::number(files_.DisplayCount()));
  });
  layout->addWidget(label4_, 0, 0);
  layout->addWidget(fnEingabe_, 0, 1);
  layout->addWidget(fAnzahlSpinButton_, 0, 2, Qt::AlignLeft);
  AddZ0Entry(*layout, 1);
  layout->setColumnStretch(3, 1);
  return box;
}

void FrequencyPage::AddZ0Entry(QGridLayout& layout, int row) {
  auto* label = new QLabel(QStringLiteral("Z0 in Ohm"), this);
  label->setObjectName("Label2");
  auto* edit = new QLineEdit(QStringLiteral("   50.0"), this);
  edit->setObjectName("ZLEingabe");
  edit->setFixedWidth(60);
  label->setBuddy(edit);
  connect(edit, &QLineEdit::textEdited, this, &FrequencyPage::ZLEingabeChange);
  layout.addWidget(label, row, 0);
  layout.addWidget(edit, row, 1);
}

QWidget* FrequencyPage::MakeDisplayOptions() {
  auto* group = new QGroupBox(QStringLiteral("Display"), this);
  auto* layout = new QGridLayout(group);
  verbindenCheckBox_ = MakeCheckBox(group, "VerbindenCheckBox", QStringLiteral("Connect Frequency Points"), true);
  legendeCheckBox_ = MakeCheckBox(group, "LegendeCheckBox", QStringLiteral("Display Legend"), true);
  legendeCheckBox_->setToolTip(QStringLiteral("Maximum frequency only shown if file is loaded"));
  legendeCheckBox_->setStatusTip(legendeCheckBox_->toolTip());
  gleicheFrequenz_ =
      MakeCheckBox(group, "GleicheFrequenz", QStringLiteral("Connect Points of Equal Frequencies"), false);
  splineCheckBox_ = MakeCheckBox(group, "SplineCheckBox", QStringLiteral("Spline Interpolation"), true);
  kommentarCheckBox_ = MakeCheckBox(group, "KommentarCheckBox", QStringLiteral("Display Comment"), false);
  dateiCheckBox_ = MakeCheckBox(group, "DateiCheckBox", QStringLiteral("Display File Names"), true);
  layout->addWidget(verbindenCheckBox_, 0, 0);
  layout->addWidget(splineCheckBox_, 1, 0);
  layout->addWidget(gleicheFrequenz_, 2, 0);
  layout->addWidget(legendeCheckBox_, 0, 1);
  layout->addWidget(kommentarCheckBox_, 1, 1);
  layout->addWidget(dateiCheckBox_, 2, 1);
  return group;
}

bool FrequencyPage::ConnectFrequencyPoints() const { return verbindenCheckBox_->isChecked(); }

graphwin::plots::DisplayOptions FrequencyPage::DisplayOptions() const {
  return {verbindenCheckBox_->isChecked(), splineCheckBox_->isChecked(),   legendeCheckBox_->isChecked(),
          kommentarCheckBox_->isChecked(), gleicheFrequenz_->isChecked(), dateiCheckBox_->isChecked()};
}

void FrequencyPage::AddFile(const FrequencyFile& file) {
  files_.Add(file);
  auto* item = new QListWidgetItem(QString::fromStdString(file.path));
  item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
  item->setCheckState(Qt::Checked);
  const QSignalBlocker blocker(checkListBox1_);
  checkListBox1_->addItem(item);
  for (QPushButton* button : diagramButtons_) button->setEnabled(true);
  ApplyActiveRule();
}

void FrequencyPage::SpeedButtonDeleteClick() {
  if (files_.Count() == 0) {
    controls::ShowMessage(this, QStringLiteral("No file available!"));
    return;
  }
  numerics::DataSetStore& store = numerics::DataSets();
  assert(store.openCount == files_.Count());
  --store.openCount;
  files_.RemoveLast();
  delete checkListBox1_->takeItem(checkListBox1_->count() - 1);
  ApplyActiveRule();
  // Without a file the diagram windows would have nothing to draw.
  if (files_.Count() == 0) {
    for (QPushButton* button : diagramButtons_) button->setEnabled(false);
  }
}

void FrequencyPage::CheckListBox1ClickCheck(QListWidgetItem* item) {
  files_.SetActive(checkListBox1_->row(item), item->checkState() == Qt::Checked);
  ApplyActiveRule();
}

void FrequencyPage::ZLEingabeChange(const QString& text) {
  z0_ = LimitZ0(numerics::ParseValueText(text.toStdString()).value);
  numerics::WorkingState().z0 = z0_;
}

void FrequencyPage::ApplyActiveRule() {
  const bool single = files_.ActiveCount() == 1;
  label4_->setEnabled(single);
  fAnzahlSpinButton_->setEnabled(single);
  fnEingabe_->setEnabled(single);
  for (QPushButton* button : singleFileButtons_) button->setEnabled(single);
  gleicheFrequenz_->setEnabled(!single);
  ShowDisplayCount(single ? QStringLiteral("%1").arg(files_.DisplayCount(), 3) : QStringLiteral("  0"));
}

void FrequencyPage::ShowDisplayCount(const QString& text) { fnEingabe_->setText(text); }

}  // namespace mainwin
