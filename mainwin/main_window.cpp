#include "main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QMenuBar>
#include <QPrinterInfo>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QVBoxLayout>
#include <utility>

#include "bias_series.h"
#include "controls/message_box.h"
#include "file_loading.h"
#include "frequency_page.h"
#include "graph_image.h"
#include "graph_page.h"
#include "graphwin/graph_form.h"
#include "help_boxes.h"
#include "history_list.h"
#include "input_page.h"
#include "numerics/data_set.h"
#include "result_outputs.h"
#include "settings_file.h"
#include "settings_problems.h"
#include "tools_menu.h"

namespace mainwin {
namespace {

constexpr int kClientWidth = 641;
constexpr int kClientHeight = 473;
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

TSDIAppForm::TSDIAppForm(WindowLookups lookups, const QStringList& arguments)
    : QMainWindow(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                               Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint),
      lookups_(std::move(lookups)) {
  setObjectName("SDIAppForm");
  setWindowTitle(QStringLiteral("S-Parameter Analysis"));
  setAcceptDrops(true);
  // The pages first: the menus reach the classes that hold the pages' logic.
  setCentralWidget(BuildNotebook());
  BuildMenus();
  BuildToolBar();
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
  series_ = std::make_unique<BiasSeries>(*this, *inputPage_, [this] { return loading_->ReadsTouchstone(); });
  outputs_ = std::make_unique<ResultOutputs>(*this, *series_, *inputPage_, [this] { return page_; });
  loading_ = std::make_unique<FileLoading>(*this, *frequencyPage_, *inputPage_, *series_);
  const ResultOutputs::Pages outputPages = outputs_->BuildPages(notebook1_);
  const std::pair<QWidget*, const char*> pages[] = {
      {frequencyPage_, "S-Parameter vs Frequency"},
      {inputPage_, "Input: Extracted F.O.M. vs Parameter"},
      {outputPages.graphs[0], "fT, fmax Output"},
      {outputPages.graphs[1], "k, MSG, MAG Output"},
      {outputPages.graphs[2], "Stability Limit"},
      {outputPages.table, "Tabular Output"},
  };
  for (const auto& [page, caption] : pages) {
    page->setWindowTitle(caption);
    notebook1_->addWidget(page);
  }
  ConnectPages(outputPages);
  auto* layout = new QVBoxLayout(central);
  layout->setContentsMargins(2, 2, 2, 2);
  layout->setSpacing(0);
  layout->addWidget(tabSet1_);
  layout->addWidget(notebook1_, 1);
  layout->addWidget(BuildBottomButtons());
  return central;
}

void TSDIAppForm::ConnectPages(const ResultOutputs::Pages& outputPages) {
  connect(frequencyPage_, &FrequencyPage::DiagramRequested, this, &TSDIAppForm::ShowDiagram);
  connect(inputPage_, &InputPage::FileRowSelected, this, &TSDIAppForm::StringGridFilesSelectCell);
  connect(inputPage_, &InputPage::DeleteListClicked, this, &TSDIAppForm::SpeedButtonDeleteListClick);
  connect(inputPage_, &InputPage::DeleteLastClicked, this, &TSDIAppForm::SpeedButtonDeletaLastFileClick);
  connect(inputPage_, &InputPage::CalculateClicked, this, &TSDIAppForm::BitBtnCalcClick);
  connect(inputPage_, &InputPage::ExportClicked, this, &TSDIAppForm::ExportData);
  for (TGraphPage* page : outputPages.graphs) {
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
  ReadIniFile();
  series_->ShowFiles();
  QSettings settings;
  if (const QString problem = StoreReadMessage(settings); !problem.isEmpty()) controls::ShowMessage(this, problem);
  restoreGeometry(settings.value(kGeometryKey).toByteArray());
  loading_->Restore(readTouchstoneFiles1_, settings);
  connect(readTouchstoneFiles1_, &QAction::toggled, this, &TSDIAppForm::ReadTouchstoneFiles1Click);
  connect(&loading_->HistoryList(), &THistoryList::Clicked, this, &TSDIAppForm::HistoryList1Click);
  loading_->LoadCommandLine(arguments);
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
  loading_->Save(settings);
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
  const auto page = static_cast<MainPage>(index + 1);
  if (IsOutputPage(page) && series_->Count() < 2) {
    controls::ShowMessage(this, kTwoFilesNeeded);
    tabSet1_->setCurrentIndex(static_cast<int>(MainPage::Input) - 1);
    return;
  }
  page_ = page;
  notebook1_->setCurrentIndex(index);
  outputs_->EnterPage(page);
}

void TSDIAppForm::ShowDiagram(graphwin::DiagramWindow window, graphwin::DisplayMode mode) {
  displayMode_ = mode;
  connectForWindows_ = frequencyPage_->ConnectFrequencyPoints();
  graphwin::TGraphForm* shown = lookups_.diagramWindow(window);
  if (!shown) {
    statusBar()->showMessage(QStringLiteral("This diagram window is not available yet."));
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
  QDialog* box = lookups_.box(page_ == MainPage::Frequency ? MainBox::Help : MainBox::FomHelp);
  box->show();
  box->raise();
}

void TSDIAppForm::VortoHelp1Click() {
  if (!OpenHelpFile()) {
    controls::ShowMessage(this, QStringLiteral("Help file not available. Look at Vorto manual in pdf format."));
  }
}

void TSDIAppForm::StayInFront1Click(bool checked) {
  setWindowFlag(Qt::WindowStaysOnTopHint, checked);
  show();
}

void TSDIAppForm::SetPrinterHint() {
  if (QPrinterInfo::availablePrinterNames().isEmpty()) return;
  drucken1_->setStatusTip(QStringLiteral("Print window with %1").arg(QPrinterInfo::defaultPrinterName()));
}

series::SeriesList& TSDIAppForm::Series() { return series_->List(); }
const series::SeriesArrays& TSDIAppForm::Results() const { return series_->Results(); }
THistoryList& TSDIAppForm::HistoryList() { return loading_->HistoryList(); }

TGraphPage& TSDIAppForm::GraphPage(diagram::pages::OutputPage page) const { return outputs_->GraphPage(page); }

}  // namespace mainwin
