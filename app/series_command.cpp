#include "series_command.h"

#include <ostream>

#include "command_failure.h"
#include "numerics/file_writer.h"
#include "output_safety.h"
#include "series/check_texts.h"
#include "series/series_evaluation.h"
#include "series/series_messages.h"
#include "series/spa_export.h"
#include "series_options.h"

namespace app {
namespace {

bool WriteTable(const std::string& content, const SeriesOptions& options, std::ostream& out, std::ostream& err) {
  if (!options.outPath) {
    out << content;
    return StandardOutputWritten(out, err, kSeriesMode, "the table");
  }
  const numerics::FileWriteOutcome written = numerics::WriteFileAtomically(*options.outPath, content);
  if (!written.Ok()) err << CannotWriteOutput(*options.outPath, written) << '\n';
  return written.Ok();
}

// One line per file; they go to standard output also when the table goes to a file, which stays
// exactly the table.
bool WriteChecks(const series::SeriesList& list, const series::SeriesArrays& arrays, std::ostream& out,
                 std::ostream& err) {
  for (std::size_t i = 0; i < arrays.size(); ++i) out << series::CheckLineText(list.Path(i), arrays[i]) << '\n';
  return StandardOutputWritten(out, err, kSeriesMode, "the checks");
}

}  // namespace

series::SeriesList MakeSeries(const std::vector<std::string>& files, std::ostream& err) {
  series::SeriesList list;
  list.Append(files);
  if (files.size() > list.SeriesCount()) err << list.Append({files[list.SeriesCount()]}).message << '\n';
  return list;
}

int RunSeriesCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  SeriesOptions options;
  std::string error;
  if (!ParseSeriesOptions(args, options, error)) return Fail(err, kSeriesMode, error);
  if (options.outPath) {
    if (const std::string refused = RefuseOutput(*options.outPath, options.files); !refused.empty()) {
      return Fail(err, kSeriesMode, refused);
    }
  }
  const series::SeriesList list = MakeSeries(options.files, err);
  series::SeriesArrays arrays;
  const series::SeriesEvaluation evaluation = series::EvaluateSeries(list, options.settings, arrays);
  for (const std::string& message : evaluation.messages) err << message << '\n';
  if (!evaluation.completed) return 1;
  for (std::size_t i = 0; i < arrays.size(); ++i) {
    const std::string warning = series::NonFiniteWarning(list.Path(i), arrays[i]);
    if (!warning.empty()) err << kSeriesMode << ": " << warning << '\n';
  }
  if (!WriteTable(series::SpaContent(list, arrays, options.settings), options, out, err)) return 1;
  return !options.checks || WriteChecks(list, arrays, out, err) ? 0 : 1;
}

std::string SeriesUsageText() {
  return "  netrix --series [options] FILE...\n"
         "      Evaluate up to 40 files of one transistor as a bias series, in the given order,\n"
         "      and print the .spa table (I, fT, fmax, MAG/MSG, k, f(k>1) per file). Options:\n"
         "      --fo TEXT            analysis frequency with unit prefix (default 2.0G)\n"
         "      --multiplier Hz|MHz|GHz  unit of the files' frequency column (default MHz); with\n"
         "                           --touchstone only for files without an option line\n"
         "      --touchstone         read the files as Touchstone files: option line, comments,\n"
         "                           formats, parameter types, noise block\n"
         "      --lgnd TEXT          ground inductance in H (default 100p)\n"
         "      --with-lgnd          insert the ground inductance into the common lead\n"
         "      --fmax-from-u        fmax from Mason's U instead of MAG/MSG\n"
         "      --x-axis ic|id|fileno  x-axis choice; the current is read only with ic (default)\n"
         "      --area TEXT          transistor area in square micrometres (default 1000)\n"
         "      --density            add the current density j in mA per square micrometre\n"
         "      --comment TEXT       text of the first line, after \"Data derived by lioraira: \"\n"
         "      --out PATH           write the table to PATH (replaced only when complete)\n"
         "      --checks             after the table, one line per file with the slopes of |h21|\n"
         "                           and of the gain at fo in dB per decade, k at fo, where |h21|\n"
         "                           and the gain cross 1, and the flags of doubtful fT and fmax\n";
}

}  // namespace app
