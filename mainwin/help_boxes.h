#pragma once

#include <QDialog>

// The two help boxes: THilfeBox for page 1 (loading files, diagrams), THilfeFOMBox for the
// bias-series pages. The main window's "&Help" chooses by the page shown.
namespace mainwin {

class THilfeBox : public QDialog {
  Q_OBJECT

 public:
  explicit THilfeBox(QWidget* parent = nullptr);
};

class THilfeFOMBox : public QDialog {
  Q_OBJECT

 public:
  explicit THilfeFOMBox(QWidget* parent = nullptr);
};

}  // namespace mainwin
