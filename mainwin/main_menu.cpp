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

#include <QDialog>

#include "controls/message_box.h"
#include "bias_series.h"
#include "file_loading.h"
#include "main_window.h"
#include "result_outputs.h"
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
  QMenu* options = menuBar()->addMenu(QStringLiteral("&Options"));
  options->setObjectName("Optionen1");
  QAction* front = AddAction(options, "ImmerimVordergrund1", QStringLiteral("Always Stay in &Front"),
                             QStringLiteral("Keep this window above all other windows"));
  front->setCheckable(true);
  connect(front, &QAction::triggered, this, &TSDIAppForm::StayInFront1Click);
  readTouchstoneFiles1_ = AddAction(
      options, "ReadTouchstoneFiles1", QStringLiteral("Read &Touchstone Files"),
      QStringLiteral("Apply the option line, comments, formats and parameter types of Touchstone files when loading"));
  readTouchstoneFiles1_->setCheckable(true);
  menuBar()->addMenu(BuildHelpMenu());
}

QMenu* TSDIAppForm::BuildFileMenu() {
  auto* fileMenu = new QMenu(QStringLiteral("&File"), this);
  fileMenu->setObjectName("Datei1");
  QAction* load = AddAction(fileMenu, "Load1", QStringLiteral("&Load *.SPM/*.S2P"), QStringLiteral("Load file *.spm"));
  load->setShortcut(Qt::Key_F3);
  connect(load, &QAction::triggered, this, &TSDIAppForm::Load1Click);
  QAction* base =
      AddAction(fileMenu, "HistoryBase1", QStringLiteral("&List of Previous S-Parameter Files..."), QString());
  base->setVisible(false);
  loading_->AddRecentFiles(fileMenu, base);
  fileMenu->addSeparator();
  AddOutputItems(fileMenu);
  fileMenu->addSeparator();
  QAction* exit = AddAction(fileMenu, "Exit1", QStringLiteral("&Exit"), QStringLiteral("Leave the program"));
  exit->setShortcut(QKeySequence(Qt::ALT | Qt::Key_X));
  connect(exit, &QAction::triggered, this, &QWidget::close);
  return fileMenu;
}

QMenu* TSDIAppForm::BuildGraphicMenu() {
  auto* menu = new QMenu(QStringLiteral("&Graphic"), this);
  menu->setObjectName("Graphic1");
  outputs_->AddGraphicChoice(menu);
  menu->addSeparator();
  connect(
      AddAction(menu, "ShowAll1", QStringLiteral("Show &All"), QStringLiteral("Show every series on the graph pages")),
      &QAction::triggered, this, &TSDIAppForm::ShowAll1Click);
  connect(AddAction(menu, "ShowfTandMAG1", QStringLiteral("Show &fT and MAG"),
                    QStringLiteral("Show only fT and only MAG/MSG")),
          &QAction::triggered, this, &TSDIAppForm::ShowfTandMAG1Click);
  menu->addSeparator();
  connect(AddAction(menu, "CopyImage1", QStringLiteral("&Copy Image"),
                    QStringLiteral("Copy the graph of the page to the clipboard")),
          &QAction::triggered, this, &TSDIAppForm::CopyImage1Click);
  return menu;
}

void TSDIAppForm::AddOutputItems(QMenu* menu) {
  struct Item {
    const char* name;
    const char* caption;
    const char* hint;
    void (TSDIAppForm::*handler)();
  };
  const Item items[] = {
      {"ExportData1", "&Export Data to ASCII File...", "Perform calculations and export to file",
       &TSDIAppForm::ExportData},
      {"SaveGraphBMP1", "Save Graph as &BMP...", "Save the graph of the page as a BMP file",
       &TSDIAppForm::SaveGraphBMP1Click},
      {"SaveGraphJPG1", "Save Graph as &JPG...", "Save the graph of the page as a JPG file",
       &TSDIAppForm::SaveGraphJPG1Click},
      {nullptr, nullptr, nullptr, nullptr},
      {"Drucken1", "&Print", "Print window", &TSDIAppForm::Drucken1Click},
      {"PrintAllWindows1", "Print &All Windows", "Print the three graphs and the table",
       &TSDIAppForm::PrintAllWindows1Click},
      {"Print1stTwo1", "Print &1st Two Analysis Outputs", "Print the fT, fmax graph and the k, MAG graph on one sheet",
       &TSDIAppForm::Print1stTwo1Click},
      {"PrintTable1", "Print Output &Table", "Print the result table", &TSDIAppForm::PrintTable1Click},
      {"PrinterSetup1", "Printer &Setup...", "Choose the paper and its orientation", &TSDIAppForm::PrinterSetup1Click},
  };
  for (const Item& item : items) {
    if (!item.name) {
      menu->addSeparator();
      continue;
    }
    QAction* action = AddAction(menu, item.name, item.caption, item.hint);
    connect(action, &QAction::triggered, this, item.handler);
    if (item.handler == &TSDIAppForm::Drucken1Click) drucken1_ = action;
  }
  drucken1_->setShortcut(QKeySequence::Print);
}

