#include "message_box.h"

#include <QApplication>
#include <QMessageBox>
#include <utility>

namespace controls {
namespace {

MessageHandler& CurrentHandler() {
  static MessageHandler handler;
  return handler;
}

QuestionHandler& CurrentQuestionHandler() {
  static QuestionHandler handler;
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

bool AskQuestion(QWidget* parent, const QString& text) {
  if (CurrentQuestionHandler()) return CurrentQuestionHandler()(text);
  return QMessageBox::question(parent, QApplication::applicationDisplayName(), text,
                               QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

MessageInterception::MessageInterception(MessageHandler handler)
    : previous_(std::exchange(CurrentHandler(), std::move(handler))) {}

MessageInterception::~MessageInterception() { CurrentHandler() = std::move(previous_); }

QuestionInterception::QuestionInterception(QuestionHandler handler)
    : previous_(std::exchange(CurrentQuestionHandler(), std::move(handler))) {}

QuestionInterception::~QuestionInterception() { CurrentQuestionHandler() = std::move(previous_); }

}  // namespace controls
