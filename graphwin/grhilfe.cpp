#include "grhilfe.h"

#include <QFont>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace graphwin {
namespace {

constexpr int kClientWidth = 579;
constexpr int kClientHeight = 285;

struct HelpPair {
  const char* heading;
  const char* text;
};

constexpr HelpPair kPairs[] = {
    {"Change axis scale :",
     "If the mouse pointer is near the end of an axis you may press the left mouse button. The other way is to "
     "define a rectangle while pressing the right mouse button."},
    {"", "An auto scale is implemented and also you may switch between linear and logarithmic."},
    {"Change size :", "You may use either the mouse or the special buttons."},
    {"Miscellaneous :", "By double-clicking you may define the origin. There is also a copy function available."},
};

QLabel* MakeLabel(QWidget* parent, const char* text, bool heading) {
  auto* label = new QLabel(QString::fromUtf8(text), parent);
  label->setWordWrap(!heading);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  if (heading) {
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
  }
  return label;
}

}  // namespace

TGRHilfeBox::TGRHilfeBox(QWidget* parent) : QDialog(parent) {
  setObjectName("GRHilfeBox");
  setWindowTitle(QStringLiteral("Help for Graphics"));
  auto* panel = new QFrame(this);
  panel->setObjectName("Panel1");
  panel->setFrameShape(QFrame::StyledPanel);
  auto* grid = new QGridLayout(panel);
  int row = 0;
  for (const HelpPair& pair : kPairs) {
    grid->addWidget(MakeLabel(panel, pair.heading, true), row, 0);
    grid->addWidget(MakeLabel(panel, pair.text, false), row++, 1);
  }
  grid->setColumnStretch(1, 1);
  auto* ok = new QPushButton(QStringLiteral("OK"), this);
  ok->setObjectName("OKButton");
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(panel, 1);
  layout->addWidget(ok, 0, Qt::AlignHCenter);
  resize(kClientWidth, kClientHeight);
}

}  // namespace graphwin