QMenu* TSDIAppForm::BuildToolsMenu() {
  auto* tools = new QMenu(QStringLiteral("&Tools"), this);
  tools->setObjectName("Tools1");
  connect(AddAction(tools, "Execute1", QStringLiteral("&Execute"), QStringLiteral("Call another program")),
          &QAction::triggered, this, &TSDIAppForm::ExecButtonClick);
  tools->addSeparator();
  struct Program {
    const char* name;
    QString caption;
    ProgramStart (*start)();
  };
  const Program programs[] = {
      {"Calculator1", QStringLiteral("&Calculator"), StartCalculator},
      {"Explorer1", QStringLiteral("&Explorer"), StartFileManager},
      {"TwoPortCalculations1", QStringLiteral("&Two-Port Calculations"), StartTwoPortCalculations},
      {"Clipboard1", QStringLiteral("&Clipboard"), StartClipboardViewer},
      {"Notepad1", QStringLiteral("&Notepad"), [] { return StartTextEditor(QString()); }},
  };
  for (const Program& program : programs) {
    QAction* action = AddAction(tools, program.name, program.caption, QString());
    connect(action, &QAction::triggered, this,
            [this, action, start = program.start] { SayWhenNotStarted(action, start()); });
  }
  tools->addSeparator();
  QAction* edit = AddAction(tools, "EditLastDataFile1", QStringLiteral("&Edit Last Data File"),
                            QStringLiteral("Open the last exported data file in the text editor"));
  edit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_E));
  connect(edit, &QAction::triggered, this,
          [this, edit] { SayWhenNotStarted(edit, StartTextEditor(series_->LastExportFile())); });
  return tools;
}

QMenu* TSDIAppForm::BuildHelpMenu() {
  auto* help = new QMenu(QStringLiteral("Hel&p"), this);
  help->setObjectName("Hilfe1");
  QAction* helpItem = AddAction(help, "Help1", QStringLiteral("&Help"), QStringLiteral("Help for the page shown"));
  helpItem->setShortcut(QKeySequence::HelpContents);
  connect(helpItem, &QAction::triggered, this, &TSDIAppForm::Help1Click);
  connect(AddAction(help, "VortoHelp1", QStringLiteral("&Vorto Help"), QString()), &QAction::triggered, this,
          &TSDIAppForm::VortoHelp1Click);
  help->addSeparator();
  QAction* mail = AddAction(help, "EMail1", QStringLiteral("&E-Mail to the Author"), QString());
  connect(mail, &QAction::triggered, this, [this, mail] { SayWhenNotStarted(mail, OpenMailToAuthor()); });
  connect(AddAction(help, "Info1", QStringLiteral("&Info..."), QStringLiteral("Information about the program")),
          &QAction::triggered, this, [this] { lookups_.box(MainBox::About)->exec(); });
  return help;
}

void TSDIAppForm::BuildToolBar() {
  QToolBar* bar = addToolBar(QStringLiteral("Tools"));
  bar->setObjectName("ToolBar1");
  bar->setMovable(false);
  struct Tool {
    const char* name;
    QStyle::StandardPixmap icon;
    QString hint;
    void (TSDIAppForm::*handler)();
  };
  const Tool tools[] = {
      {"SpeedButtonLoad", QStyle::SP_DialogOpenButton, QStringLiteral("Load S-parameters from file"),
       &TSDIAppForm::Load1Click},
      {"ExecButton", QStyle::SP_ComputerIcon, QStringLiteral("Call another program"), &TSDIAppForm::ExecButtonClick},
      {"ExitBtn", QStyle::SP_DialogCloseButton, QStringLiteral("Exit"), nullptr},
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
  auto* help = new QPushButton(QStringLiteral("&Help"), row);
  help->setObjectName("HelpBtn");
  connect(help, &QPushButton::clicked, this, &TSDIAppForm::Help1Click);
  auto* exit = new QPushButton(QStringLiteral("Exit"), row);
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
      this,
      QStringLiteral("\"%1\" started nothing: %2. Install such a program, then try again!").arg(caption, start.tried));
}

}  // namespace mainwin
