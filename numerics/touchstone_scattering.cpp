// The records of a Touchstone file as S-parameters: each pair of numbers is magnitude and angle
// in degrees (MA), magnitude in dB and angle (DB), or real and imaginary part (RI).
#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>
#include <optional>

#include "reader_core.h"
#include "real_functions.h"
#include "text_cursor.h"
#include "touchstone_reader.h"
#include "touchstone_tokens.h"

namespace numerics {
namespace {

double LinearMagnitude(NumberFormat format, double x) {
  return format == NumberFormat::Decibels ? std::pow(10.0, x / 20) : x;
}

ComplexValue PolarOf(const ExtendedComplex& z) {
  return MakePolar(static_cast<double>(std::abs(z)), static_cast<double>(std::arg(z) * kDegreesPerRadian));
}

// MA and DB angles stay as written.
ComplexValue PolarPair(NumberFormat format, double x, double y) {
  if (format == NumberFormat::RealImaginary) return PolarOf({x, y});
  return MakePolar(LinearMagnitude(format, x), y);
}

ExtendedComplex ComplexPair(NumberFormat format, double x, double y) {
  if (format == NumberFormat::RealImaginary) return {x, y};
  const double magnitude = LinearMagnitude(format, x);
  const SineCosine sc = SinCosDeg(y);
  return {Extended{magnitude} * sc.cosine, Extended{magnitude} * sc.sine};
}

std::size_t SkipToLineEnd(std::string_view content, std::size_t pos) {
  const std::size_t end = content.find('\n', pos);
  return end == std::string_view::npos ? content.size() : end;
}

// The eight numbers behind the frequency at start, read again the way the reader checked them:
// across line breaks, past "!" comments and past option lines.
std::array<double, 8> RecordNumbers(std::string_view content, std::size_t start) {
  std::array<double, 8> numbers{};
  std::size_t pos = start;
  bool lineStart = false;
  for (int n = -1; n < 8;) {  // n = -1: the frequency
    assert(pos < content.size());
    const char c = content[pos];
    if (c == '\n') {
      lineStart = true;
      ++pos;
    } else if (IsTokenSeparator(c)) {
      ++pos;
    } else if (c == '!' || (c == '#' && lineStart)) {
      pos = SkipToLineEnd(content, pos);
    } else {
      std::size_t end = pos;
      while (end < content.size() && !IsTokenSeparator(content[end]) && content[end] != '\n' && content[end] != '!')
        ++end;
      if (n >= 0) {
        const std::optional<double> value = ParseRealToken(content.substr(pos, end - pos));
        assert(value);
        numbers[static_cast<std::size_t>(n)] = *value;
      }
      ++n;
      pos = end;
      lineStart = false;
    }
  }
  return numbers;
}

int LineOf(std::string_view content, std::size_t pos) {
  return 1 + static_cast<int>(std::count(content.begin(), content.begin() + static_cast<std::ptrdiff_t>(pos), '\n'));
}

bool AtReference(const PortReferences& references, double z0) { return references.r1 == z0 && references.r2 == z0; }

// Values in ohms are normalised to z0 directly; normalised ones become S at their references,
// which is then renormalised.
NetworkMatrix ScatteringAtZ0(const TouchstoneLayout& layout, const NetworkMatrix& values, double z0) {
  const NetworkParameter kind = layout.parameter;
  if (layout.inOhms) return ScatteringFromNormalised(kind, NormaliseParameters(kind, values, {z0, z0}));
  const NetworkMatrix s = ScatteringFromNormalised(kind, values);
  return AtReference(layout.references, z0) ? s : RenormaliseScattering(s, layout.references, z0);
}

bool IsFinite(const SParameters& point) {
  for (const auto& row : point.s) {
    for (const ComplexValue& z : row) {
      if (!std::isfinite(z.first) || !std::isfinite(z.second)) return false;
    }
  }
  return true;
}

}  // namespace

SParameters TouchstoneScattering(const TouchstoneData& data, std::size_t i, double z0, const std::string& fileName) {
  const TouchstoneLayout& layout = data.layout;
  const std::array<double, 8> numbers = RecordNumbers(data.content, data.recordStart[i]);
  const double* v = numbers.data();
  // File order N11, N21, N12, N22, or N11, N12, N21, N22 for the data order 12_21.
  const int n21 = layout.order12_21 ? 4 : 2;
  const int n12 = layout.order12_21 ? 2 : 4;
  const NumberFormat f = layout.format;
  SParameters point;
  if (layout.parameter == NetworkParameter::S && AtReference(layout.references, z0)) {
    point.s[0][0] = PolarPair(f, v[0], v[1]);
    point.s[1][0] = PolarPair(f, v[n21], v[n21 + 1]);
    point.s[0][1] = PolarPair(f, v[n12], v[n12 + 1]);
    point.s[1][1] = PolarPair(f, v[6], v[7]);
  } else {
    const NetworkMatrix s = ScatteringAtZ0(layout,
                                           {ComplexPair(f, v[0], v[1]), ComplexPair(f, v[n12], v[n12 + 1]),
                                            ComplexPair(f, v[n21], v[n21 + 1]), ComplexPair(f, v[6], v[7])},
                                           z0);
    point.s[0][0] = PolarOf(s.m11);
    point.s[0][1] = PolarOf(s.m12);
    point.s[1][0] = PolarOf(s.m21);
    point.s[1][1] = PolarOf(s.m22);
  }
  if (!IsFinite(point)) {
    FailAtLine(fileName, LineOf(data.content, data.recordStart[i]),
               "this record gives no finite S-parameters; check its numbers against the option line's parameter "
               "and format.");
  }
  return point;
}

}  // namespace numerics
