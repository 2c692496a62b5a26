#pragma once

#include <QMainWindow>
#include <QStringList>
#include <functional>
#include <memory>

#include "graphwin/display_mode.h"
#include "graphwin/plots/graph_inputs.h"
#include "main_page.h"
#include "result_outputs.h"
#include "series/series_arrays.h"
#include "series/series_list.h"

class QAction;
class QDialog;
class QFileDialog;
class QMenu;
class QStackedWidget;
class QTabBar;

namespace graphwin {
class TGraphForm;
}

namespace mainwin {

class BiasSeries;
class FileLoading;
class FrequencyPage;
class InputPage;
class TGraphPage;
class THistoryList;
struct ProgramStart;

// The boxes the main window opens: the help of page 1, the help of the series pages, "Info...".
enum class MainBox { Help, FomHelp, About };

// The other windows the main window reaches, as the program's set of windows finds them.
struct WindowLookups {
  // Null while that window is not part of the program.
  std::function<graphwin::TGraphForm*(graphwin::DiagramWindow)> diagramWindow;
  std::function<QDialog*(MainBox)> box;
};

// The main window: a notebook of six pages under a menu and a tool bar. The files of the frequency
// page, the bias series and the output pages each have a class of their own; the window builds
// the controls, forwards their commands, reads netrix.ini when it is created and writes it when
// it closes.
class TSDIAppForm : public QMainWindow {
  Q_OBJECT

 public:
  // arguments: the command line without the program name; up to four files are loaded.
  TSDIAppForm(WindowLookups lookups, const QStringList& arguments);
  ~TSDIAppForm() override;

  // The load command after the file dialog: loads an existing file as the next frequency-page file.
  void LoadFrequencyFile(const QString& fileName);
  // A drop from the file manager, dispatched on the page shown: the first page loads the first
  // file, every other page extends the bias series.
  void FilesDropped(const QStringList& paths);
  // Called once every window exists.
  void SetPrinterHint();

  int PageNumber() const { return static_cast<int>(page_); }
  // What the last diagram button asked for, and its "Connect Frequency Points" state.
  graphwin::DisplayMode CurrentDisplayMode() const { return displayMode_; }
  bool ConnectForWindows() const { return connectForWindows_; }
  // What the graph windows draw from: the files of the frequency page and its display options.
  graphwin::plots::GraphInputs GraphInputs() const;
  series::SeriesList& Series();
  // The results of the last completed evaluation, one per file of the series.
  const series::SeriesArrays& Results() const;
  THistoryList& HistoryList();
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
  QMenu* BuildGraphicMenu();
  void AddOutputItems(QMenu* menu);
  QMenu* BuildToolsMenu();
  QMenu* BuildHelpMenu();
  void BuildToolBar();
  QWidget* BuildNotebook();
  void ConnectPages(const ResultOutputs::Pages& outputPages);
  QWidget* BuildBottomButtons();
  QAction* AddAction(QMenu* menu, const char* name, const QString& caption, const QString& hint);

  void FormCreate(const QStringList& arguments);
  void ReadIniFile();
  QString WriteIniFile();  // what stood in the way, or empty
  void FormClose();

  void TabSet1Click(int index);
  void Load1Click();
  void HistoryList1Click(const QString& fileName);
  void ReadTouchstoneFiles1Click(bool checked);
  void SpeedButtonDeleteListClick();
  void SpeedButtonDeletaLastFileClick();
  void StringGridFilesSelectCell(int row);
  void BitBtnCalcClick();
  void ExportData();
  void ShowAll1Click();
  void ShowfTandMAG1Click();
  void CopyImage1Click();
  void SaveGraphBMP1Click();
  void SaveGraphJPG1Click();
  void Drucken1Click();
  void PrintAllWindows1Click();
  void Print1stTwo1Click();
  void PrintTable1Click();
  void PrinterSetup1Click();
  void ShowDiagram(graphwin::DiagramWindow window, graphwin::DisplayMode mode);
  void Help1Click();
  void VortoHelp1Click();
  void StayInFront1Click(bool checked);
  void ExecButtonClick();
  void StartOrBeep(bool started);
  void SayWhenNotStarted(const QAction* item, const ProgramStart& start);

  WindowLookups lookups_;
  MainPage page_ = MainPage::Frequency;
  graphwin::DisplayMode displayMode_ = graphwin::DisplayMode::InputReflection;
  bool connectForWindows_ = true;
  QTabBar* tabSet1_ = nullptr;
  QStackedWidget* notebook1_ = nullptr;
  FrequencyPage* frequencyPage_ = nullptr;
  InputPage* inputPage_ = nullptr;
  std::unique_ptr<BiasSeries> series_;
  std::unique_ptr<ResultOutputs> outputs_;
  std::unique_ptr<FileLoading> loading_;
  QAction* drucken1_ = nullptr;
  QAction* readTouchstoneFiles1_ = nullptr;
  QFileDialog* execDialog_ = nullptr;
};

}  // namespace mainwin
