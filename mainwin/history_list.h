#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class QAction;
class QMenu;
class QSettings;

namespace mainwin {

// The most recently loaded files as menu items, placed in BaseMenu right behind its (hidden)
// base item, newest first, and kept in the per-user settings under
// Software/<RegPath>/<objectName> as the values <RegKey>0, <RegKey>1, ...
class THistoryList : public QObject {
  Q_OBJECT

 public:
  static constexpr const char* kUnsetRegPath = "Company\\Program Name";

  THistoryList(QMenu* baseMenu, QAction* baseItem, QObject* parent = nullptr);

  void SetRegPath(const QString& path) { regPath_ = path; }
  void SetRegKey(const QString& key) { regKey_ = key; }
  // Refuses values below one with a message and keeps the old value.
  void SetMaxItems(int count);
  int MaxItems() const { return maxItems_; }

  // Reads the stored list; a missing key gives an empty list. Nothing happens while RegPath is
  // still the placeholder.
  void Load(QSettings& settings);
  // Existing files only; a name already listed moves to the top.
  void Add(const QString& fileName);
  // Writes the list when it holds any item and deletes the values a longer list left behind.
  void Save(QSettings& settings) const;

  QStringList Items() const;

 signals:
  void Clicked(const QString& fileName);

 private:
  QString GroupPath() const;
  void InsertAtTop(const QString& fileName);
  QAction* ActionBelowBase() const;

  QMenu* baseMenu_;
  QAction* baseItem_;
  QAction* separator_ = nullptr;
  QList<QAction*> items_;  // newest first
  QString regPath_ = kUnsetRegPath;
  QString regKey_;
  int maxItems_ = 4;
};

}  // namespace mainwin
