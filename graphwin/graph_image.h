#pragma once

#include <QImage>
#include <QWidget>
#include <vector>

#include "diagram/diagram_state.h"

// The window's Image: it shows the picture its window drew at its size, keeps the diagram state
// of that drawing for the mouse, and passes the mouse on. The picture is kept apart from the
// painting, so that marks can be painted over it without drawing it again.
namespace graphwin {

class TDiagramImage : public QWidget {
  Q_OBJECT

 public:
  explicit TDiagramImage(QWidget* parent = nullptr);

  void ShowPicture(const QImage& picture, const diagram::Diagram& scale);
  const QImage& Picture() const { return picture_; }
  // The diagram state the picture was drawn with.
  const diagram::Diagram& Scale() const { return scale_; }
  // Small rings over the picture at these pixels; only their surroundings are painted again.
  void ShowMarks(std::vector<QPoint> marks);
  const std::vector<QPoint>& Marks() const { return marks_; }

 signals:
  void MouseDown(QPoint at, Qt::MouseButton button);
  void MouseMove(QPoint at);
  void MouseUp(QPoint at, Qt::MouseButton button);
  void DoubleClick(QPoint at);
  void Resized();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void UpdateAroundMarks();

  QImage picture_;
  diagram::Diagram scale_;
  std::vector<QPoint> marks_;
};

}  // namespace graphwin
