#include "about_box.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/gradient_panel.h"

namespace mainwin {
namespace {

QLabel* MakeWhiteLabel(const QString& text, int pointSize, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  QFont font = label->font();
  font.setPointSize(pointSize);
  label->setFont(font);
  label->setStyleSheet(QStringLiteral("color: white"));
  label->setAlignment(Qt::AlignCenter);
  label->setWordWrap(true);
  return label;
}

}  // namespace

TAboutBox::TAboutBox(QWidget* parent) : QDialog(parent) {
  setObjectName("AboutBox");
  setWindowTitle(QStringLiteral("About"));
  auto* panel = new controls::TGradientPanel(this);
  panel->setObjectName("GradientPanel");
  panel->SetColors(QColor(0, 0, 160), QColor(0, 0, 0));
  auto* text = new QVBoxLayout(panel);
  text->addWidget(MakeWhiteLabel(QStringLiteral("S-Parameter Analysis"), 16, panel));
  text->addWidget(MakeWhiteLabel(QStringLiteral("netrix " NETRIX_VERSION), 10, panel));
  text->addWidget(MakeWhiteLabel(QStringLiteral("Gain, stability and impedance of two-ports from measured "
                                    "S-parameters, and the figures of merit of transistor bias series."),
                                 9, panel));
  auto* ok = new QPushButton(QStringLiteral("OK"), this);
  ok->setObjectName("OKButton");
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(panel, 1);
  layout->addWidget(ok, 0, Qt::AlignHCenter);
  setFixedSize(340, 230);
}

}  // namespace mainwin
