#pragma once

#include <QString>
#include <QStringList>

class QAction;
class QFileDialog;
class QMenu;
class QSettings;
class QWidget;

namespace mainwin {

class BiasSeries;
class FrequencyPage;
class InputPage;
class THistoryList;

// How files reach the frequency page: the load command and its dialog, the command line, the
// recent-files list and the choice of reading plain or Touchstone. A loaded file joins the bias
// series as well. Messages go to window.
class FileLoading {
 public:
  FileLoading(QWidget& window, FrequencyPage& frequencyPage, InputPage& inputPage, BiasSeries& series);

  // The recent files, listed in fileMenu in place of base.
  void AddRecentFiles(QMenu* fileMenu, QAction* base);
  THistoryList& HistoryList() const { return *historyList1_; }
  // The recent files and the checkable "Read Touchstone Files" item as the per-user settings keep them.
  void Restore(QAction* readingItem, QSettings& settings);
  void Save(QSettings& settings) const;
  void ReadingChoiceChanged(bool touchstone);
  bool ReadsTouchstone() const;

  void Load();
  // Loads an existing file as the next frequency-page file.
  void LoadFile(const QString& fileName);
  // Loads fileName unless four files are open.
  void LoadUnlessFull(const QString& fileName);
  // Up to four files; a missing one is told and counts as one of the four.
  void LoadCommandLine(const QStringList& arguments);

 private:
  bool RefuseWhenStoreFull();

  QWidget& window_;
  FrequencyPage& frequencyPage_;
  InputPage& inputPage_;
  BiasSeries& series_;
  THistoryList* historyList1_ = nullptr;
  QAction* readTouchstoneFiles1_ = nullptr;
  QFileDialog* openDialog1_ = nullptr;
};

}  // namespace mainwin
