#pragma once

#include <QMainWindow>
#include <QPointF>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "diagram/canvas.h"
#include "diagram/diagram_state.h"
#include "plots/frequency_plot.h"
#include "plots/graph_inputs.h"
#include "window_rules.h"

class QAction;
class QCheckBox;
class QLabel;
class QMenu;
class QPrinter;
class QToolButton;

// The frame, the controls and the handlers that every graph window shares: the menu, the tool
// bar, the Image with its mouse read-out, zoom, the autoscales, x-log, the dot cycle, the
// axis-end dialog, the rubber band, the origin, the size commands, copy, the picture files,
// the curve export and printing. A window adds what it plots, its defaults and its read-out.
namespace graphwin {

class FrequencyCursor;
class TDiagramImage;
class TGRHilfeBox;
class TQcircle;
class TXmaxDlg1;

// The dialogs all graph windows share, created after the windows and so filled in later, and
// the frequency cursor that links the open windows (none: the window stands alone).
struct GraphDialogs {
  TGRHilfeBox* help = nullptr;
  TXmaxDlg1* axisValue = nullptr;
  TQcircle* qCircle = nullptr;
  FrequencyCursor* cursor = nullptr;
};

// A window's check box on the tool bar; row 1 lies below the buttons.
struct CheckBoxLook {
  const char* name;
  int left;
  const char* caption;
  const char* hint;
  int row = 0;
};

using InputsSource = std::function<plots::GraphInputs()>;

class TGraphForm : public QMainWindow {
  Q_OBJECT

 public:
  TGraphForm(const char* name, const QString& caption, InputsSource inputs, const GraphDialogs& dialogs);
  ~TGraphForm() override;

  // The main window shows the window: it is activated at once, and not once more when the
  // window manager hands it the focus.
  void ShowFromMain();
  // Takes the main window's files and options, resets the ranges to the window's own defaults
  // (zooms made earlier are not kept), computes the curves and draws.
  void FormActivate();

  const QImage& Picture() const;
  // The window's picture drawn afresh at size on any device; the screen's diagram state stays.
  void PaintPicture(QPainter& painter, QSize size);
  // Marks the frequency on the curves, over the picture, and in the read-out; none clears both.
  void ShowCursor(std::optional<double> frequency);

 protected:
  // Window-specific controls go right of the zoom buttons, at these left positions.
  QWidget* ToolPanel() const { return panel1_; }
  // A window's own item of the "&File" menu, after the picture saves.
  QAction* InsertFileItem(const char* name, const QString& caption);
  // A window's display-mode items at the top of "&Scales", before the autoscales.
  QAction* InsertScalesItem(const char* name, const QString& caption);
  void InsertScalesSeparator(const char* name);
  // A menu of the window's own, before "&Help".
  QMenu* InsertMenu(const char* name, const QString& title);
  QCheckBox* AddCheckBox(const CheckBoxLook& look, bool checked);
  // The check marks of x-log and y-log after the scale modes.
  void ShowScaleModes();
  // A "Printer &Setup" item of "&File" that opens the printer set-up dialog on the window's printer.
  void AddPrinterSetupItem(const char* name);
  const plots::GraphInputs& Inputs() const { return inputs_; }
  const GraphDialogs& Dialogs() const { return dialogs_; }
  // The page's display options and the dot cycle, as the drawing takes them.
  plots::PlotLook Look() const;
  void Redraw();
  // The ranges of the diagram state are what the user asked for now: later redraws start from
  // them again, so that a polar or Smith diagram, which widens one axis to fit its picture,
  // keeps its range however often the window is resized. Then redraws.
  void Rescaled();
  // Writes a text file whole or not at all; a failure is reported.
  void WriteTextFile(const QString& path, const std::string& text);
  // The hidden "Save Table" of the gain and stability windows: asks for the file, writes the text.
  void SaveTable(const std::string& text);

