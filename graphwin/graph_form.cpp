// The common graph window's frame: its layout, menu and tool bar, activation and drawing.
#include "graph_form.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPrinter>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

#include "diagram/axis.h"
#include "diagram/scaling.h"
#include "frequency_cursor.h"
#include "graph_image.h"
#include "grhilfe.h"

namespace graphwin {
namespace {

constexpr int kClientWidth = 588;
constexpr int kClientHeight = 356;
constexpr int kToolBarHeight = 32;
constexpr int kButtonSide = 25;
constexpr int kStatusHeight = 25;
// Smaller pictures leave no room for a diagram frame.
constexpr int kSmallestSide = 64;

// The dot button's glyph: three dots on a line.
QIcon DotsIcon() {
  QPixmap pixmap(16, 16);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setBrush(Qt::black);
  for (const int x : {2, 7, 12}) painter.drawEllipse(x, 7, 2, 2);
  return QIcon(pixmap);
}

// A window of our own other than a dialog: switching back from it activates the window again.
bool IsOwnMainWindow(const QWidget* window, const QWidget* self) {
  return window != nullptr && window != self && qobject_cast<const QDialog*>(window) == nullptr;
}

}  // namespace

TGraphForm::TGraphForm(const char* name, const QString& caption, InputsSource inputs, const GraphDialogs& dialogs)
    : source_(std::move(inputs)), dialogs_(dialogs) {
  setObjectName(name);
  setWindowTitle(caption);
  BuildMenus();
  auto* central = new QWidget(this);
  auto* scrollBox = new QScrollArea(central);
  scrollBox->setObjectName("ScrollBox1");
  scrollBox->setWidgetResizable(true);
  scrollBox->setFrameShape(QFrame::NoFrame);
  auto* inside = new QWidget(scrollBox);
  auto* insideLayout = new QVBoxLayout(inside);
  insideLayout->setContentsMargins(0, 0, 0, 0);
  insideLayout->setSpacing(0);
  insideLayout->addWidget(BuildToolBar());
  image_ = new TDiagramImage(inside);
  insideLayout->addWidget(image_, 1);
  scrollBox->setWidget(inside);
  auto* layout = new QVBoxLayout(central);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(scrollBox, 1);
  layout->addWidget(BuildStatusBar());
  setCentralWidget(central);
  setMinimumSize(kLeastWindowWidth, kLeastWindowHeight);
  resize(kClientWidth, kClientHeight + menuBar()->sizeHint().height());
  connect(image_, &TDiagramImage::Resized, this, &TGraphForm::Redraw);
  connect(image_, &TDiagramImage::MouseDown, this, &TGraphForm::ImageMouseDown);
  connect(image_, &TDiagramImage::MouseMove, this, &TGraphForm::ImageMouseMove);
  connect(image_, &TDiagramImage::MouseUp, this, &TGraphForm::ImageMouseUp);
  connect(image_, &TDiagramImage::DoubleClick, this, &TGraphForm::ImageDblClick);
  if (dialogs_.cursor) dialogs_.cursor->Register(*this);
}

TGraphForm::~TGraphForm() {
  if (dialogs_.cursor) dialogs_.cursor->Unregister(*this);
}

QAction* TGraphForm::AddAction(QMenu* menu, const char* name, const QString& caption) {
  QAction* action = menu->addAction(caption);
  action->setObjectName(name);
  return action;
}

void TGraphForm::BuildMenus() {
  menuBar()->addMenu(BuildFileMenu());
  menuBar()->addMenu(BuildGraphicMenu());
  menuBar()->addMenu(BuildScalesMenu());
  QMenu* help = menuBar()->addMenu(QStringLiteral("&Help"));
  help->setObjectName("Hilfe1");
  QAction* usage = AddAction(help, "HilfezumProgramm1", QStringLiteral("&Help for Graphic Usage"));
  usage->setShortcut(Qt::Key_F1);
  connect(usage, &QAction::triggered, this, [this] {
    dialogs_.help->show();
    dialogs_.help->raise();
  });
}

QMenu* TGraphForm::BuildFileMenu() {
  file1_ = new QMenu(QStringLiteral("&File"), this);
  file1_->setObjectName("File1");
  QAction* bmp = AddAction(file1_, "Save1", QStringLiteral("&Save as BMP"));
  bmp->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
  connect(bmp, &QAction::triggered, this, &TGraphForm::Save1Click);
  connect(AddAction(file1_, "SaveasJPEG1", QStringLiteral("Save as &JPEG")), &QAction::triggered, this,
          &TGraphForm::SaveasJPEG1Click);
  connect(AddAction(file1_, "SaveasGIF1", QStringLiteral("Save as &GIF")), &QAction::triggered, this,
          &TGraphForm::SaveasGIF1Click);
  exportCurves1_ = AddAction(file1_, "ExportCurves1", QStringLiteral("Export Curves as &CSV..."));
  connect(exportCurves1_, &QAction::triggered, this, &TGraphForm::ExportCurves1Click);
  QAction* print = AddAction(file1_, "Print1", QStringLiteral("&Print"));
  print->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_P));
  connect(print, &QAction::triggered, this, &TGraphForm::Print1Click);
  file1_->addSeparator()->setObjectName("N1");
  QAction* exit = AddAction(file1_, "Exit1", QStringLiteral("E&xit"));
  exit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_F4));
  connect(exit, &QAction::triggered, this, &QWidget::close);
  return file1_;
}

