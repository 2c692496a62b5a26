#pragma once

#include <QString>
#include <functional>

class QWidget;

// Every message box of the windows goes through here, so that a test can answer it instead
// of a person (a modal box would block a headless run).
namespace controls {

using MessageHandler = std::function<void(const QString& text)>;
using QuestionHandler = std::function<bool(const QString& text)>;

// A modal box with the text and an OK button.
void ShowMessage(QWidget* parent, const QString& text);

// A modal box with the text and the buttons Yes and No; true for Yes.
bool AskQuestion(QWidget* parent, const QString& text);

// Replaces the modal boxes by handler until the returned guard is destroyed.
class MessageInterception {
 public:
  explicit MessageInterception(MessageHandler handler);
  ~MessageInterception();
  MessageInterception(const MessageInterception&) = delete;
  MessageInterception& operator=(const MessageInterception&) = delete;

 private:
  MessageHandler previous_;
};

// Replaces the Yes/No boxes by handler, whose result is the answer, until destroyed.
class QuestionInterception {
 public:
  explicit QuestionInterception(QuestionHandler handler);
  ~QuestionInterception();
  QuestionInterception(const QuestionInterception&) = delete;
  QuestionInterception& operator=(const QuestionInterception&) = delete;

 private:
  QuestionHandler previous_;
};

}  // namespace controls
