#pragma once

#include <QMainWindow>
#include <QStringList>
#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "graphwin/display_mode.h"
#include "graphwin/plots/graph_inputs.h"
#include "series/series_arrays.h"
#include "series/series_list.h"
#include "diagram/pages/page_scene.h"

class QAction;
class QFileDialog;
class QLineEdit;
class QMenu;
class QPainter;
class QPrinter;
class QSettings;
class QStackedWidget;
class QTabBar;
class QToolBar;

namespace controls {
class TStringAlignGrid;
}

namespace mainwin {

class FormSet;
struct ProgramStart;
class FrequencyPage;
class InputPage;
class TGraphPage;
class THistoryList;

// The main window: a notebook of six pages under a menu and a tool bar. It owns the files of the
// frequency page, the bias series and the entry values, reads netrix.ini when it is created and
// writes it when it closes.
class TSDIAppForm : public QMainWindow {
  Q_OBJECT

 public:
  // arguments: the command line without the program name; up to four files are loaded.
  TSDIAppForm(FormSet& forms, const QStringList& arguments);
  ~TSDIAppForm() override;

  // The load command after the file dialog: loads an existing file as the next frequency-page file.
  void LoadFrequencyFile(const QString& fileName);
  // A drop from the file manager, dispatched on the page shown: the first page loads the first
  // file, every other page extends the bias series.
  void FilesDropped(const QStringList& paths);
  // Called once every window exists.
  void SetPrinterHint();

  int PageNumber() const { return pageNumber_; }
  // What the last diagram button asked for, and its "Connect Frequency Points" state.
  graphwin::DisplayMode CurrentDisplayMode() const { return displayMode_; }
  bool ConnectForWindows() const { return connectForWindows_; }
  // What the graph windows draw from: the files of the frequency page and its display options.
  graphwin::plots::GraphInputs GraphInputs() const;
  series::SeriesList& Series() { return series_; }
  // The results of the last completed evaluation, one per file of the series.
  const series::SeriesArrays& Results() const { return results_; }
  THistoryList& HistoryList() { return *historyList1_; }
  TGraphPage& GraphPage(diagram::pages::OutputPage page) const;

 signals:
  void FormClosed();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void BuildMenus();
  QMenu* BuildFileMenu();
  QMenu* BuildToolsMenu();
  QMenu* BuildHelpMenu();
  void BuildToolBar();
  QWidget* BuildNotebook();
  void ConnectPages();
  QWidget* BuildBottomButtons();
  QAction* AddAction(QMenu* menu, const char* name, const QString& caption, const QString& hint);

  void FormCreate(const QStringList& arguments);
  void ReadIniFile();
  QString WriteIniFile();  // what stood in the way, or empty
  void LoadCommandLine(const QStringList& arguments);
  void FormClose();

  void TabSet1Click(int index);
  void Load1Click();
  void HistoryList1Click(const QString& fileName);
  void ReadTouchstoneFiles1Click(bool checked);
  bool ReadsTouchstone() const;
  void RestoreReadingChoice(const QSettings& settings);
  bool RefuseWhenStoreFull();
  void AppendSeriesFiles(const QStringList& paths);
  void SpeedButtonDeleteListClick();
  void SpeedButtonDeletaLastFileClick();
  void StringGridFilesSelectCell(int row);
  bool CalculateSeries();
  void ExportData();
  series::SeriesArrays ShownResults() const;
  series::SeriesSettings OutputSettings() const;

  QMenu* BuildGraphicMenu();
  void AddOutputItems(QMenu* menu);
  void EnterOutputPage(int page);
  void RedrawGraphPage(diagram::pages::OutputPage page);
  void FillResultTable();
  void TakeCommentToOutputs(QLineEdit& edit) const;
  void ToggleGraphicItem(QAction* item, QAction* partner, int redrawOnPage, diagram::pages::OutputPage page);
  void ShowAll1Click();
  void ShowfTandMAG1Click();

  using Sheet = std::function<void(QPainter& painter, const QRect& area)>;
  QPrinter& Printer();
  TGraphPage* ShownGraphPage();
  bool RefuseWithoutTwoFiles();
  void PrintSheets(const std::vector<Sheet>& sheets);
  Sheet GraphSheet(diagram::pages::OutputPage page);
  Sheet TableSheet();
  void PrintAllWindows1Click();
  void Print1stTwo1Click();
  void PrintTable1Click();
  void PrinterSetup1Click();
  void CopyImage1Click();
  void SaveGraphPicture(bool jpeg);
  void ShowDiagram(graphwin::DiagramWindow window, graphwin::DisplayMode mode);
  void Help1Click();
  void VortoHelp1Click();
  void StayInFront1Click(bool checked);
  void ExecButtonClick();
  void Drucken1Click();
  void StartOrBeep(bool started);
  void SayWhenNotStarted(const QAction* item, const ProgramStart& start);

  FormSet& forms_;
  series::SeriesList series_;
  series::SeriesArrays results_;
  int pageNumber_ = 1;
  graphwin::DisplayMode displayMode_ = graphwin::DisplayMode::InputReflection;
  bool connectForWindows_ = true;
  QString lastExportFile_;  // the name last chosen for an ASCII export
  QTabBar* tabSet1_ = nullptr;
  QStackedWidget* notebook1_ = nullptr;
  FrequencyPage* frequencyPage_ = nullptr;
  InputPage* inputPage_ = nullptr;
  std::array<TGraphPage*, 3> graphPages_{};
  controls::TStringAlignGrid* stringAlignGridTab_ = nullptr;
  QLineEdit* editComment3_ = nullptr;
  QAction* fTonly1_ = nullptr;
  QAction* fmaxonly1_ = nullptr;
  QAction* mAGMSGonly1_ = nullptr;
  QAction* konly1_ = nullptr;
  std::unique_ptr<QPrinter> printer_;
  QMenu* fileMenu_ = nullptr;
  QAction* drucken1_ = nullptr;
  QAction* readTouchstoneFiles1_ = nullptr;
  THistoryList* historyList1_ = nullptr;
  QFileDialog* openDialog1_ = nullptr;
  QFileDialog* execDialog_ = nullptr;
};

}  // namespace mainwin
