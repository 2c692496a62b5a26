#pragma once

#include <QWidget>

#include "diagram/pages/page_scene.h"

class QLabel;
class QLineEdit;

namespace mainwin {

class TGraphImage;

// One output page: its comment edit (initial text "Graphic"), the legend label of pages 3 and 4,
// and the image the graph is drawn into.
class TGraphPage : public QWidget {
  Q_OBJECT

 public:
  struct Names {
    const char* image;
    const char* comment;
    const char* legend;  // nullptr for a page without a legend label
    const char* legendText;
  };

  TGraphPage(diagram::pages::OutputPage page, const Names& names, QWidget* parent = nullptr);

  // Draws the scene; the legend label shows while both series of the page are shown.
  void Redraw(const diagram::pages::PageScene& scene);
  TGraphImage& Image() const { return *image_; }
  QLineEdit& CommentEdit() const { return *comment_; }
  // The legend text while the label is shown, else empty.
  QString LegendText() const;

 private:
  diagram::pages::OutputPage page_;
  TGraphImage* image_ = nullptr;
  QLineEdit* comment_ = nullptr;
  QLabel* legend_ = nullptr;
};

}  // namespace mainwin
