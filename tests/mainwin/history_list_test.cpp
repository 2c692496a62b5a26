#include <QMenu>

#include "fixtures.h"
#include "mainwin/history_list.h"

using mainwin::THistoryList;

class HistoryListTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void SevenLoadsKeepTheNewestSixBehindASeparator();
  void SavingAShorterListDeletesStaleValues();
  void LoadRestoresTheOrderFromItsOwnPathOnly();

 private:
  std::unique_ptr<THistoryList> MakeList();
  QString File(int i) { return mainwin_test::WriteTwoPortFile(dir_, QStringLiteral("h%1.s2p").arg(i), 1); }

  QTemporaryDir dir_;
  std::unique_ptr<QMenu> menu_;
  QAction* base_ = nullptr;
};

void HistoryListTest::init() {
  mainwin_test::ResetProgramState();
  menu_ = std::make_unique<QMenu>();
  menu_->addAction("&Load");
  base_ = menu_->addAction("&List of Previous S-Parameter Files...");
  base_->setVisible(false);
  menu_->addAction("&Exit");
}

std::unique_ptr<THistoryList> HistoryListTest::MakeList() {
  auto list = std::make_unique<THistoryList>(menu_.get(), base_);
  list->setObjectName("HistoryList1");
  list->SetRegPath("netrix");
  list->SetRegKey("MRUList1");
  list->SetMaxItems(6);
  return list;
}

// Regression: the separator was once inserted at the very top of the menu. Missing and empty names
// are ignored, and a maximum below one is refused.
void HistoryListTest::SevenLoadsKeepTheNewestSixBehindASeparator() {
  mainwin_test::MessageLog log;
  auto list = MakeList();
  list->SetMaxItems(0);
  QCOMPARE(log.Messages(), QStringList({"At least one Item ! You stupid guy ! (or girl)"}));
  list->Add(QString());
  list->Add(dir_.filePath("never-written.s2p"));
  for (int i = 1; i <= 7; ++i) list->Add(File(i));
  QCOMPARE(list->Items(), QStringList({File(7), File(6), File(5), File(4), File(3), File(2)}));
  // The dropped item is gone from the menu too: Load, base, separator, six items, Exit.
  const QList<QAction*> actions = menu_->actions();
  QCOMPARE(actions.size(), 10);
  QCOMPARE(actions[1], base_);
  QVERIFY(actions[2]->isSeparator());
  QCOMPARE(actions[3]->data().toString(), File(7));
  QCOMPARE(actions[8]->data().toString(), File(2));
  QCOMPARE(actions[9]->text(), QStringLiteral("&Exit"));
}

void HistoryListTest::SavingAShorterListDeletesStaleValues() {
  QSettings settings;
  {
    auto six = MakeList();
    for (int i = 1; i <= 6; ++i) six->Add(File(i));
    six->Save(settings);
  }
  QVERIFY(settings.contains("Software/netrix/HistoryList1/MRUList15"));
  init();
  auto four = MakeList();
  for (int i = 11; i <= 14; ++i) four->Add(File(i));
  four->Save(settings);
  QCOMPARE(settings.value("Software/netrix/HistoryList1/MRUList10").toString(), File(14));
  QCOMPARE(settings.value("Software/netrix/HistoryList1/MRUList13").toString(), File(11));
  QVERIFY(!settings.contains("Software/netrix/HistoryList1/MRUList14"));
  QVERIFY(!settings.contains("Software/netrix/HistoryList1/MRUList15"));
}

void HistoryListTest::LoadRestoresTheOrderFromItsOwnPathOnly() {
  QSettings settings;
  settings.setValue("Software/netrix/HistoryList1/MRUList10", File(3));
  settings.setValue("Software/netrix/HistoryList1/MRUList11", File(1));
  settings.setValue("Software/netrix/HistoryList1/MRUList12", File(2));
  settings.setValue("Software/netrix/HistoryList1/MRUList14", File(4));  // after a gap: not read
  settings.setValue("Software/Company/Program Name/HistoryList1/MRUList10", File(5));
  auto list = MakeList();
  list->Load(settings);
  QCOMPARE(list->Items(), QStringList({File(3), File(1), File(2)}));
  // A list left at the placeholder path loads nothing.
  THistoryList unnamed(menu_.get(), base_);
  unnamed.setObjectName("HistoryList1");
  unnamed.SetRegKey("MRUList1");
  unnamed.Load(settings);
  QVERIFY(unnamed.Items().isEmpty());
}

int RunHistoryListTests(int argc, char** argv) { return mainwin_test::RunTests<HistoryListTest>(argc, argv); }

#include "history_list_test.moc"
