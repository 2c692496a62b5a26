#include "read_out.h"

#include <cctype>
#include <cmath>

#include "graph_data.h"
#include "numerics/prefixed_number.h"
#include "numerics/text_functions.h"

namespace diagram::pages {
namespace {

// 0.01518 in "A" reads "15.18 mA": the prefix letter goes behind a blank, micro as µ.
std::string WithUnit(double value, const char* unit) {
  std::string number = numerics::TrimLeftText(numerics::FormatPrefixed(2, value));
  std::string prefix;
  if (!number.empty() && std::isalpha(static_cast<unsigned char>(number.back()))) {
    prefix = number.back() == 'u' ? "µ" : std::string(1, number.back());
    number.pop_back();
  }
  return number + " " + prefix + unit;
}

std::string Fixed(int decimals, double value) { return numerics::FloatTextTrimmed(decimals, value); }

std::string XText(const series::SeriesSettings& s, double x) {
  if (s.xAxis == series::XAxisChoice::FileNumber) return "File Number = " + Fixed(0, std::round(x));
  if (s.density) return "j = " + Fixed(3, x) + " mA/µm²";
  return (s.xAxis == series::XAxisChoice::CurrentIc ? "Ic = " : "Id = ") + WithUnit(x, "A");
}

std::string FtFmaxText(const GraphicChoice& c, double y) {
  const char* name = c.fTOnly ? "fT = " : c.fmaxOnly ? "fmax = " : "fT, fmax = ";
  return name + WithUnit(y, "Hz");
}

// Without a choice the axis holds MAG/MSG in dB and k ten times: both are read out.
std::string KMagText(const GraphicChoice& c, double y) {
  if (c.kOnly) return "k = " + Fixed(3, y);
  const std::string gain = "MAG/MSG = " + Fixed(2, y) + " dB";
  return c.magMsgOnly ? gain : gain + ", k = " + Fixed(3, y / kKScale);
}

}  // namespace

std::string ReadOutText(OutputPage page, const PageScene& scene, double x, double y) {
  const std::string xText = XText(scene.settings, x) + ", ";
  switch (page) {
    case OutputPage::FtFmax: return xText + FtFmaxText(scene.choice, y);
    case OutputPage::KMag: return xText + KMagText(scene.choice, y);
    case OutputPage::StabilityLimit: return xText + "f(k>1) = " + WithUnit(y, "Hz");
  }
  return xText;
}

}  // namespace diagram::pages