QAction* TGraphForm::InsertFileItem(const char* name, const QString& caption) {
  auto* action = new QAction(caption, file1_);
  action->setObjectName(name);
  file1_->insertAction(exportCurves1_, action);
  return action;
}

QAction* TGraphForm::InsertScalesItem(const char* name, const QString& caption) {
  auto* action = new QAction(caption, scales1_);
  action->setObjectName(name);
  scales1_->insertAction(firstScalesItem_, action);
  return action;
}

void TGraphForm::InsertScalesSeparator(const char* name) {
  scales1_->insertSeparator(firstScalesItem_)->setObjectName(name);
}

QMenu* TGraphForm::InsertMenu(const char* name, const QString& title) {
  auto* menu = new QMenu(title, this);
  menu->setObjectName(name);
  menuBar()->insertMenu(findChild<QMenu*>("Hilfe1")->menuAction(), menu);
  return menu;
}

QMenu* TGraphForm::BuildGraphicMenu() {
  auto* graphic = new QMenu(QStringLiteral("&Graphic"), this);
  graphic->setObjectName("Graphik1");
  connect(AddAction(graphic, "Zeichnen1", QStringLiteral("&Draw")), &QAction::triggered, this, &TGraphForm::Redraw);
  QAction* copy = AddAction(graphic, "Copy1", QStringLiteral("&Copy"));
  copy->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_C));
  connect(copy, &QAction::triggered, this, &TGraphForm::Copy1Click);
  graphic->addSeparator()->setObjectName("N2");
  connect(AddAction(graphic, "Vergroessern1", QStringLiteral("&Increase Window Size")), &QAction::triggered, this,
          [this] { Resize(EnlargedSize({width(), height()})); });
  connect(AddAction(graphic, "Verkleinern1", QStringLiteral("&Decrease Window Size")), &QAction::triggered, this,
          [this] { Resize(ShrunkSize({width(), height()})); });
  QAction* standard = AddAction(graphic, "Standardgroesse1", QStringLiteral("&Standard Size"));
  standard->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
  connect(standard, &QAction::triggered, this, [this] { Resize(StandardSize(screen()->geometry().width())); });
  return graphic;
}

QMenu* TGraphForm::BuildScalesMenu() {
  auto* scales = scales1_ = new QMenu(QStringLiteral("&Scales"), this);
  scales->setObjectName("Skalierung1");
  firstScalesItem_ = AddAction(scales, "xAutoskalierung1", QStringLiteral("&x-Autoscale"));
  connect(firstScalesItem_, &QAction::triggered, this, [this] { Autoscale(true, false); });
  connect(AddAction(scales, "yAutoskalierung1", QStringLiteral("&y-Autoscale")), &QAction::triggered, this,
          [this] { Autoscale(false, true); });
  connect(AddAction(scales, "Autoskalierung1", QStringLiteral("xy-&Autoscale")), &QAction::triggered, this,
          [this] { Autoscale(true, true); });
  scales->addSeparator()->setObjectName("N3");
  xlog1_ = AddAction(scales, "xlog1", QStringLiteral("&x-logarithmic"));
  xlog1_->setCheckable(true);
  connect(xlog1_, &QAction::triggered, this, &TGraphForm::xlog1Click);
  ylog1_ = AddAction(scales, "ylog1", QStringLiteral("&y-logarithmic"));
  ylog1_->setCheckable(true);
  ylog1_->setEnabled(false);  // the y axis is never logarithmic
  ylog1_->setVisible(false);
  scales->addSeparator()->setObjectName("N4");
  connect(AddAction(scales, "Ursprungfestlegen1", QStringLiteral("&Define Origin")), &QAction::triggered, this,
          &TGraphForm::Ursprungfestlegen1Click);
  return scales;
}

