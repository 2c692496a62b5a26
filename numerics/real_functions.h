#pragma once

#include "extended.h"

// Real helper functions shared by the conversions, the figures and the windows.
namespace numerics {

// Returns a on a tie.
double Max(double a, double b);
double Min(double a, double b);
int Max(int a, int b);
int Min(int a, int b);

// x when lower <= x < upper, upper when x >= upper, lower when x < lower or x is NaN.
double ClampValue(double upper, double lower, double x);

// ln|x| / ln 10, and kLogOfZero for x = 0.
double Log10(double x);

// 10 log10 of a power ratio, with the same guard for 0.
double Decibels(double powerRatio);

// exp(x * ln|base|); 0 for base 0, so a negative base counts as its magnitude.
double Power(double x, double base);

double ArcSinh(double x);

// Trigonometry in degrees; multiples of 90 come out exact (sin 180 is 0, cos 90 is 0).
struct SineCosine {
  double sine;
  double cosine;
};
SineCosine SinCosDeg(double degrees);
double SinDeg(double degrees);
double CosDeg(double degrees);
inline constexpr double kDegreesPerRadian = 57.29577951308232;
Extended ArcTanDeg(Extended t);

int Sign(double x);

}  // namespace numerics
