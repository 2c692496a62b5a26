#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <string>

#include "series/series_arrays.h"
#include "series/series_list.h"
#include "series/series_settings.h"

class QWidget;

namespace mainwin {

class InputPage;

// The bias series of page 2 and its results: files dropped or loaded, the list buttons,
// reordering by selection, the evaluation and the ASCII export. Messages go to window.
class BiasSeries {
 public:
  // readsTouchstone: whether files are read as Touchstone files just now.
  BiasSeries(QWidget& window, InputPage& page, std::function<bool()> readsTouchstone);

  series::SeriesList& List() { return series_; }
  const series::SeriesList& List() const { return series_; }
  std::size_t Count() const { return series_.SeriesCount(); }
  // The results of the last completed evaluation, one per file of the series.
  const series::SeriesArrays& Results() const { return results_; }
  // Files never evaluated show zeros, as a freshly reset result would.
  series::SeriesArrays ShownResults() const;
  // The page's entries with the reading choice of the window.
  series::SeriesSettings OutputSettings() const;
  // The name last chosen for an ASCII export; empty before the first.
  const QString& LastExportFile() const { return lastExportFile_; }

  // A file the frequency page loaded; the page's list shows it the next time it is refreshed.
  void AppendLoaded(const std::string& path) { series_.Append({path}); }
  void AppendFiles(const QStringList& paths);
  void DeleteList();
  void DeleteLast();
  void SelectCell(int row);
  void ShowFiles();
  // False when the evaluation did not complete.
  bool Calculate();
  // comment: takes the comment to the table page and gives its text, once a file is chosen.
  void Export(const std::function<QString()>& comment);

 private:
  void Reordered();

  QWidget& window_;
  InputPage& page_;
  std::function<bool()> readsTouchstone_;
  series::SeriesList series_;
  series::SeriesArrays results_;
  QString lastExportFile_;
};

}  // namespace mainwin
