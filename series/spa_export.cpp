#include "spa_export.h"

#include <cassert>

#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"

namespace series {
namespace {

constexpr const char* kCommentIntro = "Data derived by lioraira: ";
constexpr const char* kHeader =
    "                  I/A        fT/Hz        fmax/Hz      MAG/dB       k       f(k>1)";
// "  j/(mA/µm²)" in Windows-1252.
constexpr const char* kDensityHeader = "  j/(mA/\xB5m\xB2)";

std::string Prefixed(double value) { return numerics::FormatPrefixedField(8, 2, value); }

std::string FileLine(const std::string& path, const FileFigures& f, const SeriesSettings& settings) {
  std::string line = path + ' ' + Prefixed(f.current) + ' ' + Prefixed(f.fT) + ' ' + Prefixed(f.fmax) + ' ' +
                     numerics::FloatText(7, 3, f.magDb) + ' ' + numerics::FloatText(7, 4, f.k) + ' ' +
                     Prefixed(f.fk);
  if (settings.density) line += ' ' + Prefixed(CurrentDensity(f, settings.area));
  return line + '\n';
}

}  // namespace

std::string SpaContent(const SeriesList& list, const SeriesArrays& arrays, const SeriesSettings& settings) {
  assert(arrays.size() == list.SeriesCount());
  std::string content = kCommentIntro + settings.comment + '\n' + kHeader;
  if (settings.density) content += kDensityHeader;
  content += '\n';
  for (std::size_t i = 0; i < arrays.size(); ++i) content += FileLine(list.Path(i), arrays[i], settings);
  return content;
}

}  // namespace series