  virtual void ComputeCurves() = 0;
  // The ranges, steps, crossing and label counts the window starts with.
  virtual void ResetScale(diagram::Diagram& d) = 0;
  // The window's one drawing routine, on the program-wide diagram state.
  virtual void DrawPicture(diagram::Canvas& canvas) = 0;
  virtual std::string ReadOutText(double x, double y) const = 0;
  virtual Bounds AxisBounds(AxisEnd end) const = 0;
  // The axis dialog's label for an axis end: "xmax=" and so on.
  virtual std::string AxisLabel(AxisEnd end) const;
  // The printed page: the diagram drawn afresh in the picture's proportions, fitted to the page or,
  // where the window prints its bitmap, as wide as the page.
  virtual void PrintPage(QPainter& painter, QSize page);
  // Whether x is frequency: the mouse then picks the cursor's frequency by its column alone.
  virtual bool PlotsAgainstFrequency() const = 0;
  // Where a frequency lies on the window's curves, as world points.
  virtual std::vector<QPointF> CursorPoints(double frequency) const = 0;
  // What the autoscales look at.
  virtual std::vector<double> XValues() const = 0;
  virtual std::vector<double> YValues() const = 0;
  // The curves as plotted, as CSV text.
  virtual std::string CurvesCsv() const = 0;
  // The message that refuses a logarithmic x axis in the present display; empty to allow it.
  virtual std::string LogXRefusal() const { return {}; }
  // A double click defines the origin also in a polar diagram, instead of beeping there.
  virtual bool DefinesOriginOnEveryDoubleClick() const { return false; }
  // Prints the picture as wide as the page, refusing while the printer is busy, instead of the
  // whole diagram fitted to the page.
  virtual bool PrintsBitmap() const { return false; }

  bool event(QEvent* event) override;

 private:
  void BuildMenus();
  QMenu* BuildFileMenu();
  QMenu* BuildGraphicMenu();
  QMenu* BuildScalesMenu();
  QWidget* BuildToolBar();
  QWidget* BuildStatusBar();
  QAction* AddAction(QMenu* menu, const char* name, const QString& caption);
  QToolButton* AddToolButton(const char* name, int left, const QString& caption, const QString& hint);

  void ImageMouseDown(QPoint at, Qt::MouseButton button);
  void ImageMouseMove(QPoint at);
  void ImageMouseUp(QPoint at, Qt::MouseButton button);
  void ImageDblClick();
  // The frequency of the first active file nearest to the mouse: by the column alone where x is
  // frequency, else by the distance to the cursor's points.
  std::optional<double> NearestFrequency(QPoint at) const;
  void AskAxisLimit(AxisEnd end, QPoint at);
  double AskValue(const QString& label, double value, Bounds bounds, QPoint position);
  void Ursprungfestlegen1Click();
  void ZoomButtonClick(bool in);
  void Autoscale(bool x, bool y);
  void xlog1Click();
  void DotButtonClick();
  void Resize(WindowSize size);

  void Copy1Click();
  void Save1Click();
  void SaveasJPEG1Click();
  void SaveasGIF1Click();
  void ExportCurves1Click();
  void Print1Click();
  void PrinterSetupClick();
  QPrinter& Printer();

  InputsSource source_;
  const GraphDialogs& dialogs_;
  plots::GraphInputs inputs_;
  DotState dotState_;
  bool activated_ = false;
  bool activateOnReturn_ = false;
  std::optional<QPointF> rubberStart_;  // world point where the right button went down
  std::optional<diagram::Diagram> requested_;  // the ranges as last asked for
  QString lastPictureFile_;
  QImage picture_;
  std::unique_ptr<QPrinter> printer_;
  QMenu* file1_ = nullptr;
  QMenu* scales1_ = nullptr;
  QAction* firstScalesItem_ = nullptr;  // the window's display modes go before it
  QAction* exportCurves1_ = nullptr;  // the window's own file items go before it
  QWidget* panel1_ = nullptr;
  TDiagramImage* image_ = nullptr;
  QLabel* currentPanel_ = nullptr;
  QLabel* cursorPanel_ = nullptr;
  QAction* xlog1_ = nullptr;
  QAction* ylog1_ = nullptr;
};

}  // namespace graphwin