QToolButton* TGraphForm::AddToolButton(const char* name, int left, const QString& caption, const QString& hint) {
  auto* button = new QToolButton(panel1_);
  button->setObjectName(name);
  button->setText(caption);
  button->setToolTip(hint);
  button->setGeometry(left, (kToolBarHeight - kButtonSide) / 2, kButtonSide, kButtonSide);
  QFont small = button->font();  // "x-log" and "Auto" fit the button's width
  small.setPixelSize(9);
  button->setFont(small);
  return button;
}

QCheckBox* TGraphForm::AddCheckBox(const CheckBoxLook& look, bool checked) {
  auto* box = new QCheckBox(QString::fromUtf8(look.caption), panel1_);
  box->setObjectName(look.name);
  box->setToolTip(QString::fromUtf8(look.hint));
  box->setChecked(checked);
  box->move(look.left, look.row * kToolBarHeight + (kToolBarHeight - box->sizeHint().height()) / 2);
  return box;
}

QWidget* TGraphForm::BuildToolBar() {
  panel1_ = new QFrame(this);
  panel1_->setObjectName("Panel1");
  static_cast<QFrame*>(panel1_)->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  panel1_->setFixedHeight(kToolBarHeight);
  const auto icon = [this](QStyle::StandardPixmap p) { return style()->standardIcon(p); };
  AddToolButton("CloseButton", 4, {}, QStringLiteral("Close graphic"))->setIcon(icon(QStyle::SP_DialogCloseButton));
  QToolButton* larger = AddToolButton("VergroessernButton", 40, {}, QStringLiteral("Increase"));
  larger->setIcon(icon(QStyle::SP_TitleBarMaxButton));
  QToolButton* smaller = AddToolButton("VerkleinernButton", 65, {}, QStringLiteral("Decrease"));
  smaller->setIcon(icon(QStyle::SP_TitleBarMinButton));
  QToolButton* standard = AddToolButton("StandardgrButton", 90, {}, QStringLiteral("Standard size"));
  standard->setIcon(icon(QStyle::SP_TitleBarNormalButton));
  QToolButton* xlog = AddToolButton("xlogButton", 128, QStringLiteral("x-log"),
                                    QStringLiteral("Switch between linear and logarithmic"));
  QToolButton* autoscale = AddToolButton("AutoskButton", 153, QStringLiteral("Auto"), QStringLiteral("xy-Autoscale"));
  AddToolButton("DotButton", 191, {}, QStringLiteral("Dots on/off"))->setIcon(DotsIcon());
  QToolButton* zoomIn = AddToolButton("ZoomInButton", 216, QStringLiteral("+"), QStringLiteral("Zoom in"));
  QToolButton* zoomOut = AddToolButton("ZoomOutButton", 241, QStringLiteral("-"), QStringLiteral("Zoom out"));
  connect(panel1_->findChild<QToolButton*>("CloseButton"), &QToolButton::clicked, this, &QWidget::close);
  connect(larger, &QToolButton::clicked, findChild<QAction*>("Vergroessern1"), &QAction::trigger);
  connect(smaller, &QToolButton::clicked, findChild<QAction*>("Verkleinern1"), &QAction::trigger);
  connect(standard, &QToolButton::clicked, findChild<QAction*>("Standardgroesse1"), &QAction::trigger);
  connect(xlog, &QToolButton::clicked, xlog1_, &QAction::trigger);
  connect(autoscale, &QToolButton::clicked, this, [this] { Autoscale(true, true); });
  connect(panel1_->findChild<QToolButton*>("DotButton"), &QToolButton::clicked, this, &TGraphForm::DotButtonClick);
  connect(zoomIn, &QToolButton::clicked, this, [this] { ZoomButtonClick(true); });
  connect(zoomOut, &QToolButton::clicked, this, [this] { ZoomButtonClick(false); });
  return panel1_;
}

