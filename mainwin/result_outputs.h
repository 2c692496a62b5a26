#pragma once

#include <QRect>
#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "diagram/pages/page_scene.h"
#include "main_page.h"

class QAction;
class QLineEdit;
class QMenu;
class QPainter;
class QPrinter;
class QWidget;

namespace controls {
class TStringAlignGrid;
}

namespace mainwin {

class BiasSeries;
class InputPage;
class TGraphPage;

// Pages 3 to 6 and what reaches them: the graphs and the table drawn on entry, the "&Graphic"
// menu's choice of series, printing, and the graph as picture file or clipboard copy.
class ResultOutputs {
 public:
  struct Pages {
    std::array<TGraphPage*, 3> graphs;
    QWidget* table;
  };

  // shownPage: the page of the notebook shown just now.
  ResultOutputs(QWidget& window, const BiasSeries& series, const InputPage& input,
                std::function<MainPage()> shownPage);
  ~ResultOutputs();

  // The three graph pages and the table page, made as children of parent.
  Pages BuildPages(QWidget* parent);
  // The four check items of the "&Graphic" menu; one of fT and fmax, one of MAG/MSG and k.
  void AddGraphicChoice(QMenu* menu);
  TGraphPage& GraphPage(diagram::pages::OutputPage page) const;

  void ShowAll();
  void ShowFtAndMag();
  void EnterPage(MainPage page);
  // The table page's comment edit, given the page's comment first where the user asks for that.
  QString TakeTableComment();

  void PrintShownPage();
  void PrintAll();
  void PrintFirstTwo();
  void PrintTable();
  void SetUpPrinter();
  void CopyImage();
  void SaveGraphPicture(bool jpeg);

 private:
  using Sheet = std::function<void(QPainter& painter, const QRect& area)>;

  void ToggleGraphicItem(QAction* item, QAction* partner, MainPage redrawOn, diagram::pages::OutputPage page);
  void RedrawGraphPage(diagram::pages::OutputPage page);
  void FillResultTable();
  void TakeCommentToOutputs(QLineEdit& edit) const;
  QPrinter& Printer();
  TGraphPage* ShownGraphPage();
  bool RefuseWithoutTwoFiles();
  void PrintSheets(const std::vector<Sheet>& sheets);
  Sheet GraphSheet(diagram::pages::OutputPage page);
  Sheet TableSheet();

  QWidget& window_;
  const BiasSeries& series_;
  const InputPage& input_;
  std::function<MainPage()> shownPage_;
  std::array<TGraphPage*, 3> graphPages_{};
  controls::TStringAlignGrid* stringAlignGridTab_ = nullptr;
  QLineEdit* editComment3_ = nullptr;
  QAction* fTonly1_ = nullptr;
  QAction* fmaxonly1_ = nullptr;
  QAction* mAGMSGonly1_ = nullptr;
  QAction* konly1_ = nullptr;
  std::unique_ptr<QPrinter> printer_;
};

}  // namespace mainwin
