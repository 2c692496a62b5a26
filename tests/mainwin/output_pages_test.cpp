#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QStatusBar>
#include <QToolTip>
#include <cmath>

#include "controls/string_align_grid.h"
#include "diagram/diagram_state.h"
#include "fixtures.h"
#include "series/series_evaluation.h"
#include "series/spa_export.h"
#include "mainwin/graph_image.h"
#include "mainwin/graph_page.h"
#include "diagram/pages/graph_data.h"
#include "diagram/pages/page_graphs.h"

using diagram::pages::OutputPage;

Q_DECLARE_METATYPE(OutputPage)

// Pages 3 to 6: the graphs and their titles, the "&Graphic" menu, the table, the export,
// printing, the picture files and the mouse read-out.
class OutputPagesTest : public QObject, mainwin_test::WindowSession {
  Q_OBJECT

 private slots:
  void init();
  void GraphicMenuKeepsOneOfEachPair_data();
  void GraphicMenuKeepsOneOfEachPair();
  void GraphicMenuRedrawsOnlyFromThePageBefore_data();
  void GraphicMenuRedrawsOnlyFromThePageBefore();
  void LegendLabelShowsWhileBothSeriesAre();
  void TableCellsAndCommentEdits_data();
  void TableCellsAndCommentEdits();
  void TableClearsRowsOfRemovedFiles();
  void ExportMatchesTheEngineByteForByte();
  void ExportWritesNothingWithoutFilesOrWhenCancelled();
  void PrintCommandsPrintTheirSheets_data();
  void PrintCommandsPrintTheirSheets();
  void GraphsArePrintedAtThePrintersResolution();
  void PrintingNeedsTwoFilesAndACompletedDialog();
  void PictureFilesHoldTheShownGraph_data();
  void PictureFilesHoldTheShownGraph();
  void CopyImageTakesTheGraphAndPicturesNeedAGraphPage();
  void MouseReadsOutTheXChoiceWithUnits_data();
  void MouseReadsOutTheXChoiceWithUnits();
  void ChecksShadeDoubtfulCellsAndExplainPoints();

 private:
  // Files at 2 and 4 mA on page 2, evaluated, with the area 500 square micrometres.
  QStringList DropTwoFiles();
  const mainwin::TGraphImage& Image(OutputPage page) { return Window().GraphPage(page).Image(); }
  QString Out(const QString& name) const { return dir_.filePath(name); }
};

void OutputPagesTest::init() {
  Reset();
  Start();
  Window().show();
  QVERIFY(QTest::qWaitForWindowExposed(&Window()));
}

QStringList OutputPagesTest::DropTwoFiles() {
  ShowTab(1);
  Find<QLineEdit>("AreaEingabe")->setText("500");
  const QStringList files = {mainwin_test::WriteSeriesFile(dir_, "bias_2mA.s2p", "! Ic=2m"),
                             mainwin_test::WriteSeriesFile(dir_, "bias_4mA.s2p", "! Ic = 4 m")};
  Window().FilesDropped(files);
  return files;
}

void OutputPagesTest::GraphicMenuKeepsOneOfEachPair_data() {
  QTest::addColumn<QStringList>("clicked");
  QTest::addColumn<QStringList>("checked");
  QTest::newRow("fT then fmax") << QStringList{"fTonly1", "fmaxonly1"} << QStringList{"fmaxonly1"};
  QTest::newRow("show fT and MAG") << QStringList{"fmaxonly1", "konly1", "ShowfTandMAG1"}
                                   << QStringList{"fTonly1", "MAGMSGonly1"};
  QTest::newRow("show all") << QStringList{"fTonly1", "MAGMSGonly1", "ShowAll1"} << QStringList{};
}

