#include "message_box.h"

#include <QApplication>
#include <QMessageBox>
#include <utility>

namespace mainwin {
namespace {

MessageHandler& CurrentHandler() {
  static MessageHandler handler;
  return handler;
}

}  // namespace

void ShowMessage(QWidget* parent, const QString& text) {
  if (CurrentHandler()) {
    CurrentHandler()(text);
    return;
  }
  QMessageBox::information(parent, QApplication::applicationDisplayName(), text);
}

MessageInterception::MessageInterception(MessageHandler handler)
    : previous_(std::exchange(CurrentHandler(), std::move(handler))) {}

MessageInterception::~MessageInterception() { CurrentHandler() = std::move(previous_); }

}  // namespace mainwin
