#include "form_set.h"

#include <QApplication>
#include <cassert>
#include <memory>

#include "about_box.h"
#include "display_guard.h"
#include "file_names.h"
#include "graphwin/grhilfe.h"
#include "graphwin/gwin.h"
#include "graphwin/phiwin.h"
#include "graphwin/qkreis.h"
#include "graphwin/vuwin.h"
#include "graphwin/xmax_dlg.h"
#include "help_boxes.h"
#include "main_window.h"

namespace mainwin {

// One entry per window, in the order the windows are created: the main window, the graph windows
// and their dialogs, then the boxes. A new window takes its place in kCreationOrder.
struct FormFactories {
  using Factory = QWidget* (*)(FormSet& forms, const QStringList& arguments);

  static QWidget* CreateSDIAppForm(FormSet& forms, const QStringList& arguments) {
    return forms.sdiAppForm_ = new TSDIAppForm(forms, arguments);
  }
  template <typename Form, Form* FormSet::*member, graphwin::DiagramWindow window>
  static QWidget* CreateDiagramWindow(FormSet& forms, const QStringList&) {
    TSDIAppForm* main = forms.sdiAppForm_;
    Form* form = new Form([main] { return main->GraphInputs(); }, forms.graphDialogs_);
    forms.*member = form;
    forms.diagramWindows_[static_cast<std::size_t>(window)] = form;
    return form;
  }
  static constexpr Factory CreateFormVu =
      CreateDiagramWindow<graphwin::TFormVu, &FormSet::formVu_, graphwin::DiagramWindow::Transmission>;
  static constexpr Factory CreateFormPhi =
      CreateDiagramWindow<graphwin::TFormPhi, &FormSet::formPhi_, graphwin::DiagramWindow::Reflection>;
  static constexpr Factory CreateFormG =
      CreateDiagramWindow<graphwin::TFormG, &FormSet::formG_, graphwin::DiagramWindow::Gain>;
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

  static constexpr Factory kCreationOrder[] = {CreateSDIAppForm, CreateFormVu,      CreateFormPhi,  CreateFormG,
                                               CreateGRHilfeBox, CreateXmaxDlg1,    CreateAboutBox, CreateHilfeFOMBox,
                                               CreateHilfeBox,   CreateQcircle};
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
