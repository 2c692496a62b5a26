#include "vuwin.h"

#include "controls/spin_button.h"
#include "numerics/text_functions.h"

namespace graphwin {
namespace {

constexpr ViewItem kViews[] = {
    {"Kartesisch1", "&Cartesian", plots::SView::Cartesian},
    {"Polar1", "&Polar", plots::SView::Polar},
    {"Sijf1", "Betrag of Sij vs Frequency", plots::SView::Magnitude},
    {"dBSij1", "20log(Sij) vs Frequency", plots::SView::Decibels},
    {"PhiSij1", "Phase of Sij vs Frequency", plots::SView::Phase},
};

constexpr int kSpinLeft = 278;
constexpr double kZoomStep = 10;

}  // namespace

TFormVu::TFormVu(InputsSource inputs, const GraphDialogs& dialogs)
    : TSParameterForm("FormVu", plots::SWindow::Transmission, plots::SView::Polar, std::move(inputs), dialogs) {
  AddViewItems(kViews);
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
