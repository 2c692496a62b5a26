#pragma once

#include <QMainWindow>
#include <QStringList>

#include "display_mode.h"
#include "mainwin/engine/series_list.h"

class QAction;
class QFileDialog;
class QMenu;
class QStackedWidget;
class QTabBar;
class QToolBar;

namespace mainwin {

class FormSet;
class FrequencyPage;
class InputPage;
class THistoryList;

// The main window: a notebook of six pages under a menu and a tool bar. It owns the files of the
// frequency page, the bias series and the entry values, reads netrix.ini when it is created and
// writes it when it closes.
class TSDIAppForm : public QMainWindow {
  Q_OBJECT

 public:
  // arguments: the command line without the program name; up to four files are loaded.
  TSDIAppForm(FormSet& forms, const QStringList& arguments);

  // The load command after the file dialog: loads an existing file as the next frequency-page file.
  void LoadFrequencyFile(const QString& fileName);
  // A drop from the file manager, dispatched on the page shown.
  void FilesDropped(const QStringList& paths);
  // Called once every window exists.
  void SetPrinterHint();

  int PageNumber() const { return pageNumber_; }
  // What the last diagram button asked for, and its "Connect Frequency Points" state.
  DisplayMode CurrentDisplayMode() const { return displayMode_; }
  bool ConnectForWindows() const { return connectForWindows_; }
  SeriesList& Series() { return series_; }
  THistoryList& HistoryList() { return *historyList1_; }

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
  QWidget* BuildBottomButtons();
  QAction* AddAction(QMenu* menu, const char* name, const QString& caption, const QString& hint);

  void FormCreate(const QStringList& arguments);
  void ReadIniFile();
  void WriteIniFile();
  void LoadCommandLine(const QStringList& arguments);
  void FormClose();

  void TabSet1Click(int index);
  void Load1Click();
  void HistoryList1Click(const QString& fileName);
  bool RefuseWhenStoreFull();
  void AppendSeriesFiles(const QStringList& paths);
  void ShowDiagram(DiagramWindow window, DisplayMode mode);
  void Help1Click();
  void VortoHelp1Click();
  void StayInFront1Click(bool checked);
  void ExecButtonClick();
  void Drucken1Click();
  void StartOrBeep(bool started);

  FormSet& forms_;
  SeriesList series_;
  int pageNumber_ = 1;
  DisplayMode displayMode_ = DisplayMode::InputReflection;
  bool connectForWindows_ = true;
  QString lastExportFile_;  // the name last chosen for an ASCII export
  QTabBar* tabSet1_ = nullptr;
  QStackedWidget* notebook1_ = nullptr;
  FrequencyPage* frequencyPage_ = nullptr;
  InputPage* inputPage_ = nullptr;
  QMenu* fileMenu_ = nullptr;
  QAction* drucken1_ = nullptr;
  THistoryList* historyList1_ = nullptr;
  QFileDialog* openDialog1_ = nullptr;
  QFileDialog* execDialog_ = nullptr;
};

}  // namespace mainwin
