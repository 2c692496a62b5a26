#pragma once

#include <QColor>
#include <QWidget>

namespace controls {

// A panel whose background runs smoothly from one colour to another; other controls may sit on
// it. The information box uses it as its backdrop.
class TGradientPanel : public QWidget {
  Q_OBJECT

 public:
  enum class Direction { TopToBottom, LeftToRight };

  explicit TGradientPanel(QWidget* parent = nullptr);

  void SetColors(const QColor& start, const QColor& end);
  void SetDirection(Direction direction);
  QColor StartColor() const { return start_; }
  QColor EndColor() const { return end_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor start_{0, 0, 128};
  QColor end_{0, 0, 0};
  Direction direction_ = Direction::TopToBottom;
};

}  // namespace controls
