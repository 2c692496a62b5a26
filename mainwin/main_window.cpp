#include "main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenuBar>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QVBoxLayout>

#include "controls/string_align_grid.h"
#include "graphwin/graph_form.h"
#include "numerics/data_set.h"
#include "series/table_cells.h"
#include "form_set.h"
#include "frequency_page.h"
#include "graph_image.h"
#include "graph_page.h"
#include "help_boxes.h"
#include "history_list.h"
#include "input_page.h"
#include "controls/message_box.h"
#include "output_pages.h"
#include "settings_file.h"
#include "settings_problems.h"
#include "tools_menu.h"

namespace mainwin {
namespace {

constexpr int kClientWidth = 641;
constexpr int kClientHeight = 473;
constexpr int kFirstOutputPage = 3;
const char* const kGeometryKey = "MainWindow/Geometry";

// Six captions side by side must fit the fixed width: a smaller, condensed font, and where that is
// not enough the longest captions shortened on screen (the tool tip holds the whole caption).
QTabBar* MakeTabSet(QWidget* parent) {
  auto* tabs = new QTabBar(parent);
  tabs->setObjectName("TabSet1");
  QFont font = tabs->font();
  font.setPixelSize(11);
  font.setStretch(QFont::Condensed);
  tabs->setFont(font);
  tabs->setUsesScrollButtons(false);
  tabs->setElideMode(Qt::ElideRight);
  tabs->setExpanding(false);
  return tabs;
}

}  // namespace

TSDIAppForm::TSDIAppForm(FormSet& forms, const QStringList& arguments)
    : QMainWindow(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                               Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint),
      forms_(forms) {
  setObjectName("SDIAppForm");
  setWindowTitle(tr("S-Parameter Analysis"));
  setAcceptDrops(true);
  BuildMenus();
  BuildToolBar();
  setCentralWidget(BuildNotebook());
  statusBar()->setObjectName("StatusBar");
  statusBar()->setSizeGripEnabled(false);
  setFixedSize(kClientWidth, kClientHeight + menuBar()->sizeHint().height());
  FormCreate(arguments);
}

TSDIAppForm::~TSDIAppForm() = default;

QWidget* TSDIAppForm::BuildNotebook() {
  auto* central = new QWidget(this);
  tabSet1_ = MakeTabSet(central);
  notebook1_ = new QStackedWidget(central);
  notebook1_->setObjectName("Notebook1");
  frequencyPage_ = new FrequencyPage(notebook1_);
  inputPage_ = new InputPage(notebook1_);
  using diagram::pages::OutputPage;
  graphPages_ = {
      new TGraphPage(OutputPage::FtFmax, {"Image1", "EditComment1", "LabelLegende1", "fT - crosses "}, notebook1_),
      new TGraphPage(OutputPage::KMag, {"Image2", "EditComment2", "LabelLegende2", "k - crosses "}, notebook1_),
      new TGraphPage(OutputPage::StabilityLimit, {"Image3", "EditComment4", nullptr, nullptr}, notebook1_)};
  const std::pair<QWidget*, QString> pages[] = {
      {frequencyPage_, tr("S-Parameter vs Frequency")},
      {inputPage_, tr("Input: Extracted F.O.M. vs Parameter")},
      {graphPages_[0], tr("fT, fmax Output")},
      {graphPages_[1], tr("k, MSG, MAG Output")},
      {graphPages_[2], tr("Stability Limit")},
      {MakeTablePage(notebook1_), tr("Tabular Output")},
  };
  for (const auto& [page, caption] : pages) {
    page->setWindowTitle(caption);
    notebook1_->addWidget(page);
  }
  stringAlignGridTab_ = notebook1_->findChild<controls::TStringAlignGrid*>("StringAlignGridTab");
  editComment3_ = notebook1_->findChild<QLineEdit*>("EditComment3");
  ConnectPages();
  auto* layout = new QVBoxLayout(central);
  layout->setContentsMargins(2, 2, 2, 2);
  layout->setSpacing(0);
  layout->addWidget(tabSet1_);
  layout->addWidget(notebook1_, 1);
  layout->addWidget(BuildBottomButtons());
  return central;
}

void TSDIAppForm::ConnectPages() {
  connect(frequencyPage_, &FrequencyPage::DiagramRequested, this, &TSDIAppForm::ShowDiagram);
  connect(inputPage_, &InputPage::FileRowSelected, this, &TSDIAppForm::StringGridFilesSelectCell);
  connect(inputPage_, &InputPage::DeleteListClicked, this, &TSDIAppForm::SpeedButtonDeleteListClick);
  connect(inputPage_, &InputPage::DeleteLastClicked, this, &TSDIAppForm::SpeedButtonDeletaLastFileClick);
  connect(inputPage_, &InputPage::CalculateClicked, this, &TSDIAppForm::CalculateSeries);
  connect(inputPage_, &InputPage::ExportClicked, this, &TSDIAppForm::ExportData);
  for (TGraphPage* page : graphPages_) {
    connect(&page->Image(), &TGraphImage::ReadOut, this, [this](const QString& text) {
      if (text.isEmpty()) {
        statusBar()->clearMessage();
      } else {
        statusBar()->showMessage(text);
      }
    });
  }
}

void TSDIAppForm::FormCreate(const QStringList& arguments) {
  for (int i = 0; i < notebook1_->count(); ++i) {
    tabSet1_->addTab(notebook1_->widget(i)->windowTitle());
    tabSet1_->setTabToolTip(i, notebook1_->widget(i)->windowTitle());
  }
  connect(tabSet1_, &QTabBar::currentChanged, this, &TSDIAppForm::TabSet1Click);
  auto* table = findChild<controls::TStringAlignGrid*>("StringAlignGridTab");
  for (int column = 0; column < static_cast<int>(series::kTableColumnCount); ++column) {
    table->SetCells(column, 0, QString::fromUtf8(series::kTableHeader[static_cast<std::size_t>(column)]));
  }
  ReadIniFile();
  inputPage_->ShowFiles(series_.Paths());
  QSettings settings;
  if (const QString problem = StoreReadMessage(settings); !problem.isEmpty()) controls::ShowMessage(this, problem);
  restoreGeometry(settings.value(kGeometryKey).toByteArray());
  RestoreReadingChoice(settings);
  historyList1_->SetRegPath(QStringLiteral("netrix"));
  historyList1_->SetRegKey(QStringLiteral("MRUList1"));
  historyList1_->SetMaxItems(6);
  historyList1_->Load(settings);
  connect(historyList1_, &THistoryList::Clicked, this, &TSDIAppForm::HistoryList1Click);
  LoadCommandLine(arguments);
}

// A missing or unreadable file leaves the built-in values in place.
void TSDIAppForm::ReadIniFile() {
  IniFile ini;
  QString unused;
  LoadIniFile(SettingsFilePath(), ini, unused);
  inputPage_->ShowSettings(ReadIniSettings(ini));
}

QString TSDIAppForm::WriteIniFile() {
  const QString path = SettingsFilePath();
  IniFile ini;
  QString reason;
  if (!LoadIniFile(path, ini, reason)) return IniNotSavedMessage(path, reason);
  WriteIniSettings(inputPage_->CurrentSettings(), ini);
  if (QDir().mkpath(QFileInfo(path).absolutePath()) && SaveIniFile(path, ini, reason)) return {};
  const QString problem = WriteProblem(path);
  return IniSaveFailedMessage(path, problem.isEmpty() ? reason : problem);
}

// Whatever could not be saved is told in one box.
void TSDIAppForm::FormClose() {
  QStringList problems{WriteIniFile()};
  QSettings settings;
  historyList1_->Save(settings);
  settings.setValue(kGeometryKey, saveGeometry());
  problems.append(StoreWriteMessage(settings));
  problems.removeAll(QString());
  if (!problems.isEmpty()) controls::ShowMessage(this, problems.join("\n\n"));
}

void TSDIAppForm::closeEvent(QCloseEvent* event) {
  FormClose();
  event->accept();
  emit FormClosed();
}

void TSDIAppForm::TabSet1Click(int index) {
  const int page = index + 1;
  if (page >= kFirstOutputPage && series_.SeriesCount() < 2) {
    controls::ShowMessage(this, tr("Please insert two or more files."));
    tabSet1_->setCurrentIndex(1);
    return;
  }
  pageNumber_ = page;
  notebook1_->setCurrentIndex(index);
  EnterOutputPage(page);
}

void TSDIAppForm::ShowDiagram(graphwin::DiagramWindow window, graphwin::DisplayMode mode) {
  displayMode_ = mode;
  connectForWindows_ = frequencyPage_->ConnectFrequencyPoints();
  graphwin::TGraphForm* shown = forms_.DiagramWindowOf(window);
  if (!shown) {
    statusBar()->showMessage(tr("This diagram window is not available yet."));
    return;
  }
  shown->ShowFromMain();
}

graphwin::plots::GraphInputs TSDIAppForm::GraphInputs() const {
  graphwin::plots::GraphInputs inputs;
  const FrequencyFiles& files = frequencyPage_->Files();
  const numerics::DataSetStore& store = numerics::DataSets();
  for (int i = 0; i < files.Count(); ++i) {
    const FrequencyFile& file = files.File(i);
    inputs.files.push_back({&store.sets[static_cast<std::size_t>(i)], file.path, file.active});
  }
  inputs.displayCount = files.DisplayCount();
  inputs.z0 = frequencyPage_->Z0();
  inputs.options = frequencyPage_->DisplayOptions();
  inputs.options.connect = connectForWindows_;
  inputs.mode = displayMode_;
  return inputs;
}

void TSDIAppForm::Help1Click() {
  QDialog* box = pageNumber_ == 1 ? static_cast<QDialog*>(forms_.HilfeBox()) : forms_.HilfeFOMBox();
  box->show();
  box->raise();
}

void TSDIAppForm::VortoHelp1Click() {
  if (!OpenHelpFile()) controls::ShowMessage(this, tr("Help file not available. Look at Vorto manual in pdf format."));
}

void TSDIAppForm::StayInFront1Click(bool checked) {
  setWindowFlag(Qt::WindowStaysOnTopHint, checked);
  show();
}

void TSDIAppForm::SetPrinterHint() {
  if (QPrinterInfo::availablePrinterNames().isEmpty()) return;
  drucken1_->setStatusTip(tr("Print window with ") + QPrinterInfo::defaultPrinterName());
}

TGraphPage& TSDIAppForm::GraphPage(diagram::pages::OutputPage page) const {
  return *graphPages_[static_cast<std::size_t>(page)];
}

}  // namespace mainwin