void OutputPagesTest::GraphicMenuKeepsOneOfEachPair() {
  QFETCH(QStringList, clicked);
  QFETCH(QStringList, checked);
  for (const QString& item : clicked) Find<QAction>(qPrintable(item))->trigger();
  for (const char* item : {"fTonly1", "fmaxonly1", "MAGMSGonly1", "konly1"}) {
    QCOMPARE(Find<QAction>(item)->isChecked(), checked.contains(item));
  }
}

void OutputPagesTest::GraphicMenuRedrawsOnlyFromThePageBefore_data() {
  QTest::addColumn<int>("tab");
  QTest::addColumn<QString>("item");
  QTest::addColumn<OutputPage>("affected");
  QTest::addColumn<bool>("redrawn");
  QTest::newRow("fT on page 2") << 1 << "fTonly1" << OutputPage::FtFmax << true;
  QTest::newRow("MAG on page 3") << 2 << "MAGMSGonly1" << OutputPage::KMag << true;
  QTest::newRow("k on page 4") << 3 << "konly1" << OutputPage::KMag << false;
}

void OutputPagesTest::GraphicMenuRedrawsOnlyFromThePageBefore() {
  QFETCH(int, tab);
  QFETCH(QString, item);
  QFETCH(OutputPage, affected);
  QFETCH(bool, redrawn);
  DropTwoFiles();
  for (int page = 2; page <= 4; ++page) ShowTab(page);  // every graph drawn with nothing chosen
  ShowTab(tab);
  Find<QAction>(qPrintable(item))->trigger();
  const diagram::pages::GraphicChoice& c = Image(affected).Scene().choice;
  QCOMPARE(c.fTOnly || c.fmaxOnly || c.magMsgOnly || c.kOnly, redrawn);
}

// The label beside the comment shows while both series of its page are shown.
void OutputPagesTest::LegendLabelShowsWhileBothSeriesAre() {
  DropTwoFiles();
  ShowTab(3);
  QVERIFY(Find<QLabel>("LabelLegende2")->isVisible());
  QCOMPARE(Find<QLabel>("LabelLegende2")->text(), QStringLiteral("k - crosses "));
  ShowTab(1);
  Find<QAction>("fTonly1")->trigger();
  ShowTab(2);
  QVERIFY(!Find<QLabel>("LabelLegende1")->isVisible());
}

void OutputPagesTest::TableCellsAndCommentEdits_data() {
  QTest::addColumn<bool>("density");
  QTest::addColumn<bool>("comment");
  QTest::newRow("plain") << false << false;
  QTest::newRow("with density and comment") << true << true;
}

void OutputPagesTest::TableCellsAndCommentEdits() {
  QFETCH(bool, density);
  QFETCH(bool, comment);
  Find<QCheckBox>("CheckBoxDensity")->setChecked(density);
  Find<QCheckBox>("CheckBoxComment")->setChecked(comment);
  Find<QPlainTextEdit>("MemoComment")->setPlainText("lot 7\nwafer 3");
  const QStringList files = DropTwoFiles();
  ShowTab(5);
  auto* grid = Find<controls::TStringAlignGrid>("StringAlignGridTab");
  const QStringList header = {"File Name", "Ic", "fT", "fmax", "MAG/MSG", "k", "f(k>1)", "j/(mA/µm²)"};
  for (int column = 0; column < 8; ++column) QCOMPARE(grid->Cells(column, 0), header[column]);
  for (int row = 1; row <= 2; ++row) {
    const QString path = files[row - 1];
    QCOMPARE(grid->Cells(0, row), path.left(7) + "..." + path.right(15));
    QCOMPARE(grid->item(row, 0)->toolTip(), path);
    QCOMPARE(grid->Cells(7, row), density ? (row == 1 ? QString("  0.004") : QString("  0.008")) : QString());
  }
  QCOMPARE(Find<QLineEdit>("EditComment3")->text(), comment ? QString("lot 7 wafer 3") : QString("Output"));
  ShowTab(4);
  QCOMPARE(Find<QLineEdit>("EditComment4")->text(), comment ? QString("lot 7 wafer 3") : QString("Graphic"));
}

