#pragma once

#include <QDialog>

// The information box of "&Info...": program name, version and purpose on a gradient backdrop.
namespace mainwin {

class TAboutBox : public QDialog {
  Q_OBJECT

 public:
  explicit TAboutBox(QWidget* parent = nullptr);
};

}  // namespace mainwin
