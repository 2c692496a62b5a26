#include "history_list.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>
#include <algorithm>
#include <cassert>

#include "controls/message_box.h"

namespace mainwin {

THistoryList::THistoryList(QMenu* baseMenu, QAction* baseItem, QObject* parent)
    : QObject(parent), baseMenu_(baseMenu), baseItem_(baseItem) {
  assert(baseMenu_ && baseItem_ && baseMenu_->actions().contains(baseItem_));
}

void THistoryList::SetMaxItems(int count) {
  if (count < 1) {
    controls::ShowMessage(nullptr, QStringLiteral("At least one Item ! You stupid guy ! (or girl)"));
    return;
  }
  maxItems_ = count;
  while (items_.size() > maxItems_) delete items_.takeLast();
}

QString THistoryList::GroupPath() const {
  QString path = regPath_;
  path.replace('\\', '/');
  return QStringLiteral("Software/") + path + '/' + objectName();
}

void THistoryList::Load(QSettings& settings) {
  if (regPath_ == QLatin1String(kUnsetRegPath)) return;
  settings.beginGroup(GroupPath());
  QStringList stored;
  for (int i = 0; settings.contains(regKey_ + QString::number(i)); ++i) {
    stored.append(settings.value(regKey_ + QString::number(i)).toString());
  }
  settings.endGroup();
  std::for_each(stored.rbegin(), stored.rend(), [this](const QString& name) { Add(name); });
}

void THistoryList::Add(const QString& fileName) {
  if (fileName.isEmpty() || !QFileInfo::exists(fileName)) return;
  const auto listed = std::find_if(items_.begin(), items_.end(),
                                   [&](QAction* item) { return item->data().toString() == fileName; });
  if (listed != items_.end()) {
    delete *listed;
    items_.erase(listed);
  }
  InsertAtTop(fileName);
  while (items_.size() > maxItems_) delete items_.takeLast();
}

void THistoryList::InsertAtTop(const QString& fileName) {
  const bool menuHasOtherItems = baseMenu_->actions().size() > 1;
  if (!separator_ && menuHasOtherItems) {
    auto* separator = new QAction(baseMenu_);
    separator->setSeparator(true);
    baseMenu_->insertAction(ActionBelowBase(), separator);
    separator_ = separator;
  }
  auto* item = new QAction(QString(fileName).replace('&', QLatin1String("&&")), baseMenu_);
  item->setData(fileName);
  connect(item, &QAction::triggered, this, [this, fileName] { emit Clicked(fileName); });
  baseMenu_->insertAction(items_.isEmpty() ? ActionBelowBase() : items_.front(), item);
  items_.prepend(item);
}

// The action the list is inserted in front of: the one after the base item and the separator.
QAction* THistoryList::ActionBelowBase() const {
  const QList<QAction*> actions = baseMenu_->actions();
  const QAction* anchor = separator_ ? separator_ : baseItem_;
  const qsizetype next = actions.indexOf(anchor) + 1;
  return next < actions.size() ? actions[next] : nullptr;
}

void THistoryList::Save(QSettings& settings) const {
  if (items_.isEmpty()) return;
  settings.beginGroup(GroupPath());
  for (int i = 0; i < items_.size(); ++i) {
    settings.setValue(regKey_ + QString::number(i), items_[i]->data().toString());
  }
  for (int i = static_cast<int>(items_.size()); settings.contains(regKey_ + QString::number(i)); ++i) {
    settings.remove(regKey_ + QString::number(i));
  }
  settings.endGroup();
}

QStringList THistoryList::Items() const {
  QStringList names;
  for (const QAction* item : items_) names.append(item->data().toString());
  return names;
}

}  // namespace mainwin
