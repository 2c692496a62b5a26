#include "network_conversion.h"

#include <cmath>

namespace numerics {
namespace {

using C = ExtendedComplex;

NetworkMatrix Inverse(const NetworkMatrix& x) {
  const C d = x.m11 * x.m22 - x.m12 * x.m21;
  return {x.m22 / d, -x.m12 / d, -x.m21 / d, x.m11 / d};
}

NetworkMatrix Multiply(const NetworkMatrix& x, const NetworkMatrix& y) {
  return {x.m11 * y.m11 + x.m12 * y.m21, x.m11 * y.m12 + x.m12 * y.m22, x.m21 * y.m11 + x.m22 * y.m21,
          x.m21 * y.m12 + x.m22 * y.m22};
}

// x + a I
NetworkMatrix PlusIdentity(const NetworkMatrix& x, Extended a) { return {x.m11 + a, x.m12, x.m21, x.m22 + a}; }

// S = (z - I)(z + I)^-1
NetworkMatrix ScatteringFromZ(const NetworkMatrix& z) {
  return Multiply(PlusIdentity(z, -1), Inverse(PlusIdentity(z, 1)));
}

// The hybrid h relates (i1, v2) to (v1, i2); solved for the waves a = (v + i) / 2, b = (v - i) / 2.
NetworkMatrix ScatteringFromH(const NetworkMatrix& h) {
  const C p = h.m12 * h.m21;
  const C d = (h.m11 + 1.0L) * (h.m22 + 1.0L) - p;
  return {((h.m11 - 1.0L) * (h.m22 + 1.0L) - p) / d, 2.0L * h.m12 / d, -2.0L * h.m21 / d,
          ((h.m11 + 1.0L) * (1.0L - h.m22) + p) / d};
}

// The inverse hybrid g of a network is the hybrid h of the same network with its ports exchanged.
NetworkMatrix ExchangePorts(const NetworkMatrix& x) { return {x.m22, x.m21, x.m12, x.m11}; }

}  // namespace

NetworkMatrix NormaliseParameters(NetworkParameter kind, const NetworkMatrix& v, PortReferences references) {
  const Extended s1 = std::sqrt(Extended{references.r1});
  const Extended s2 = std::sqrt(Extended{references.r2});
  switch (kind) {
    case NetworkParameter::S: return v;
    case NetworkParameter::Z: return {v.m11 / (s1 * s1), v.m12 / (s1 * s2), v.m21 / (s1 * s2), v.m22 / (s2 * s2)};
    case NetworkParameter::Y: return {v.m11 * (s1 * s1), v.m12 * (s1 * s2), v.m21 * (s1 * s2), v.m22 * (s2 * s2)};
    case NetworkParameter::H: return {v.m11 / (s1 * s1), v.m12 * s2 / s1, v.m21 * s2 / s1, v.m22 * (s2 * s2)};
    case NetworkParameter::G: return {v.m11 * (s1 * s1), v.m12 * s1 / s2, v.m21 * s1 / s2, v.m22 / (s2 * s2)};
  }
  return v;
}

NetworkMatrix ScatteringFromNormalised(NetworkParameter kind, const NetworkMatrix& n) {
  switch (kind) {
    case NetworkParameter::S: return n;
    case NetworkParameter::Z: return ScatteringFromZ(n);
    case NetworkParameter::Y: {  // S = (I - y)(I + y)^-1, the negative of the same form in z
      const NetworkMatrix s = ScatteringFromZ(n);
      return {-s.m11, -s.m12, -s.m21, -s.m22};
    }
    case NetworkParameter::H: return ScatteringFromH(n);
    case NetworkParameter::G: return ExchangePorts(ScatteringFromH(ExchangePorts(n)));
  }
  return n;
}

// With the same voltages and currents, the waves at reference r' follow from those at r:
// a' = p a + q b and b' = q a + p b, p = (r + r') / (2 sqrt(r r')), q = (r - r') / (2 sqrt(r r')).
// So S' = (Q + P S)(P + Q S)^-1.
NetworkMatrix RenormaliseScattering(const NetworkMatrix& s, PortReferences references, double z0) {
  const auto pq = [z0](double r) {
    const Extended root = 2 * std::sqrt(Extended{r} * z0);
    return std::pair<Extended, Extended>{(r + Extended{z0}) / root, (r - Extended{z0}) / root};
  };
  const auto [p1, q1] = pq(references.r1);
  const auto [p2, q2] = pq(references.r2);
  const NetworkMatrix numerator{q1 + p1 * s.m11, p1 * s.m12, p2 * s.m21, q2 + p2 * s.m22};
  const NetworkMatrix denominator{p1 + q1 * s.m11, q1 * s.m12, q2 * s.m21, p2 + q2 * s.m22};
  return Multiply(numerator, Inverse(denominator));
}

}  // namespace numerics