QWidget* TGraphForm::BuildStatusBar() {
  auto* bar = new QFrame(this);
  bar->setObjectName("StatusBar");
  bar->setFixedHeight(kStatusHeight);
  currentPanel_ = new QLabel(bar);
  currentPanel_->setObjectName("CurrentPanel");
  currentPanel_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  QFont arial(QStringLiteral("Arial"));
  arial.setPixelSize(13);
  currentPanel_->setFont(arial);
  cursorPanel_ = new QLabel(bar);
  cursorPanel_->setObjectName("CursorPanel");
  cursorPanel_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  cursorPanel_->setFont(arial);
  // As wide as its widest text, so that moving the cursor never lays the status bar out again.
  cursorPanel_->setFixedWidth(cursorPanel_->fontMetrics().horizontalAdvance(QStringLiteral("Cursor : f=999.99MHz")) +
                              8);
  auto* layout = new QHBoxLayout(bar);
  layout->setContentsMargins(1, 1, 1, 1);
  layout->setSpacing(1);
  layout->addWidget(currentPanel_, 1);
  layout->addWidget(cursorPanel_);
  return bar;
}

void TGraphForm::ShowFromMain() {
  show();  // lays the window out first, so that the activation draws at the final size
  activateOnReturn_ = false;
  FormActivate();
  raise();
  activateWindow();
}

void TGraphForm::FormActivate() {
  inputs_ = source_();
  dotState_ = {!inputs_.options.connect, false};
  diagram::Diagram& d = diagram::CurrentDiagram();
  // The cartesian kind: a logarithmic x axis chosen before is kept, polar and Smith are not.
  if (diagram::IsRoundMode(d.x.mode)) diagram::SetAxisModes(d, diagram::AxisMode::Linear, diagram::AxisMode::Linear);
  ComputeCurves();
  ResetScale(d);
  ShowScaleModes();
  activated_ = true;
  Rescaled();
}

void TGraphForm::ShowScaleModes() {
  const diagram::Diagram& d = diagram::CurrentDiagram();
  xlog1_->setChecked(d.x.mode == diagram::AxisMode::Log);
  ylog1_->setChecked(d.y.mode == diagram::AxisMode::Log);
}

// Activation is due when the user comes back from another window of the program, but not from
// one of its dialogs, nor from another program.
bool TGraphForm::event(QEvent* event) {
  if (event->type() == QEvent::WindowDeactivate) {
    activateOnReturn_ = IsOwnMainWindow(QApplication::activeWindow(), this);
  } else if (event->type() == QEvent::WindowActivate && std::exchange(activateOnReturn_, false)) {
    FormActivate();
  }
  return QMainWindow::event(event);
}

plots::PlotLook TGraphForm::Look() const {
  const plots::DisplayOptions& o = inputs_.options;
  return {o.connect, o.spline, dotState_.dots, dotState_.second, o.legend};
}

void TGraphForm::Redraw() {
  if (!activated_ || image_->width() < kSmallestSide || image_->height() < kSmallestSide) return;
  if (requested_) {
    diagram::Diagram& d = diagram::CurrentDiagram();
    d.x.min = requested_->x.min;
    d.x.max = requested_->x.max;
    d.y.min = requested_->y.min;
    d.y.max = requested_->y.max;
  }
  picture_ = QImage(image_->size(), QImage::Format_RGB32);
  {
    QPainter painter(&picture_);
    diagram::Canvas canvas(painter, picture_.width(), picture_.height());
    DrawPicture(canvas);
  }
  image_->ShowPicture(picture_, diagram::CurrentDiagram());
  if (dialogs_.cursor) ShowCursor(dialogs_.cursor->Frequency());
}

void TGraphForm::Rescaled() {
  requested_ = diagram::CurrentDiagram();
  Redraw();
}

const QImage& TGraphForm::Picture() const { return picture_; }

void TGraphForm::PaintPicture(QPainter& painter, QSize size) {
  const diagram::Diagram screen = diagram::CurrentDiagram();
  diagram::Canvas canvas(painter, size.width(), size.height());
  DrawPicture(canvas);
  diagram::CurrentDiagram() = screen;
}

void TGraphForm::Resize(WindowSize size) { resize(size.width, size.height); }

}  // namespace graphwin
