#include "sparameter_readout.h"

#include <algorithm>
#include <cmath>

#include "numerics/complex_value.h"
#include "numerics/guards.h"
#include "numerics/prefixed_number.h"
#include "numerics/real_functions.h"
#include "numerics/text_functions.h"

namespace graphwin::plots {
namespace {

using numerics::FloatTextTrimmed;

constexpr double kUndefinedWithin = 0.0001;

std::string Frequency(double x) { return "Position : f=" + numerics::FormatPrefixed(2, x) + "Hz, "; }

std::string Decibels(double magnitude) { return FloatTextTrimmed(2, 20 * numerics::Log10(magnitude)); }

std::string AgainstFrequency(SView view, const std::string& pair, double x, double y) {
  if (view == SView::Magnitude) {
    return Frequency(x) + "|" + pair + "|=" + FloatTextTrimmed(3, y) + " (" + Decibels(y) + "dB)";
  }
  if (view == SView::Decibels) return Frequency(x) + "20log|" + pair + "|=" + FloatTextTrimmed(2, y) + "dB";
  return Frequency(x) + "Phase=" + FloatTextTrimmed(2, y);
}

struct Impedance {
  double resistance, reactance;
};

// What the reflection coefficient x + jy represents at z0: z0 (1 + r) / (1 - r), written out in
// real and imaginary part so that neither turns into a negative zero on the axes.
Impedance ImpedanceOf(double x, double y, double z0) {
  const double divisor = std::max((1 - x) * (1 - x) + y * y, numerics::kQuotientGuard);
  return {z0 * (1 - x * x - y * y) / divisor, z0 * 2 * y / divisor};
}

std::string SmithReadOut(double x, double y, double z0) {
  const numerics::ComplexValue r = numerics::MakeCartesian(x, y);
  const double m = numerics::Abs(r);
  const auto [resistance, reactance] = ImpedanceOf(x, y, z0);
  const std::string vswr = std::fabs(m - 1) <= kUndefinedWithin ? "undef." : FloatTextTrimmed(2, (1 + m) / (1 - m));
  const std::string q =
      std::fabs(resistance) <= kUndefinedWithin ? "undef." : FloatTextTrimmed(2, std::fabs(reactance / resistance));
  return "Phi=" + FloatTextTrimmed(1, numerics::AngleOf(r)) + "°, |r|=" + FloatTextTrimmed(3, m) +
         ", Re=" + FloatTextTrimmed(1, resistance) + "Ohm, Im=" + FloatTextTrimmed(1, reactance) + "Ohm, VSWR=" + vswr +
         ", Q=" + q;
}

std::string ReflectionLocus(double x, double y) {
  const numerics::ComplexValue r = numerics::MakeCartesian(x, y);
  return "Re(r)=" + FloatTextTrimmed(2, x) + ", Im(r)=" + FloatTextTrimmed(2, y) + ", |r|=" +
         FloatTextTrimmed(3, numerics::Abs(r)) + ", Phi=" + FloatTextTrimmed(1, numerics::AngleOf(r)) + "°";
}

std::string TransmissionLocus(SView view, double x, double y) {
  if (view == SView::Cartesian) {
    return "Position : Re(Sij)=" + FloatTextTrimmed(3, x) + ", Im(Sij)=" + FloatTextTrimmed(3, y);
  }
  const numerics::ComplexValue s = numerics::MakeCartesian(x, y);
  const double m = numerics::Abs(s);
  return "Position : |Sij|=" + FloatTextTrimmed(3, m) + " (corresponds to " + Decibels(m) +
         "dB), Phi=" + FloatTextTrimmed(1, numerics::AngleOf(s)) + "°";
}

}  // namespace

std::string SParameterReadOut(SWindow window, SView view, double x, double y, double z0) {
  const bool reflection = window == SWindow::Reflection;
  if (!IsLocus(view)) return AgainstFrequency(view, reflection ? "Sii" : "Sij", x, y);
  if (!reflection) return TransmissionLocus(view, x, y);
  return view == SView::Smith ? SmithReadOut(x, y, z0) : ReflectionLocus(x, y);
}

}  // namespace graphwin::plots
