#include "vuwin.h"

#include "controls/spin_button.h"
#include "numerics/text_functions.h"

namespace graphwin {
namespace {

constexpr int kSpinLeft = 278;
constexpr double kZoomStep = 10;

}  // namespace

TFormVu::TFormVu(InputsSource inputs, const GraphDialogs& dialogs)
    : TSParameterForm("FormVu", plots::SWindow::Transmission, plots::SView::Polar, std::move(inputs), dialogs) {
  const QString locus = QStringLiteral("Ortskurvendarstellung");
  AddViewItem("Kartesisch1", QStringLiteral("&Cartesian"), plots::SView::Cartesian)->setToolTip(locus);
  AddViewItem("Polar1", QStringLiteral("&Polar"), plots::SView::Polar)->setToolTip(locus);
  InsertScalesSeparator("N5");
  AddViewItem("Sijf1", QStringLiteral("Betrag of Sij vs Frequency"), plots::SView::Magnitude);
  AddViewItem("dBSij1", QStringLiteral("20log(Sij) vs Frequency"), plots::SView::Decibels);
  AddViewItem("PhiSij1", QStringLiteral("Phase of Sij vs Frequency"), plots::SView::Phase);
  InsertScalesSeparator("N6");
  AddPrinterSetupItem("Einstellung");
  spinButtonS12Zoom_ = new controls::TSpinButton(ToolPanel());
  spinButtonS12Zoom_->setObjectName("SpinButtonS12Zoom");
  spinButtonS12Zoom_->setToolTip(QStringLiteral("For polar diagram : Zoom factor for S12"));
  spinButtonS12Zoom_->setGeometry(kSpinLeft, 3, 18, ToolPanel()->height() - 6);
  connect(spinButtonS12Zoom_, &controls::TSpinButton::UpClick, this, [this] { SpinButtonS12ZoomClick(true); });
  connect(spinButtonS12Zoom_, &controls::TSpinButton::DownClick, this, [this] { SpinButtonS12ZoomClick(false); });
}

void TFormVu::SpinButtonS12ZoomClick(bool up) {
  s12Zoom_ = up ? s12Zoom_ * kZoomStep : s12Zoom_ / kZoomStep;
  spinButtonS12Zoom_->setToolTip(QStringLiteral("For polar diagram : Adjustment for zoom factor of S12, now %1")
                                     .arg(QString::fromStdString(numerics::FloatTextTrimmed(1, s12Zoom_))));
  ComputeCurves();
  Redraw();
}

}  // namespace graphwin
