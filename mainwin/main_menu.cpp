// The menus, the tool bar and the buttons below the notebook of the main window.
#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>

#include "about_box.h"
#include "form_set.h"
#include "history_list.h"
#include "main_window.h"
#include "controls/message_box.h"
#include "tools_menu.h"

namespace mainwin {

QAction* TSDIAppForm::AddAction(QMenu* menu, const char* name, const QString& caption, const QString& hint) {
  QAction* action = menu->addAction(caption);
  action->setObjectName(name);
  action->setStatusTip(hint);
  return action;
}

void TSDIAppForm::BuildMenus() {
  menuBar()->addMenu(BuildFileMenu());
  menuBar()->addMenu(BuildGraphicMenu());
  menuBar()->addMenu(BuildToolsMenu());
  QMenu* options = menuBar()->addMenu(tr("&Options"));
  options->setObjectName("Optionen1");
  QAction* front = AddAction(options, "ImmerimVordergrund1", tr("Always Stay in &Front"),
                             tr("Keep this window above all other windows"));
  front->setCheckable(true);
  connect(front, &QAction::triggered, this, &TSDIAppForm::StayInFront1Click);
  readTouchstoneFiles1_ =
      AddAction(options, "ReadTouchstoneFiles1", tr("Read &Touchstone Files"),
                tr("Apply the option line, comments, formats and parameter types of Touchstone files when loading"));
  readTouchstoneFiles1_->setCheckable(true);
  menuBar()->addMenu(BuildHelpMenu());
}

QMenu* TSDIAppForm::BuildFileMenu() {
  fileMenu_ = new QMenu(tr("&File"), this);
  fileMenu_->setObjectName("Datei1");
  QAction* load = AddAction(fileMenu_, "Load1", tr("&Load *.SPM/*.S2P"), tr("Load file *.spm"));
  load->setShortcut(Qt::Key_F3);
  connect(load, &QAction::triggered, this, &TSDIAppForm::Load1Click);
  QAction* base = AddAction(fileMenu_, "HistoryBase1", tr("&List of Previous S-Parameter Files..."), QString());
  base->setVisible(false);
  historyList1_ = new THistoryList(fileMenu_, base, this);
  historyList1_->setObjectName("HistoryList1");
  fileMenu_->addSeparator();
  AddOutputItems(fileMenu_);
  fileMenu_->addSeparator();
  QAction* exit = AddAction(fileMenu_, "Exit1", tr("&Exit"), tr("Leave the program"));
  exit->setShortcut(QKeySequence(Qt::ALT | Qt::Key_X));
  connect(exit, &QAction::triggered, this, &QWidget::close);
  return fileMenu_;
}

QMenu* TSDIAppForm::BuildToolsMenu() {
  auto* tools = new QMenu(tr("&Tools"), this);
  tools->setObjectName("Tools1");
  connect(AddAction(tools, "Execute1", tr("&Execute"), tr("Call another program")), &QAction::triggered, this,
          &TSDIAppForm::ExecButtonClick);
  tools->addSeparator();
  struct Program {
    const char* name;
    QString caption;
    ProgramStart (*start)();
  };
  const Program programs[] = {
      {"Calculator1", tr("&Calculator"), StartCalculator},
      {"Explorer1", tr("&Explorer"), StartFileManager},
      {"TwoPortCalculations1", tr("&Two-Port Calculations"), StartTwoPortCalculations},
      {"Clipboard1", tr("&Clipboard"), StartClipboardViewer},
      {"Notepad1", tr("&Notepad"), [] { return StartTextEditor(QString()); }},
  };
  for (const Program& program : programs) {
    QAction* action = AddAction(tools, program.name, program.caption, QString());
    connect(action, &QAction::triggered, this,
            [this, action, start = program.start] { SayWhenNotStarted(action, start()); });
  }
  tools->addSeparator();
  QAction* edit = AddAction(tools, "EditLastDataFile1", tr("&Edit Last Data File"),
                            tr("Open the last exported data file in the text editor"));
  edit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_E));
  connect(edit, &QAction::triggered, this,
          [this, edit] { SayWhenNotStarted(edit, StartTextEditor(lastExportFile_)); });
  return tools;
}

QMenu* TSDIAppForm::BuildHelpMenu() {
  auto* help = new QMenu(tr("Hel&p"), this);
  help->setObjectName("Hilfe1");
  QAction* helpItem = AddAction(help, "Help1", tr("&Help"), tr("Help for the page shown"));
  helpItem->setShortcut(QKeySequence::HelpContents);
  connect(helpItem, &QAction::triggered, this, &TSDIAppForm::Help1Click);
  connect(AddAction(help, "VortoHelp1", tr("&Vorto Help"), QString()), &QAction::triggered, this,
          &TSDIAppForm::VortoHelp1Click);
  help->addSeparator();
  QAction* mail = AddAction(help, "EMail1", tr("&E-Mail to the Author"), QString());
  connect(mail, &QAction::triggered, this, [this, mail] { SayWhenNotStarted(mail, OpenMailToAuthor()); });
  connect(AddAction(help, "Info1", tr("&Info..."), tr("Information about the program")), &QAction::triggered,
          this, [this] { forms_.AboutBox()->exec(); });
  return help;
}

void TSDIAppForm::BuildToolBar() {
  QToolBar* bar = addToolBar(tr("Tools"));
  bar->setObjectName("ToolBar1");
  bar->setMovable(false);
  struct Tool {
    const char* name;
    QStyle::StandardPixmap icon;
    QString hint;
    void (TSDIAppForm::*handler)();
  };
  const Tool tools[] = {
      {"SpeedButtonLoad", QStyle::SP_DialogOpenButton, tr("Load S-parameters from file"), &TSDIAppForm::Load1Click},
      {"ExecButton", QStyle::SP_ComputerIcon, tr("Call another program"), &TSDIAppForm::ExecButtonClick},
      {"ExitBtn", QStyle::SP_DialogCloseButton, tr("Exit"), nullptr},
  };
  for (const Tool& tool : tools) {
    auto* button = new QToolButton(bar);
    button->setObjectName(tool.name);
    button->setIcon(style()->standardIcon(tool.icon));
    button->setToolTip(tool.hint);
    button->setStatusTip(tool.hint);
    if (tool.handler) {
      connect(button, &QToolButton::clicked, this, tool.handler);
    } else {
      connect(button, &QToolButton::clicked, this, &QWidget::close);
    }
    bar->addWidget(button);
  }
}

QWidget* TSDIAppForm::BuildBottomButtons() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(4, 0, 4, 0);
  auto* help = new QPushButton(tr("&Help"), row);
  help->setObjectName("HelpBtn");
  connect(help, &QPushButton::clicked, this, &TSDIAppForm::Help1Click);
  auto* exit = new QPushButton(tr("Exit"), row);
  exit->setObjectName("Abbruch");
  connect(exit, &QPushButton::clicked, this, &QWidget::close);
  layout->addStretch(1);
  layout->addWidget(help);
  layout->addWidget(exit);
  return row;
}

void TSDIAppForm::StartOrBeep(bool started) {
  if (!started) QApplication::beep();
}

void TSDIAppForm::SayWhenNotStarted(const QAction* item, const ProgramStart& start) {
  if (start.started) return;
  QApplication::beep();
  const QString caption = item->text().remove('&');
  controls::ShowMessage(
      this, tr("\"%1\" started nothing: %2. Install such a program, then try again!").arg(caption, start.tried));
}

}  // namespace mainwin