void OutputPagesTest::TableClearsRowsOfRemovedFiles() {
  DropTwoFiles();
  Window().FilesDropped({mainwin_test::WriteSeriesFile(dir_, "bias_6mA.s2p", "! Ic=6m")});
  ShowTab(5);
  auto* grid = Find<controls::TStringAlignGrid>("StringAlignGridTab");
  QVERIFY(!grid->Cells(0, 3).isEmpty());
  ShowTab(1);
  QTest::mouseClick(Find<QWidget>("SpeedButtonDeletaLastFile"), Qt::LeftButton);
  ShowTab(5);
  for (int column = 0; column < 8; ++column) QVERIFY(grid->Cells(column, 3).isEmpty());
  QVERIFY(!grid->Cells(0, 2).isEmpty());
}

void OutputPagesTest::ExportMatchesTheEngineByteForByte() {
  Find<QCheckBox>("CheckBoxDensity")->setChecked(true);
  Find<QCheckBox>("CheckBoxComment")->setChecked(true);
  Find<QPlainTextEdit>("MemoComment")->setPlainText("lot 7");
  const QStringList files = DropTwoFiles();
  mainwin_test::DialogAnswers answers(Out("result.spa"), QString());
  Find<QAction>("ExportData1")->trigger();
  QCOMPARE(answers.SaveTitles(), QStringList({"Save Calculated Data"}));
  // The page's entries as set above, written out by hand.
  const series::SeriesSettings settings{
      .fo = 2e9, .multiplier = 1e6, .lgnd = 100e-12, .area = 500, .density = true, .comment = "lot 7"};
  series::SeriesList list;
  list.Append({files[0].toStdString(), files[1].toStdString()});
  series::SeriesArrays arrays;
  QVERIFY(series::EvaluateSeries(list, settings, arrays).completed);
  const std::string expected = series::SpaContent(list, arrays, settings);
  QFile written(Out("result.spa"));
  QVERIFY(written.open(QIODevice::ReadOnly));
  const QByteArray bytes = written.readAll();
  QCOMPARE(bytes, QByteArray::fromStdString(expected));
  QVERIFY(bytes.startsWith("Data derived by lioraira: lot 7\n"));
}

void OutputPagesTest::ExportWritesNothingWithoutFilesOrWhenCancelled() {
  mainwin_test::MessageLog log;
  {
    mainwin_test::DialogAnswers answers(Out("empty.spa"), QString());
    QTest::mouseClick(Find<QPushButton>("BitBtn1"), Qt::LeftButton);
    QCOMPARE(log.Messages(), QStringList({"Please drag s2p file(s) to the program."}));
    QVERIFY(answers.SaveTitles().isEmpty());
  }
  QVERIFY(!QFile::exists(Out("empty.spa")));
  DropTwoFiles();
  const QStringList before = QDir(dir_.path()).entryList();
  mainwin_test::DialogAnswers cancelled{QString(), QString()};
  Find<QAction>("ExportData1")->trigger();
  QCOMPARE(cancelled.SaveTitles().size(), 1);
  QCOMPARE(QDir(dir_.path()).entryList(), before);
}

void OutputPagesTest::PrintCommandsPrintTheirSheets_data() {
  QTest::addColumn<int>("tab");
  QTest::addColumn<QString>("item");
  QTest::addColumn<int>("pages");
  QTest::newRow("print on page 2") << 1 << "Drucken1" << 1;
  QTest::newRow("print a graph page") << 2 << "Drucken1" << 1;
  QTest::newRow("print the table page") << 5 << "Drucken1" << 1;
  QTest::newRow("all windows") << 1 << "PrintAllWindows1" << 4;
  QTest::newRow("first two outputs") << 1 << "Print1stTwo1" << 1;
  QTest::newRow("output table") << 1 << "PrintTable1" << 1;
}

