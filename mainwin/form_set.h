#pragma once

#include <QStringList>
#include <array>
#include <memory>
#include <vector>

#include "graphwin/display_mode.h"
#include "graphwin/graph_form.h"

class QWidget;

namespace graphwin {
class TFormG;
class TFormPhi;
class TFormVu;
class TGRHilfeBox;
class TQcircle;
class TXmaxDlg1;
}  // namespace graphwin

namespace mainwin {

class TAboutBox;
class THilfeBox;
class THilfeFOMBox;
class TSDIAppForm;

// Every window of the program, created at once in a fixed order (the main window first) and
// kept until the program ends; windows other than the main window are shown on demand.
class FormSet {
 public:
  // arguments: the command line without the program name, handed to the main window.
  explicit FormSet(const QStringList& arguments);
  ~FormSet();
  FormSet(const FormSet&) = delete;
  FormSet& operator=(const FormSet&) = delete;

  TSDIAppForm* SDIAppForm() const { return sdiAppForm_; }
  TAboutBox* AboutBox() const { return aboutBox_; }
  THilfeFOMBox* HilfeFOMBox() const { return hilfeFomBox_; }
  THilfeBox* HilfeBox() const { return hilfeBox_; }
  graphwin::TFormVu* FormVu() const { return formVu_; }
  graphwin::TFormPhi* FormPhi() const { return formPhi_; }
  graphwin::TFormG* FormG() const { return formG_; }
  graphwin::TGRHilfeBox* GRHilfeBox() const { return graphDialogs_.help; }
  graphwin::TXmaxDlg1* XmaxDlg1() const { return graphDialogs_.axisValue; }
  graphwin::TQcircle* Qcircle() const { return graphDialogs_.qCircle; }
  // The graph window of a diagram button; null while that window is not part of the program.
  graphwin::TGraphForm* DiagramWindowOf(graphwin::DiagramWindow window) const;

 private:
  friend struct FormFactories;

  std::vector<std::unique_ptr<QWidget>> created_;  // in creation order
  TSDIAppForm* sdiAppForm_ = nullptr;
  TAboutBox* aboutBox_ = nullptr;
  THilfeFOMBox* hilfeFomBox_ = nullptr;
  THilfeBox* hilfeBox_ = nullptr;
  graphwin::TFormVu* formVu_ = nullptr;
  graphwin::TFormPhi* formPhi_ = nullptr;
  graphwin::TFormG* formG_ = nullptr;
  graphwin::GraphDialogs graphDialogs_;
  std::array<graphwin::TGraphForm*, graphwin::kDiagramWindowCount> diagramWindows_{};
};

// Names the application ("S-Parameter Analysis") and where its per-user settings live.
void InitialiseApplication();

// The whole GUI: the application object, every window, the event loop. Returns the exit status.
int RunGui(int& argc, char** argv);

}  // namespace mainwin
