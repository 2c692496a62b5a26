#include "zwin.h"

#include <QAction>
#include <QActionGroup>
#include <QPainter>
#include <QPixmap>

namespace graphwin {
namespace {

using plots::ImpedanceMode;

// In the order of plots::ImpedanceChoice; "Zchar" finds no room beside the others and goes below them.
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

plots::ImpedanceChoice ChoiceOf(const std::vector<bool>& boxes) {
  return {boxes[0], boxes[1], boxes[2], boxes[3], boxes[4]};
}
std::vector<bool> BoxesOf(const plots::ImpedanceChoice& choice) {
  return {choice.sym, choice.port1, choice.port2, choice.cross, choice.image};
}

std::vector<bool> AfterClick(std::vector<bool> boxes, std::size_t) {
  boxes[1] = plots::AfterImpedanceClick(ChoiceOf(boxes)).port1;
  return boxes;
}

// A logarithmic frequency axis cannot start at 0.
Bounds BoundsOf(AxisEnd end, bool logX) {
  switch (end) {
    case AxisEnd::XMax: return {1, kHighestFrequencyBound};
    case AxisEnd::XMin: return {logX ? 1.0 : 0.0, kHighestFrequencyBound};
    case AxisEnd::YMin: return {-1e6, 1e5};
    case AxisEnd::YMax: break;
  }
  return {-1e5, 1e6};
}

constexpr FrequencyWindow kImpedance{"FormZ", "Impedance Z(f)", kBoxes, AfterClick, plots::SetImpedanceDefaults,
                                     BoundsOf};

}  // namespace

TFormZ::TFormZ(InputsSource inputs, const GraphDialogs& dialogs)
    : TFrequencyForm(kImpedance, BoxesOf({}), std::move(inputs), dialogs) {
  ToolPanel()->setFixedHeight(2 * ToolPanel()->height());
  BuildModeItems();
  AddPrinterSetupItem("Druckereinstellung1");
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

void TFormZ::ModeClick(ImpedanceMode mode) {
  mode_ = mode;
  ComputeCurves();
  Redraw();
}

plots::FrequencyPlot TFormZ::BuildPlot() const {
  return plots::BuildImpedancePlot(Inputs(), ChoiceOf(Checked()), mode_);
}

std::string TFormZ::ReadOutText(double x, double y) const { return plots::ImpedanceReadOut(x, y, mode_); }

std::string TFormZ::AxisLabel(AxisEnd end) const {
  if (!IsXEnd(end)) return TFrequencyForm::AxisLabel(end);
  return end == AxisEnd::XMax ? "fmax=" : "fmin=";
}

// The whole window as it stands, tool bar and read-out included, stretched as large as the page
// allows: a picture of the screen, as a printed form always was.
void TFormZ::PrintPage(QPainter& painter, QSize page) {
  const QPixmap window = grab();
  painter.drawPixmap(QRect(QPoint(0, 0), window.size().scaled(page, Qt::KeepAspectRatio)), window);
}

}  // namespace graphwin
