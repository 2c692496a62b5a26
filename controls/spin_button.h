#pragma once

#include <QWidget>

class QToolButton;

namespace controls {

// Two stacked arrow buttons. Holding one down repeats its click, first after kRepeatDelayMs,
// then every kRepeatIntervalMs, so a user can run through a long range without clicking.
class TSpinButton : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kRepeatDelayMs = 400;
  static constexpr int kRepeatIntervalMs = 100;

  explicit TSpinButton(QWidget* parent = nullptr);

  QToolButton* UpButton() const { return up_; }
  QToolButton* DownButton() const { return down_; }

 signals:
  void UpClick();
  void DownClick();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QToolButton* up_;
  QToolButton* down_;
};

}  // namespace controls