void OutputPagesTest::PrintCommandsPrintTheirSheets() {
  QFETCH(int, tab);
  QFETCH(QString, item);
  QFETCH(int, pages);
  DropTwoFiles();
  ShowTab(tab);
  const QString pdf = Out(item + QString::number(tab) + ".pdf");
  mainwin_test::DialogAnswers answers(QString(), pdf);
  Find<QAction>(qPrintable(item))->trigger();
  QCOMPARE(answers.PrintDialogs(), 1);
  QCOMPARE(mainwin_test::PdfPageCount(pdf), pages);
}

void OutputPagesTest::GraphsArePrintedAtThePrintersResolution() {
  DropTwoFiles();
  ShowTab(2);
  mainwin_test::DialogAnswers answers(QString(), Out("graph.pdf"));
  Find<QAction>("Drucken1")->trigger();
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  // The graph spans the printable width in the printer's own pixels, not the screen's.
  QCOMPARE(diagram::CurrentDiagram().width, printer.width());
  QVERIFY(printer.width() > 4 * Image(OutputPage::FtFmax).width());
}

void OutputPagesTest::PrintingNeedsTwoFilesAndACompletedDialog() {
  mainwin_test::MessageLog log;
  {
    mainwin_test::DialogAnswers answers(QString(), Out("none.pdf"));
    Find<QAction>("PrintAllWindows1")->trigger();
    QCOMPARE(log.Messages(), QStringList({"Please insert two or more files."}));
    QCOMPARE(answers.PrintDialogs(), 0);
  }
  DropTwoFiles();
  mainwin_test::DialogAnswers cancelled{QString(), QString()};
  Find<QAction>("PrintTable1")->trigger();
  QCOMPARE(cancelled.PrintDialogs(), 1);
  QVERIFY(!QFile::exists(Out("none.pdf")));
}

void OutputPagesTest::PictureFilesHoldTheShownGraph_data() {
  QTest::addColumn<QString>("item");
  QTest::addColumn<QString>("title");
  // JPEG changes the channels by about 1 on average, even beside saturated colours, where single
  // pixels may change by 200; a blank picture would be 4 away.
  QTest::addColumn<double>("tolerance");
  QTest::newRow("BMP") << "SaveGraphBMP1" << "Save Graph to BMP File" << 0.0;
  QTest::newRow("JPG") << "SaveGraphJPG1" << "Save Graph to JPG File" << 1.5;
}

void OutputPagesTest::PictureFilesHoldTheShownGraph() {
  QFETCH(QString, item);
  QFETCH(QString, title);
  QFETCH(double, tolerance);
  DropTwoFiles();
  ShowTab(3);
  const QString path = Out(item + ".picture");
  mainwin_test::DialogAnswers answers(path, QString());
  Find<QAction>(qPrintable(item))->trigger();
  QCOMPARE(answers.SaveTitles(), QStringList({title}));
  const QImage shown = Image(OutputPage::KMag).Picture();
  const QImage saved = QImage(path).convertToFormat(QImage::Format_RGB32);
  QCOMPARE(saved.size(), shown.size());
  QCOMPARE(saved.size(), Image(OutputPage::KMag).size());
  double sum = 0;
  for (int y = 0; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) {
      const QRgb a = shown.pixel(x, y), b = saved.pixel(x, y);
      sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
    }
  }
  const double mean = sum / (3.0 * shown.width() * shown.height());
  QVERIFY2(mean <= tolerance, qPrintable(QString::number(mean)));
}

void OutputPagesTest::CopyImageTakesTheGraphAndPicturesNeedAGraphPage() {
  DropTwoFiles();
  ShowTab(4);
  Find<QAction>("CopyImage1")->trigger();
  QCOMPARE(QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32),
           Image(OutputPage::StabilityLimit).Picture());
  ShowTab(5);
  mainwin_test::MessageLog log;
  mainwin_test::DialogAnswers answers(Out("table.bmp"), QString());
  Find<QAction>("SaveGraphBMP1")->trigger();
  Find<QAction>("CopyImage1")->trigger();
  QCOMPARE(log.Messages().size(), 2);
  QVERIFY(log.Messages().front().endsWith("first, then copy or save its graph!"));
  QVERIFY(answers.SaveTitles().isEmpty());
  QVERIFY(!QFile::exists(Out("table.bmp")));
}

