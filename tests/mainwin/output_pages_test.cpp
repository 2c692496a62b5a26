#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QImage>
#include <QPrinter>
#include <QStatusBar>
#include <QToolTip>
#include <tuple>
#include <utility>

#include "controls/string_align_grid.h"
#include "diagram/diagram_state.h"
#include "fixtures.h"
#include "mainwin/graph_image.h"
#include "mainwin/graph_page.h"
#include "diagram/pages/graph_data.h"
#include "diagram/pages/page_graphs.h"

using diagram::pages::OutputPage;

// Pages 3 to 6: the graphs and their titles, the "&Graphic" menu, the table, the export,
// printing, the picture files and the mouse read-out.
class OutputPagesTest : public QObject, mainwin_test::WindowSession {
  Q_OBJECT

 private slots:
  void init();
  void GraphicMenuKeepsOneOfEachPair();
  void GraphicMenuRedrawsOnlyFromThePageBefore();
  void TablePageHeaderCommentAndRows();
  void ExportTakesThePagesEntries();
  void NothingIsExportedOrPrintedWithoutFiles();
  void PrintCommandsPrintTheirSheets();
  void PicturesTakeTheShownGraphAndNeedAGraphPage();
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

// Each item checked after the click, in a row of clicks.
void OutputPagesTest::GraphicMenuKeepsOneOfEachPair() {
  const std::pair<const char*, QStringList> clicks[] = {{"fTonly1", {"fTonly1"}},
                                                        {"fmaxonly1", {"fmaxonly1"}},
                                                        {"konly1", {"fmaxonly1", "konly1"}},
                                                        {"ShowfTandMAG1", {"fTonly1", "MAGMSGonly1"}},
                                                        {"ShowAll1", {}}};
  for (const auto& [clicked, checked] : clicks) {
    Find<QAction>(clicked)->trigger();
    for (const char* item : {"fTonly1", "fmaxonly1", "MAGMSGonly1", "konly1"}) {
      QVERIFY2(Find<QAction>(item)->isChecked() == checked.contains(item), clicked);
    }
  }
}

// An item redraws the graph of the page after the one shown: k from page 4 leaves the k, MAG
// graph alone; fT from page 2 changes the fT, fmax graph. The label beside the comment shows while
// both series of its page are shown.
void OutputPagesTest::GraphicMenuRedrawsOnlyFromThePageBefore() {
  DropTwoFiles();
  for (int page = 2; page <= 4; ++page) ShowTab(page);  // every graph drawn with nothing chosen
  const auto chosen = [this](OutputPage page) {
    const diagram::pages::GraphicChoice& c = Image(page).Scene().choice;
    return c.fTOnly || c.fmaxOnly || c.magMsgOnly || c.kOnly;
  };
  ShowTab(3);
  QVERIFY(Find<QLabel>("LabelLegende2")->isVisible());
  QCOMPARE(Find<QLabel>("LabelLegende2")->text(), QStringLiteral("k - crosses "));
  Find<QAction>("konly1")->trigger();
  QVERIFY(!chosen(OutputPage::KMag));
  ShowTab(1);
  Find<QAction>("fTonly1")->trigger();
  QVERIFY(chosen(OutputPage::FtFmax));
  ShowTab(2);
  QVERIFY(!Find<QLabel>("LabelLegende1")->isVisible());
}

// The cells themselves are the series engine's; the page adds the header and the comment, and
// clears the row of a removed file.
void OutputPagesTest::TablePageHeaderCommentAndRows() {
  Find<QCheckBox>("CheckBoxDensity")->setChecked(true);
  Find<QCheckBox>("CheckBoxComment")->setChecked(true);
  Find<QPlainTextEdit>("MemoComment")->setPlainText("lot 7\nwafer 3");
  const QStringList files = DropTwoFiles();
  Window().FilesDropped({mainwin_test::WriteSeriesFile(dir_, "bias_6mA.s2p", "! Ic=6m")});
  ShowTab(5);
  auto* grid = Find<controls::TStringAlignGrid>("StringAlignGridTab");
  const QStringList header = {"File Name", "Ic", "fT", "fmax", "MAG/MSG", "k", "f(k>1)", "j/(mA/µm²)"};
  for (int column = 0; column < 8; ++column) QCOMPARE(grid->Cells(column, 0), header[column]);
  QCOMPARE(grid->item(2, 0)->toolTip(), files[1]);
  QCOMPARE(grid->Cells(7, 1), QStringLiteral("  0.004"));  // 1000 * 2 mA / 500 square micrometres
  QCOMPARE(Find<QLineEdit>("EditComment3")->text(), QStringLiteral("lot 7 wafer 3"));
  QVERIFY(!grid->Cells(0, 3).isEmpty());
  ShowTab(1);
  QTest::mouseClick(Find<QWidget>("SpeedButtonDeletaLastFile"), Qt::LeftButton);
  ShowTab(5);
  for (int column = 0; column < 8; ++column) QVERIFY(grid->Cells(column, 3).isEmpty());
  QVERIFY(!grid->Cells(0, 2).isEmpty());
  Find<QCheckBox>("CheckBoxComment")->setChecked(false);
  ShowTab(4);
  QCOMPARE(Find<QLineEdit>("EditComment4")->text(), QStringLiteral("Graphic"));
}

// A cancelled dialog writes nothing. The file's layout is the export's own test; here the page's
// comment and density choice reach it.
void OutputPagesTest::ExportTakesThePagesEntries() {
  Find<QCheckBox>("CheckBoxDensity")->setChecked(true);
  Find<QCheckBox>("CheckBoxComment")->setChecked(true);
  Find<QPlainTextEdit>("MemoComment")->setPlainText("lot 7");
  DropTwoFiles();
  const QStringList before = QDir(dir_.path()).entryList();
  {
    mainwin_test::DialogAnswers cancelled{QString(), QString()};
    Find<QAction>("ExportData1")->trigger();
    QCOMPARE(cancelled.SaveTitles().size(), 1);
  }
  QCOMPARE(QDir(dir_.path()).entryList(), before);
  mainwin_test::DialogAnswers answers(Out("result.spa"), QString());
  Find<QAction>("ExportData1")->trigger();
  QCOMPARE(answers.SaveTitles(), QStringList({"Save Calculated Data"}));
  QFile written(Out("result.spa"));
  QVERIFY(written.open(QIODevice::ReadOnly));
  const QByteArray text = written.readAll();
  QVERIFY2(text.contains("lot 7") && text.contains("j/(mA/\xB5m\xB2)"), text.constData());
}

// Without files neither the export nor the printing opens its dialog.
void OutputPagesTest::NothingIsExportedOrPrintedWithoutFiles() {
  mainwin_test::MessageLog log;
  mainwin_test::DialogAnswers answers(Out("empty.spa"), Out("none.pdf"));
  QTest::mouseClick(Find<QPushButton>("BitBtn1"), Qt::LeftButton);
  Find<QAction>("PrintAllWindows1")->trigger();
  QCOMPARE(log.Messages(),
           QStringList({"Please drag s2p file(s) to the program.", "Please insert two or more files."}));
  QVERIFY(answers.SaveTitles().isEmpty());
  QCOMPARE(answers.PrintDialogs(), 0);
  QVERIFY(!QFile::exists(Out("empty.spa")) && !QFile::exists(Out("none.pdf")));
}

// Each command with the page it is given on: print on page 2 and on the table page, all windows,
// the first two outputs, the output table, and last print on a graph page.
void OutputPagesTest::PrintCommandsPrintTheirSheets() {
  DropTwoFiles();
  const std::tuple<int, const char*, int> commands[] = {{1, "Drucken1", 1},         {5, "Drucken1", 1},
                                                        {1, "PrintAllWindows1", 4}, {1, "Print1stTwo1", 1},
                                                        {1, "PrintTable1", 1},      {2, "Drucken1", 1}};
  for (const auto& [tab, item, pages] : commands) {
    ShowTab(tab);
    const QString pdf = Out(item + QString::number(tab) + ".pdf");
    mainwin_test::DialogAnswers answers(QString(), pdf);
    Find<QAction>(item)->trigger();
    QCOMPARE(answers.PrintDialogs(), 1);
    QVERIFY2(mainwin_test::PdfPageCount(pdf) == pages, item);
  }
  // The graph spans the printable width in the printer's own pixels, not the screen's.
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  QCOMPARE(diagram::CurrentDiagram().width, printer.width());
  QVERIFY(printer.width() > 4 * Image(OutputPage::FtFmax).width());
}

void OutputPagesTest::PicturesTakeTheShownGraphAndNeedAGraphPage() {
  DropTwoFiles();
  ShowTab(3);
  mainwin_test::DialogAnswers answers(Out("graph.bmp"), QString());
  Find<QAction>("SaveGraphBMP1")->trigger();
  QCOMPARE(answers.SaveTitles(), QStringList({"Save Graph to BMP File"}));
  QCOMPARE(QImage(Out("graph.bmp")).convertToFormat(QImage::Format_RGB32),
           Image(OutputPage::KMag).Picture().convertToFormat(QImage::Format_RGB32));
  ShowTab(4);
  Find<QAction>("CopyImage1")->trigger();
  QCOMPARE(QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32),
           Image(OutputPage::StabilityLimit).Picture());
  ShowTab(5);
  mainwin_test::MessageLog log;
  Find<QAction>("SaveGraphBMP1")->trigger();
  Find<QAction>("CopyImage1")->trigger();
  QCOMPARE(log.Messages().size(), 2);
  QVERIFY(log.Messages().front().endsWith("first, then copy or save its graph!"));
  QCOMPARE(answers.SaveTitles().size(), 1);  // no dialog on the table page
}

