#include "phiwin.h"

#include <QAction>
#include <QActionGroup>
#include <QLabel>
#include <QMenu>
#include <algorithm>

#include "controls/spin_button.h"
#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"
#include "qkreis.h"

namespace graphwin {
namespace {

constexpr ViewItem kViews[] = {
    {"Polar1", "&Polar", plots::SView::Polar},
    {"SmithDiagramm1", "&Smith", plots::SView::Smith},
    {"Kartesisch1", "&Cartesian", plots::SView::Cartesian},
    {"Sii11", "Magnitude of Sii vs Frequency", plots::SView::Magnitude},
    {"dBSii1", "20log|Sii| vs Frequency", plots::SView::Decibels},
    {"PhiSii1", "Phase Sii vs Frequency", plots::SView::Phase},
};

constexpr int kSpinLeft = 278;
constexpr int kCirclesLabelLeft = 300;

}  // namespace

TFormPhi::TFormPhi(InputsSource inputs, const GraphDialogs& dialogs)
    : TSParameterForm("FormPhi", plots::SWindow::Reflection, plots::SView::Smith, std::move(inputs), dialogs) {
  AddViewItems(kViews);
  findChild<QAction*>("Print1")->setObjectName("Drucken1");
  findChild<QAction*>("Exit1")->setObjectName("Exit2");
  AddPrinterSetupItem("Drucken2");
  BuildParameterMenu();
  BuildCirclesMenu();
}

void TFormPhi::BuildParameterMenu() {
  QMenu* menu = InsertMenu("Parameter1", QStringLiteral("&Parameters"));
  auto* charts = new QActionGroup(this);
  const std::pair<const char*, diagram::ChartKind> kCharts[] = {{"YChart", diagram::ChartKind::Admittance},
                                                                 {"ZChart", diagram::ChartKind::Impedance},
                                                                 {"ZYChart", diagram::ChartKind::Combined}};
  const QString captions[] = {QStringLiteral("&Y-Chart"), QStringLiteral("&Z-Chart"), QStringLiteral("ZY-&Chart")};
  for (std::size_t i = 0; i < std::size(kCharts); ++i) {
    QAction* item = charts->addAction(captions[i]);
    item->setObjectName(kCharts[i].first);
    item->setCheckable(true);
    item->setChecked(kCharts[i].second == chart_);
    menu->addAction(item);
    connect(item, &QAction::triggered, this, [this, chart = kCharts[i].second] {
      chart_ = chart;
      Redraw();
    });
  }
  menu->addSeparator()->setObjectName("N1");
  QAction* constantQ = menu->addAction(QStringLiteral("Circles: &Q=const."));
  constantQ->setObjectName("constantQ1");
  connect(constantQ, &QAction::triggered, this, &TFormPhi::constantQ1Click);
  deleteQ_ = menu->addAction(QStringLiteral("Delete Last Q-Circle"));
  deleteQ_->setObjectName("DeleteQ");
  connect(deleteQ_, &QAction::triggered, this, &TFormPhi::DeleteQClick);
  delAllQ_ = menu->addAction(QStringLiteral("Delete All Q-Circles"));
  delAllQ_->setObjectName("DelAllQ");
  connect(delAllQ_, &QAction::triggered, this, &TFormPhi::DelAllQClick);
  EnableDeleteItems();
}

// The circles at one point of the first file, chosen by a spin button beside its frequency.
void TFormPhi::BuildCirclesMenu() {
  QAction* show = InsertMenu("Circles1", QStringLiteral("C&ircles"))
                      ->addAction(QStringLiteral("&Stability Circles and Conjugate Match"));
  show->setObjectName("StabilityCircles1");
  show->setCheckable(true);
  spinButtonCircles_ = new controls::TSpinButton(ToolPanel());
  spinButtonCircles_->setObjectName("SpinButtonCircles");
  spinButtonCircles_->setToolTip(QStringLiteral("Frequency of the stability circles"));
  spinButtonCircles_->setGeometry(kSpinLeft, 3, 18, ToolPanel()->height() - 6);
  labelCircles_ = new QLabel(ToolPanel());
  labelCircles_->setObjectName("LabelCircles");
  labelCircles_->setGeometry(kCirclesLabelLeft, 0, 200, ToolPanel()->height());
  connect(show, &QAction::toggled, this, [this](bool on) {
    circles_ = on;
    ShowCirclesFrequency();
    Redraw();
  });
  connect(spinButtonCircles_, &controls::TSpinButton::UpClick, this, [this] { SpinButtonCirclesClick(true); });
  connect(spinButtonCircles_, &controls::TSpinButton::DownClick, this, [this] { SpinButtonCirclesClick(false); });
  ShowCirclesFrequency();
}

void TFormPhi::constantQ1Click() {
  if (!Dialogs().qCircle->Execute(qTable_)) return;
  EnableDeleteItems();
  Redraw();
}

void TFormPhi::DeleteQClick() {
  qTable_.DeleteLast();
  EnableDeleteItems();
  Redraw();
}

void TFormPhi::DelAllQClick() {
  qTable_.Clear();
  EnableDeleteItems();
  Redraw();
}

void TFormPhi::EnableDeleteItems() {
  const bool any = qTable_.Count() > 0;
  deleteQ_->setEnabled(any);
  delAllQ_->setEnabled(any);
}

const plots::GraphFile* TFormPhi::CirclesFile() const {
  for (const plots::GraphFile& file : Inputs().files) {
    if (file.active && file.set != nullptr && plots::ShownPoints(Inputs(), file) > 0) return &file;
  }
  return nullptr;
}

// The spin runs round the file's points.
void TFormPhi::SpinButtonCirclesClick(bool up) {
  const plots::GraphFile* file = CirclesFile();
  if (file == nullptr) return;
  const int points = plots::ShownPoints(Inputs(), *file);
  circlesPoint_ = (circlesPoint_ + (up ? 1 : points - 1)) % points;
  ShowCirclesFrequency();
  if (circles_) Redraw();
}

void TFormPhi::ShowCirclesFrequency() {
  const plots::GraphFile* file = CirclesFile();
  spinButtonCircles_->setEnabled(circles_ && file != nullptr);
  labelCircles_->setEnabled(circles_ && file != nullptr);
  if (file == nullptr) {
    labelCircles_->clear();
    return;
  }
  const double frequency = file->set->frequency[static_cast<std::size_t>(circlesPoint_)];
  const std::string shown = numerics::TrimLeftText(numerics::FormatPrefixed(2, frequency));
  labelCircles_->setText(QStringLiteral("f=%1Hz").arg(QString::fromStdString(shown)));
}

// A file with fewer points than before brings the circles' point back within it.
void TFormPhi::ComputeCurves() {
  TSParameterForm::ComputeCurves();
  const plots::GraphFile* file = CirclesFile();
  circlesPoint_ = file == nullptr ? 0 : std::min(circlesPoint_, plots::ShownPoints(Inputs(), *file) - 1);
  ShowCirclesFrequency();
}

plots::LocusLook TFormPhi::Locus() const {
  plots::LocusLook look = TSParameterForm::Locus();
  look.chart = chart_;
  look.qValues = qTable_.Values();
  const plots::GraphFile* file = CirclesFile();
  if (circles_ && file != nullptr) {
    const auto point = static_cast<std::size_t>(circlesPoint_);
    look.circles = plots::MatchCirclesOf(file->set->points[point], file->set->frequency[point]);
  }
  return look;
}

}  // namespace graphwin
