#pragma once

#include <QWidget>

#include "graphwin/display_mode.h"
#include "frequency_files.h"
#include "graphwin/plots/graph_inputs.h"

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QToolButton;

namespace controls {
class TSpinButton;
}

namespace mainwin {

// Page 1, "S-Parameter vs Frequency": the loaded files, the display count, Z0, the display
// options and the buttons that open the diagram windows. Loading itself is the main window's.
class FrequencyPage : public QWidget {
  Q_OBJECT

 public:
  explicit FrequencyPage(QWidget* parent = nullptr);

  // A file the store has just taken as its next data set.
  void AddFile(const FrequencyFile& file);
  const FrequencyFiles& Files() const { return files_; }
  double Z0() const { return z0_; }
  bool ConnectFrequencyPoints() const;
  // The check boxes of the display group, as the graph windows read them.
  graphwin::plots::DisplayOptions DisplayOptions() const;

 signals:
  void DiagramRequested(graphwin::DiagramWindow window, graphwin::DisplayMode mode);

 private:
  QWidget* MakeFileColumn();
  QWidget* MakeDiagramButtons();
  QWidget* MakeCountAndZ0();
  void AddZ0Entry(QGridLayout& layout, int row);
  QWidget* MakeDisplayOptions();
  QPushButton* MakeDiagramButton(const char* name, const QString& caption, graphwin::DiagramWindow window,
                                 graphwin::DisplayMode mode);

  void SpeedButtonDeleteClick();
  void CheckListBox1ClickCheck(QListWidgetItem* item);
  void ZLEingabeChange(const QString& text);
  void ApplyActiveRule();
  void ShowDisplayCount(const QString& text);

  FrequencyFiles files_;
  double z0_ = 50;
  QListWidget* checkListBox1_ = nullptr;
  QLabel* label4_ = nullptr;
  QLineEdit* fnEingabe_ = nullptr;
  controls::TSpinButton* fAnzahlSpinButton_ = nullptr;
  QCheckBox* verbindenCheckBox_ = nullptr;
  QCheckBox* gleicheFrequenz_ = nullptr;
  QCheckBox* splineCheckBox_ = nullptr;
  QCheckBox* legendeCheckBox_ = nullptr;
  QCheckBox* kommentarCheckBox_ = nullptr;
  QCheckBox* dateiCheckBox_ = nullptr;
  QList<QPushButton*> singleFileButtons_;  // SpeedButton5 and SpeedButton6
  QList<QPushButton*> diagramButtons_;     // every diagram button
};

}  // namespace mainwin
