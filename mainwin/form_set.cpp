#include "form_set.h"

#include <QApplication>
#include <cassert>
#include <memory>

#include "about_box.h"
#include "display_guard.h"
#include "file_names.h"
#include "graphwin/grhilfe.h"
#include "graphwin/gwin.h"
#include "graphwin/kwin.h"
#include "graphwin/phiwin.h"
#include "graphwin/qkreis.h"
#include "graphwin/vuwin.h"
#include "graphwin/xmax_dlg.h"
#include "graphwin/zwin.h"
#include "help_boxes.h"
#include "main_window.h"

namespace mainwin {

// One entry per window, in the order the windows are created: the main window, the graph windows
// and their dialogs, then the boxes. A new window takes its place in kCreationOrder.
struct FormFactories {
  using Factory = QWidget* (*)(FormSet& forms, const QStringList& arguments);

  static QWidget* CreateSDIAppForm(FormSet& forms, const QStringList& arguments) {
    // The boxes in the order of MainBox; they exist by the time the window asks for one.
    const auto box = [&forms](MainBox b) {
      return std::array<QDialog*, 3>{forms.HilfeBox(), forms.HilfeFOMBox(), forms.AboutBox()}[static_cast<int>(b)];
    };
    const auto diagram = [&forms](graphwin::DiagramWindow window) { return forms.DiagramWindowOf(window); };
    return forms.sdiAppForm_ = new TSDIAppForm({diagram, box}, arguments);
  }
  // A graph window that draws from the main window's files and options.
  template <typename Window, graphwin::DiagramWindow kind>
  static QWidget* CreateGraphForm(FormSet& forms, const QStringList&) {
    TSDIAppForm* main = forms.sdiAppForm_;
    auto* window = new Window([main] { return main->GraphInputs(); }, forms.graphDialogs_);
    forms.diagramWindows_[static_cast<std::size_t>(kind)] = window;
    return window;
  }
  static QWidget* CreateGRHilfeBox(FormSet& forms, const QStringList&) {
    return forms.graphDialogs_.help = new graphwin::TGRHilfeBox;
  }
  static QWidget* CreateXmaxDlg1(FormSet& forms, const QStringList&) {
    return forms.graphDialogs_.axisValue = new graphwin::TXmaxDlg1;
  }
  static QWidget* CreateAboutBox(FormSet& forms, const QStringList&) {
    return forms.aboutBox_ = new TAboutBox;
  }
  static QWidget* CreateHilfeFOMBox(FormSet& forms, const QStringList&) {
    return forms.hilfeFomBox_ = new THilfeFOMBox;
  }
  static QWidget* CreateHilfeBox(FormSet& forms, const QStringList&) {
    return forms.hilfeBox_ = new THilfeBox;
  }
  static QWidget* CreateQcircle(FormSet& forms, const QStringList&) {
    return forms.graphDialogs_.qCircle = new graphwin::TQcircle;
  }

  static constexpr Factory kCreationOrder[] = {
      CreateSDIAppForm,
      CreateGraphForm<graphwin::TFormVu, graphwin::DiagramWindow::Transmission>,
      CreateGraphForm<graphwin::TFormPhi, graphwin::DiagramWindow::Reflection>,
      CreateGraphForm<graphwin::TFormG, graphwin::DiagramWindow::Gain>,
      CreateGraphForm<graphwin::TFormK, graphwin::DiagramWindow::Stability>,
      CreateGraphForm<graphwin::TFormZ, graphwin::DiagramWindow::Impedance>,
      CreateGRHilfeBox,
      CreateXmaxDlg1,
      CreateAboutBox,
      CreateHilfeFOMBox,
      CreateHilfeBox,
      CreateQcircle};
};

FormSet::FormSet(const QStringList& arguments) {
  for (FormFactories::Factory create : FormFactories::kCreationOrder) {
    created_.emplace_back(create(*this, arguments));
  }
  sdiAppForm_->SetPrinterHint();
}

FormSet::~FormSet() {
  while (!created_.empty()) created_.pop_back();
}

graphwin::TGraphForm* FormSet::DiagramWindowOf(graphwin::DiagramWindow window) const {
  const auto index = static_cast<std::size_t>(window);
  assert(index < diagramWindows_.size());
  return diagramWindows_[index];
}

graphwin::TFormVu* FormSet::FormVu() const {
  return static_cast<graphwin::TFormVu*>(DiagramWindowOf(graphwin::DiagramWindow::Transmission));
}

graphwin::TFormPhi* FormSet::FormPhi() const {
  return static_cast<graphwin::TFormPhi*>(DiagramWindowOf(graphwin::DiagramWindow::Reflection));
}

graphwin::TFormG* FormSet::FormG() const {
  return static_cast<graphwin::TFormG*>(DiagramWindowOf(graphwin::DiagramWindow::Gain));
}

void InitialiseApplication() {
  QCoreApplication::setOrganizationName(QStringLiteral("netrix"));
  QCoreApplication::setApplicationName(QStringLiteral("netrix"));
  QCoreApplication::setApplicationVersion(QStringLiteral(NETRIX_VERSION));
  QGuiApplication::setApplicationDisplayName(QStringLiteral("S-Parameter Analysis"));
}

int RunGui(int& argc, char** argv) {
  const auto application = [&] {
    const DisplayGuard guard;
    return std::make_unique<QApplication>(argc, argv);
  }();
  InitialiseApplication();
  QStringList arguments;  // the bytes of each name, which QCoreApplication::arguments() may not keep
  for (int i = 1; i < argc; ++i) arguments.append(DecodeFileName(argv[i]));
  FormSet forms(arguments);
  QObject::connect(forms.SDIAppForm(), &TSDIAppForm::FormClosed, application.get(), &QCoreApplication::quit,
                   Qt::QueuedConnection);
  forms.SDIAppForm()->show();
  return QApplication::exec();
}

}  // namespace mainwin
