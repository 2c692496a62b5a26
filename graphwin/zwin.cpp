#include "zwin.h"

#include <QAction>
#include <QActionGroup>
#include <QCheckBox>
#include <QPainter>
#include <QPixmap>

#include "diagram/axis.h"

namespace graphwin {
namespace {

using plots::ImpedanceMode;

// "Zchar" finds no room beside the others and goes below them.
constexpr CheckBoxLook kBoxes[] = {
    {"CheckBoxSym", 276, "symmetrical", "Push-pull operation"},
    {"CheckBoxTor1", 376, "Port1", "With short circuit at port #2"},
    {"CheckBoxTor2", 436, "Port2", "With short circuit at port #1"},
    {"CheckBoxQuer", 496, "Cross", ""},
    {"CheckBoxZL", 276, "Zchar", "Characteristic impedance", 1},
};

struct ModeItem {
  const char* name;
  const char* caption;
  ImpedanceMode mode;
};

constexpr ModeItem kModes[] = {
    {"BetragZ1", "&Mag(Z)", ImpedanceMode::Magnitude},
    {"RealteilZ1", "&Re(Z)", ImpedanceMode::Real},
    {"GteQ1", "&Q-Factor", ImpedanceMode::Q},
};

constexpr double kHighestFrequencyBound = 1e11;

}  // namespace

TFormZ::TFormZ(InputsSource inputs, const GraphDialogs& dialogs)
    : TGraphForm("FormZ", QStringLiteral("Impedance Z(f)"), std::move(inputs), dialogs) {
  ToolPanel()->setFixedHeight(2 * ToolPanel()->height());
  const plots::ImpedanceChoice initial;
  const bool checked[] = {initial.sym, initial.port1, initial.port2, initial.cross, initial.image};
  for (std::size_t i = 0; i < checkBoxes_.size(); ++i) {
    checkBoxes_[i] = AddCheckBox(kBoxes[i], checked[i]);
    connect(checkBoxes_[i], &QCheckBox::clicked, this, &TFormZ::CheckBoxClick);
  }
  BuildModeItems();
  connect(InsertFileItem("Druckereinstellung1", QStringLiteral("Printer &Setup")), &QAction::triggered, this,
          &TFormZ::PrinterSetupClick);
}

void TFormZ::BuildModeItems() {
  auto* group = new QActionGroup(this);
  for (const ModeItem& item : kModes) {
    QAction* action = InsertScalesItem(item.name, QString::fromUtf8(item.caption));
    action->setCheckable(true);
    action->setChecked(item.mode == mode_);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, mode = item.mode] { ModeClick(mode); });
  }
  InsertScalesSeparator("N5");
}

plots::ImpedanceChoice TFormZ::Choice() const {
  const auto on = [this](std::size_t i) { return checkBoxes_[i]->isChecked(); };
  return {on(0), on(1), on(2), on(3), on(4)};
}

void TFormZ::CheckBoxClick() {
  checkBoxes_[1]->setChecked(plots::AfterImpedanceClick(Choice()).port1);
  ComputeCurves();
  Redraw();
}

void TFormZ::ModeClick(ImpedanceMode mode) {
  mode_ = mode;
  ComputeCurves();
  Redraw();
}

void TFormZ::ComputeCurves() { plot_ = plots::BuildImpedancePlot(Inputs(), Choice(), mode_); }

void TFormZ::ResetScale(diagram::Diagram& d) { plots::SetImpedanceDefaults(d, plots::HighestFrequency(plot_)); }

void TFormZ::DrawPicture(diagram::Canvas& canvas) { plots::DrawFrequencyPlot(plot_, Look(), canvas); }

std::string TFormZ::ReadOutText(double x, double y) const { return plots::ImpedanceReadOut(x, y, mode_); }

// A logarithmic frequency axis cannot start at 0.
Bounds TFormZ::AxisBounds(AxisEnd end) const {
  const bool logX = diagram::CurrentDiagram().x.mode == diagram::AxisMode::Log;
  switch (end) {
    case AxisEnd::XMax: return {1, kHighestFrequencyBound};
    case AxisEnd::XMin: return {logX ? 1.0 : 0.0, kHighestFrequencyBound};
    case AxisEnd::YMin: return {-1e6, 1e5};
    case AxisEnd::YMax: break;
  }
  return {-1e5, 1e6};
}

std::string TFormZ::AxisLabel(AxisEnd end) const {
  if (!IsXEnd(end)) return TGraphForm::AxisLabel(end);
  return end == AxisEnd::XMax ? "fmax=" : "fmin=";
}

// The whole window as it stands, tool bar and read-out included, stretched as large as the page
// allows: a picture of the screen, as a printed form always was.
void TFormZ::PrintPage(QPainter& painter, QSize page) {
  const QPixmap window = grab();
  painter.drawPixmap(QRect(QPoint(0, 0), window.size().scaled(page, Qt::KeepAspectRatio)), window);
}

}  // namespace graphwin
