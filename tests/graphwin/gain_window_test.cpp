// The gain window driven through its controls by name, on the offscreen platform.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QMainWindow>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include "graphwin/gwin.h"
#include "window_fixture.h"

namespace graphwin {
namespace {

using GainWindowTest = graphwin_test::WindowTest<TFormG>;
using graphwin_test::Answers;

TEST_F(GainWindowTest, OpensAtItsDefaultsAgainAfterAZoom) {
  EXPECT_TRUE(window_->isVisible());
  EXPECT_EQ(State().x.max, 5e9);  // NiceStep(5 GHz)
  Find<QToolButton>("ZoomInButton")->click();
  EXPECT_DOUBLE_EQ(State().y.max, 40 / 1.5);
  window_->ShowFromMain();
  EXPECT_EQ(State().y.max, 40);
  EXPECT_EQ(window_->Picture().size(), Image()->size());
}

// Coming back from another window of the program starts again; from a dialog it does not.
TEST_F(GainWindowTest, SwitchingBackFromAnotherWindowActivatesItAgain) {
  QMainWindow other;
  other.show();
  axis_.show();
  Find<QToolButton>("ZoomInButton")->click();
  QApplication::setActiveWindow(window_.get());
  QApplication::setActiveWindow(&axis_);
  QApplication::setActiveWindow(window_.get());
  EXPECT_DOUBLE_EQ(State().y.max, 40 / 1.5);
  QApplication::setActiveWindow(&other);
  QApplication::setActiveWindow(window_.get());
  EXPECT_EQ(State().y.max, 40);
}

TEST_F(GainWindowTest, CheckBoxesChooseTheCurves) {
  Find<QCheckBox>("CheckBoxMAG")->click();  // the only box: checked again at once
  EXPECT_TRUE(Find<QCheckBox>("CheckBoxMAG")->isChecked());
  Find<QCheckBox>("CheckBoxS21")->click();
  Find<QCheckBox>("CheckBoxMAG")->click();
  ASSERT_EQ(window_->Plot().curves.size(), 1u);
  EXPECT_EQ(window_->Plot().curves[0].name, "dut.s2p, |S21|²");
  Find<QCheckBox>("CheckBoxS21")->click();  // MAG/MSG comes back
  EXPECT_EQ(window_->Plot().title, "MAG(f) or MSG(f)");
}

TEST_F(GainWindowTest, AnAxisEndAsksForItsLimitAndALogAxisStartsAtOne) {
  Find<QAction>("xlog1")->trigger();
  {
    Answers answers({"0"});
    QTest::mouseClick(Image(), Qt::LeftButton, {}, PixelOf(State().x.min, 0));
    EXPECT_EQ(answers.asked_, QStringList{"xmin="});
  }
  EXPECT_EQ(State().x.min, 1);
  Answers origin({"3G"});
  Find<QAction>("Ursprungfestlegen1")->trigger();
  EXPECT_EQ(origin.asked_, (QStringList{"xo=", "yo="}));
}

TEST_F(GainWindowTest, RubberBandFromUpperLeftToLowerRightSetsTheScale) {
  const QPoint from = PixelOf(1e9, 30), to = PixelOf(2e9, 10);
  QTest::mousePress(Image(), Qt::RightButton, {}, to);
  QTest::mouseRelease(Image(), Qt::RightButton, {}, from);
  EXPECT_EQ(State().y.max, 40);  // drawn the wrong way round
  QTest::mouseMove(Image(), from);
  EXPECT_TRUE(Find<QLabel>("CurrentPanel")->text().startsWith("Position : f=1.0"));
  QTest::mousePress(Image(), Qt::RightButton, {}, from);
  QTest::mouseRelease(Image(), Qt::RightButton, {}, to);
  EXPECT_NEAR(State().x.min, 1e9, 2e7);  // within a pixel
  EXPECT_NEAR(State().x.max, 2e9, 2e7);
  EXPECT_NEAR(State().y.min, 10, 0.3);
  EXPECT_NEAR(State().y.max, 30, 0.3);
}

TEST_F(GainWindowTest, XLogAndAutoscaleFollowTheData) {
  Find<QToolButton>("xlogButton")->click();
  EXPECT_TRUE(Find<QAction>("xlog1")->isChecked());
  EXPECT_EQ(State().x.min, 1e9);  // the lowest frequency, a decade already
  EXPECT_EQ(State().x.max, 1e10);
  Find<QAction>("xlog1")->trigger();
  EXPECT_EQ(State().x.mode, diagram::AxisMode::Linear);
  EXPECT_EQ(State().x.min, 0);
  Find<QToolButton>("AutoskButton")->click();
  EXPECT_EQ(State().x.max, 5e9);
  EXPECT_EQ(State().y.max, 7);  // RoundUpOneDigit(1.001 * 6.02 dB)
}

TEST_F(GainWindowTest, SizeCommandsKeepTheLeastSize) {
  window_->resize(640, 480);
  Find<QAction>("Vergroessern1")->trigger();
  EXPECT_EQ(window_->size(), QSize(853, 640));
  Find<QToolButton>("VerkleinernButton")->click();
  EXPECT_EQ(window_->size(), QSize(640, 480));
  window_->resize(300, 200);
  EXPECT_EQ(window_->size(), QSize(400, 350));
  Find<QAction>("HilfezumProgramm1")->trigger();
  EXPECT_TRUE(help_.isVisible());
  Find<QToolButton>("CloseButton")->click();
  EXPECT_FALSE(window_->isVisible());
}

TEST_F(GainWindowTest, OutputsWriteThePictureTheCurvesAndThePage) {
  EXPECT_EQ(PrintedStart(), "%PDF-");
  QTemporaryDir dir;
  QStringList offered;
  controls::DialogInterception answers(
      [&](const controls::SaveDialogSetup& setup) {
        offered.append(setup.initialName);
        return dir.filePath("out." + setup.defaultSuffix.toLower());
      },
      nullptr);
  for (const char* item : {"Save1", "SaveasGIF1", "SaveasJPEG1", "ExportCurves1", "WerteinTabellespeichern1", "Save1"}) {
    Find<QAction>(item)->trigger();
  }
  EXPECT_EQ(offered.last(), dir.filePath("out.bmp"));  // the last picture file is offered again
  for (const char* picture : {"out.bmp", "out.gif", "out.jpg"}) {
    EXPECT_EQ(QImage(dir.filePath(picture)).size(), window_->Picture().size()) << picture;
  }
  EXPECT_EQ(QApplication::clipboard()->image().size(), window_->Picture().size());  // from the JPEG save
  QFile csv(dir.filePath("out.csv"));
  ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
  EXPECT_EQ(csv.readLine(), "f_Hz,MSG_or_MAG_dB (dut.s2p)\n");
  QFile table(dir.filePath("out.tab"));
  ASSERT_TRUE(table.open(QIODevice::ReadOnly));
  EXPECT_TRUE(table.readLine().startsWith("Calculated Values by NETRIX"));
}

}  // namespace
}  // namespace graphwin
