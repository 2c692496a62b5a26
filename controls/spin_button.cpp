#include "spin_button.h"

#include <QEvent>
#include <QToolButton>
#include <QVBoxLayout>

namespace controls {
namespace {

QToolButton* MakeArrowButton(Qt::ArrowType arrow, const QString& name, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(name);
  button->setArrowType(arrow);
  button->setAutoRepeat(true);
  button->setAutoRepeatDelay(TSpinButton::kRepeatDelayMs);
  button->setAutoRepeatInterval(TSpinButton::kRepeatIntervalMs);
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  return button;
}

}  // namespace

TSpinButton::TSpinButton(QWidget* parent)
    : QWidget(parent),
      up_(MakeArrowButton(Qt::UpArrow, "UpButton", this)),
      down_(MakeArrowButton(Qt::DownArrow, "DownButton", this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(up_);
  layout->addWidget(down_);
  connect(up_, &QToolButton::clicked, this, &TSpinButton::UpClick);
  connect(down_, &QToolButton::clicked, this, &TSpinButton::DownClick);
}

void TSpinButton::changeEvent(QEvent* event) {
  // A disabled spin button must also stop a repeat that is running.
  if (event->type() == QEvent::EnabledChange && !isEnabled()) {
    up_->setDown(false);
    down_->setDown(false);
  }
  QWidget::changeEvent(event);
}

}  // namespace controls
