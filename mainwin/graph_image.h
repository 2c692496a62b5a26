#pragma once

#include <QImage>
#include <QWidget>

#include "diagram/diagram_state.h"
#include "diagram/pages/page_graphs.h"

// The picture of an output page (Image1, Image2, Image3): it keeps the scene it was last asked
// to draw and redraws that scene at its own size, so a resize keeps the picture sharp while the
// content changes only when the page draws again. Under the mouse it reads the values out.
namespace mainwin {

class TGraphImage : public QWidget {
  Q_OBJECT

 public:
  TGraphImage(diagram::pages::OutputPage page, QWidget* parent = nullptr);

  diagram::pages::OutputPage Page() const { return page_; }
  void Draw(const diagram::pages::PageScene& scene);
  bool IsDrawn() const { return drawn_; }
  const diagram::pages::PageScene& Scene() const { return scene_; }
  // The picture as shown; null before the first drawing.
  const QImage& Picture() const { return picture_; }
  // The last scene drawn again into rect, on any device (a printer page, a larger picture).
  void Paint(QPainter& painter, const QRect& rect) const;

 signals:
  // The axis quantities with their units for the point under the mouse inside the frame
  // ("Ic = 15.18 mA, fT = 28.64 GHz"); empty outside it.
  void ReadOut(const QString& text);

 protected:
  // The tool tip of a point that carries the check of fT or fmax: why it is doubtful, its slope,
  // its crossing and k.
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  void Render();

  diagram::pages::OutputPage page_;
  diagram::pages::PageScene scene_;
  bool drawn_ = false;
  QImage picture_;
  diagram::Diagram scale_;  // the diagram state the picture was drawn with
};

}  // namespace mainwin
