#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include "controls/gradient_panel.h"
#include "controls/spin_button.h"
#include "controls/string_align_grid.h"

using controls::TGradientPanel;
using controls::TSpinButton;
using controls::TStringAlignGrid;

class ControlsTest : public QObject {
  Q_OBJECT

 private slots:
  void SpinButtonClicksOncePerShortPress_data();
  void SpinButtonClicksOncePerShortPress();
  void SpinButtonRepeatsWhileHeldUntilDisabled();
  void GradientRunsFromStartToEnd_data();
  void GradientRunsFromStartToEnd();
  void GridCellsFollowTheirColumnsAlignment();
  void GridHeaderRowsCannotBeSelected();
  void GridClearRowEmptiesEveryColumn();
};

void ControlsTest::SpinButtonClicksOncePerShortPress_data() {
  QTest::addColumn<bool>("up");
  QTest::newRow("up") << true;
  QTest::newRow("down") << false;
}

void ControlsTest::SpinButtonClicksOncePerShortPress() {
  QFETCH(bool, up);
  TSpinButton spin;
  spin.show();
  QSignalSpy ups(&spin, &TSpinButton::UpClick);
  QSignalSpy downs(&spin, &TSpinButton::DownClick);
  QTest::mouseClick(up ? spin.UpButton() : spin.DownButton(), Qt::LeftButton);
  QCOMPARE(ups.count(), up ? 1 : 0);
  QCOMPARE(downs.count(), up ? 0 : 1);
}

void ControlsTest::SpinButtonRepeatsWhileHeldUntilDisabled() {
  TSpinButton spin;
  spin.show();
  QSignalSpy ups(&spin, &TSpinButton::UpClick);
  QTest::mousePress(spin.UpButton(), Qt::LeftButton);
  // Well past the first delay and several intervals; a loaded machine may merge some timer ticks.
  QTest::qWait(TSpinButton::kRepeatDelayMs + 6 * TSpinButton::kRepeatIntervalMs);
  QVERIFY2(ups.count() >= 2, qPrintable(QString::number(ups.count())));
  spin.setEnabled(false);  // the running repeat stops although the button is still held
  const int before = ups.count();
  QTest::qWait(3 * TSpinButton::kRepeatIntervalMs);
  QCOMPARE(ups.count(), before);
}

void ControlsTest::GradientRunsFromStartToEnd_data() {
  QTest::addColumn<int>("direction");
  QTest::newRow("top to bottom") << static_cast<int>(TGradientPanel::Direction::TopToBottom);
  QTest::newRow("left to right") << static_cast<int>(TGradientPanel::Direction::LeftToRight);
}

void ControlsTest::GradientRunsFromStartToEnd() {
  QFETCH(int, direction);
  const auto dir = static_cast<TGradientPanel::Direction>(direction);
  TGradientPanel panel;
  panel.resize(200, 200);
  panel.SetColors(QColor(0, 0, 200), QColor(200, 100, 0));
  panel.SetDirection(dir);
  const QImage image = panel.grab().toImage();
  const QPoint last = dir == TGradientPanel::Direction::TopToBottom ? QPoint(100, 197) : QPoint(197, 100);
  auto near = [&image](QPoint at, QColor expected) {
    const QColor actual = image.pixelColor(at);
    return std::abs(actual.red() - expected.red()) <= 6 && std::abs(actual.green() - expected.green()) <= 6 &&
           std::abs(actual.blue() - expected.blue()) <= 6;
  };
  QVERIFY(near(QPoint(2, 2), QColor(0, 0, 200)));
  QVERIFY(near(last, QColor(200, 100, 0)));
  // Half way the colour is the mean of the two ends.
  QVERIFY(near(QPoint(100, 100), QColor(100, 50, 100)));
}

// Column 0 is aligned before its cell is written, column 1 after its cells are.
void ControlsTest::GridCellsFollowTheirColumnsAlignment() {
  TStringAlignGrid grid(2, 3);
  grid.SetColumnAlignment(0, Qt::AlignCenter);
  grid.SetCells(0, 2, QStringLiteral("x"));
  grid.SetCells(1, 0, QStringLiteral("a"));
  grid.SetCells(1, 1, QStringLiteral("b"));
  grid.SetColumnAlignment(1, Qt::AlignRight);
  QCOMPARE(grid.item(2, 0)->textAlignment(), int(Qt::AlignCenter));
  QCOMPARE(grid.item(0, 1)->textAlignment(), int(Qt::AlignRight));
  QCOMPARE(grid.item(1, 1)->textAlignment(), int(Qt::AlignRight));
  QCOMPARE(grid.Cells(0, 2), QStringLiteral("x"));
  QCOMPARE(grid.Cells(0, 1), QString());
}

void ControlsTest::GridHeaderRowsCannotBeSelected() {
  TStringAlignGrid grid(2, 3);
  grid.SetCells(0, 0, QStringLiteral("head"));
  grid.SetFixedRows(1);
  grid.SetCells(1, 0, QStringLiteral("head 2"));
  grid.SetCells(0, 1, QStringLiteral("body"));
  QVERIFY(!(grid.item(0, 0)->flags() & Qt::ItemIsSelectable));
  QVERIFY(!(grid.item(0, 1)->flags() & Qt::ItemIsSelectable));
  QVERIFY(grid.item(1, 0)->flags() & Qt::ItemIsSelectable);
}

void ControlsTest::GridClearRowEmptiesEveryColumn() {
  TStringAlignGrid grid(3, 2);
  for (int column = 0; column < 3; ++column) grid.SetCells(column, 1, QStringLiteral("v"));
  grid.SetCells(0, 0, QStringLiteral("keep"));
  grid.ClearRow(1);
  for (int column = 0; column < 3; ++column) QCOMPARE(grid.Cells(column, 1), QString());
  QCOMPARE(grid.Cells(0, 0), QStringLiteral("keep"));
}

QTEST_MAIN(ControlsTest)
#include "controls_test.moc"
