#include "xmax_dlg.h"

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/dialog_hooks.h"
#include "controls/spin_button.h"

namespace graphwin {
namespace {

constexpr int kClientWidth = 177;
constexpr int kEditWidth = 73;

QPushButton* MakeButton(QWidget* parent, const char* name, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  return button;
}

}  // namespace

TXmaxDlg1::TXmaxDlg1(QWidget* parent) : QDialog(parent) {
  setObjectName("XmaxDlg1");
  setWindowTitle(QStringLiteral("Axis Scale"));
  QPushButton* ok = MakeButton(this, "OKBtn", QStringLiteral("OK"));
  ok->setDefault(true);
  QPushButton* cancel = MakeButton(this, "CancelBtn", QStringLiteral("Cancel"));
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(MakeEntry());
  layout->addLayout(buttons);
  setFixedWidth(kClientWidth);
  connect(ok, &QPushButton::clicked, this, &TXmaxDlg1::OKBtnClick);
  connect(cancel, &QPushButton::clicked, this, &TXmaxDlg1::reject);
}

// The frame with the label, the edit field and the spin button.
QWidget* TXmaxDlg1::MakeEntry() {
  auto* shape = new QFrame(this);
  shape->setObjectName("Shape1");
  shape->setFrameShape(QFrame::Box);
  auto* panel = new QWidget(shape);
  panel->setObjectName("Panel1");
  namenLabel_ = new QLabel(QStringLiteral("xmax="), panel);
  namenLabel_->setObjectName("NamenLabel");
  edit_ = new QLineEdit(panel);
  edit_->setObjectName("Edit");
  edit_->setFixedWidth(kEditWidth);
  QFont narrow = edit_->font();  // " 10.00G" fits the field's width
  narrow.setPixelSize(11);
  edit_->setFont(narrow);
  namenLabel_->setBuddy(edit_);
  auto* spin = new controls::TSpinButton(panel);
  spin->setObjectName("SpinButton");
  spin->setFixedSize(18, edit_->sizeHint().height());
  auto* row = new QHBoxLayout(panel);
  row->addWidget(namenLabel_);
  row->addWidget(edit_);
  row->addWidget(spin);
  (new QVBoxLayout(shape))->addWidget(panel);
  connect(edit_, &QLineEdit::textEdited, this, &TXmaxDlg1::EditChange);
  connect(spin, &controls::TSpinButton::UpClick, this, [this] { ShowSpun(entry_.SpinUp()); });
  connect(spin, &controls::TSpinButton::DownClick, this, [this] { ShowSpun(entry_.SpinDown()); });
  return shape;
}

void TXmaxDlg1::SetLabel(const QString& text) { namenLabel_->setText(text); }

void TXmaxDlg1::SetPosition(int left, int top) { move(left, top); }

void TXmaxDlg1::Execute() {
  edit_->setText(QString::fromStdString(entry_.Show()));
  edit_->selectAll();
  edit_->setFocus();
  controls::RunModal(*this);
}

void TXmaxDlg1::EditChange(const QString& text) {
  if (entry_.Change(text.toStdString())) QApplication::beep();
}

void TXmaxDlg1::ShowSpun(const std::string& text) { edit_->setText(QString::fromStdString(text)); }

void TXmaxDlg1::OKBtnClick() {
  entry_.Ok(edit_->text().toStdString());
  accept();
}

void TXmaxDlg1::reject() {
  edit_->setText(QString::fromStdString(entry_.Cancel()));
  QDialog::reject();
}

}  // namespace graphwin