// The read-out texts are the graph data's; the window shows them while the mouse is on a graph.
// At 2 GHz the example transistor at 10 mA has k < 1, so its fmax comes from MSG; at 40 mA
// both figures pass. The read-out texts are the graph data's; the window shows them while the
// mouse is on a graph.
void OutputPagesTest::ChecksShadeDoubtfulCellsAndExplainPoints() {
  ShowTab(1);
  const QString examples = QStringLiteral(NETRIX_SOURCE_DIR "/examples/series/");
  Window().FilesDropped({examples + "bjt_07_10mA.s2p", examples + "bjt_12_40mA.s2p"});
  ShowTab(5);
  auto* grid = Find<controls::TStringAlignGrid>("StringAlignGridTab");
  QCOMPARE(grid->item(1, 3)->background().color(), QColor(255, 214, 153));
  QCOMPARE(grid->item(2, 3)->background().style(), Qt::NoBrush);
  QVERIFY(grid->item(2, 2)->toolTip().startsWith("fT passes the checks at fo\nSlope of |h21| at fo: -20.0"));

  ShowTab(2);
  auto& image = const_cast<mainwin::TGraphImage&>(Image(OutputPage::FtFmax));
  const diagram::pages::PageGraph graph = diagram::pages::GraphOf(OutputPage::FtFmax, image.Scene());
  const QPoint at = diagram::pages::PointPixel(diagram::CurrentDiagram(), graph, graph.series[1], 0);
  QHelpEvent help(QEvent::ToolTip, at, image.mapToGlobal(at));
  QCoreApplication::sendEvent(&image, &help);
  QVERIFY2(QToolTip::text().startsWith("fmax doubtful"), qPrintable(QToolTip::text()));
  QTest::mouseMove(&image, at);
  const QString shown = Window().statusBar()->currentMessage();
  QVERIFY2(shown.startsWith("Ic = ") && shown.endsWith(" GHz"), qPrintable(shown));
  QTest::mouseMove(&image, QPoint(2, 2));
  QVERIFY(Window().statusBar()->currentMessage().isEmpty());
}

int RunOutputPagesTests(int argc, char** argv) { return mainwin_test::RunTests<OutputPagesTest>(argc, argv); }

#include "output_pages_test.moc"
