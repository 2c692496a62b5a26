#pragma once

#include <QDialog>

// "Help for Graphics": one program-wide box that every graph window shows from its help menu.
namespace graphwin {

class TGRHilfeBox : public QDialog {
  Q_OBJECT

 public:
  explicit TGRHilfeBox(QWidget* parent = nullptr);
};

}  // namespace graphwin