void OutputPagesTest::MouseReadsOutTheXChoiceWithUnits_data() {
  QTest::addColumn<QString>("choice");
  QTest::addColumn<bool>("density");
  QTest::addColumn<QString>("pattern");
  QTest::newRow("current") << "RadioButtonIc" << false << R"(^Ic = \d+\.\d\d mA, fT, fmax = \d+\.\d\d GHz$)";
  QTest::newRow("density") << "RadioButtonIc" << true << R"(^j = 0\.\d{3} mA/µm², fT, fmax = \d+\.\d\d GHz$)";
  QTest::newRow("file number") << "RadioButtonFileNo" << false << R"(^File Number = \d, fT, fmax = \d+\.\d\d GHz$)";
}

void OutputPagesTest::MouseReadsOutTheXChoiceWithUnits() {
  QFETCH(QString, choice);
  QFETCH(bool, density);
  QFETCH(QString, pattern);
  mainwin_test::MessageLog log;  // the file number reads no current
  Find<QRadioButton>(qPrintable(choice))->setChecked(true);
  Find<QCheckBox>("CheckBoxDensity")->setChecked(density);
  DropTwoFiles();
  ShowTab(2);
  auto& image = const_cast<mainwin::TGraphImage&>(Image(OutputPage::FtFmax));
  QTest::mouseMove(&image, image.rect().center());
  const QString shown = Window().statusBar()->currentMessage();
  QVERIFY2(QRegularExpression(pattern).match(shown).hasMatch(), qPrintable(shown));
  QTest::mouseMove(&image, QPoint(2, 2));
  QVERIFY(Window().statusBar()->currentMessage().isEmpty());
}

// At 2 GHz the example transistor at 10 mA has k < 1, so its fmax comes from MSG; at 40 mA
// both figures pass.
void OutputPagesTest::ChecksShadeDoubtfulCellsAndExplainPoints() {
  ShowTab(1);
  const QString examples = QStringLiteral(NETRIX_SOURCE_DIR "/examples/series/");
  Window().FilesDropped({examples + "bjt_07_10mA.s2p", examples + "bjt_12_40mA.s2p"});
  ShowTab(5);
  auto* grid = Find<controls::TStringAlignGrid>("StringAlignGridTab");
  QCOMPARE(grid->item(1, 3)->background().color(), QColor(255, 214, 153));
  QCOMPARE(grid->item(2, 3)->background().style(), Qt::NoBrush);
  QVERIFY(grid->item(1, 3)->toolTip().startsWith("fmax doubtful at fo:\n- taken from MSG (k < 1)"));
  QVERIFY(grid->item(2, 2)->toolTip().startsWith("fT passes the checks at fo\nSlope of |h21| at fo: -20.0"));

  ShowTab(2);
  auto& image = const_cast<mainwin::TGraphImage&>(Image(OutputPage::FtFmax));
  const diagram::pages::PageGraph graph = diagram::pages::GraphOf(OutputPage::FtFmax, image.Scene());
  const QPoint at = diagram::pages::PointPixel(diagram::CurrentDiagram(), graph, graph.series[1], 0);
  QHelpEvent help(QEvent::ToolTip, at, image.mapToGlobal(at));
  QCoreApplication::sendEvent(&image, &help);
  QVERIFY2(QToolTip::text().startsWith("fmax doubtful"), qPrintable(QToolTip::text()));
}

int RunOutputPagesTests(int argc, char** argv) {
  OutputPagesTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "output_pages_test.moc"
