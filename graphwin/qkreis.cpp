#include "qkreis.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <cassert>

#include "controls/dialog_hooks.h"

namespace graphwin {

TQcircle::TQcircle(QWidget* parent) : QDialog(parent) {
  setObjectName("Qcircle");
  setWindowTitle(QStringLiteral("Constant Q Circle"));
  auto* label = new QLabel(QStringLiteral("Input for Q value :"), this);
  edit1_ = new QLineEdit(this);
  edit1_->setObjectName("Edit1");
  label->setBuddy(edit1_);
  auto* bevel = new QFrame(this);
  bevel->setObjectName("Bevel1");
  bevel->setFrameShape(QFrame::HLine);
  bevel->setFrameShadow(QFrame::Sunken);
  auto* ok = new QPushButton(QStringLiteral("OK"), this);
  ok->setObjectName("OKBtn");
  ok->setDefault(true);
  auto* cancel = new QPushButton(QStringLiteral("Cancel"), this);
  cancel->setObjectName("CancelBtn");
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(label);
  layout->addWidget(edit1_);
  layout->addWidget(bevel);
  layout->addLayout(buttons);
  connect(ok, &QPushButton::clicked, this, &TQcircle::OKBtnClick);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

bool TQcircle::Execute(plots::ConstantQTable& table) {
  table_ = &table;
  edit1_->selectAll();
  edit1_->setFocus();
  const bool stored = controls::RunModal(*this) == QDialog::Accepted;
  table_ = nullptr;
  return stored;
}

void TQcircle::OKBtnClick() {
  assert(table_ != nullptr && "the dialog runs for a table");
  table_->StoreText(edit1_->text().toStdString());
  accept();
}

}  // namespace graphwin
