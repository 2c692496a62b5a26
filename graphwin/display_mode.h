#pragma once

// What a diagram button of the frequency page asks the graph windows to show.
namespace graphwin {

enum class DiagramWindow { Reflection, Transmission, Gain, Stability, Impedance };
inline constexpr int kDiagramWindowCount = 5;

enum class DisplayMode {
  InputReflection,
  OutputReflection,
  BothReflections,
  ForwardTransmission,
  ReverseTransmission,
  BothTransmissions,
  Gain,
  Stability,
  Impedance,
};

}  // namespace graphwin
