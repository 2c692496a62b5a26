// Writes the example data of the project: examples/amplifier.s2p and the bias series
// examples/series/*.s2p, from the transistor model of transistor_model.h. Its closed-form
// transit frequency gives for the twelve currents of the series:
//   Ic/mA    0.5    1      2      3       5       7.5     10      15      20      25      30      40
//   fT/GHz   3.498  6.094  9.680  12.018  14.785  16.441  17.067  16.731  15.368  13.647  11.907  8.906
// |h21| * f at 2 GHz lies within 0.6 % of these values: the low-frequency current gain (beta 120)
// and the output resistance pull it slightly away from the closed form.
// The series files name fT in a comment line as well.
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "transistor_model.h"

namespace {

using tools::Circuit;
using tools::DataLine;
using tools::ScatteringAt;

void WriteFile(const std::filesystem::path& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary);
  out << text;
  if (!out) {
    std::cerr << "make_examples: cannot write " << path << "\n";
    std::exit(1);
  }
}

// 200 logarithmically spaced points from 10 MHz to 10 GHz, frequencies in Hz.
void WriteAmplifier(const std::filesystem::path& folder) {
  Circuit amplifier;
  amplifier.ic = 10e-3;
  amplifier.feedbackResistance = 470;
  amplifier.emitterInductance = 0.3e-9;
  std::string text =
      "Single-stage amplifier: bipolar transistor at 10 mA, 470 ohm shunt feedback, 0.3 nH emitter lead; Z0 50 ohm\n";
  const int points = 200;
  for (int i = 0; i < points; ++i) {
    const double f = std::round(10e6 * std::pow(1000.0, i / double(points - 1)) / 1e3) * 1e3;
    char frequency[32];
    std::snprintf(frequency, sizeof frequency, "%.0f", f);
    text += DataLine(frequency, ScatteringAt(amplifier, f));
  }
  WriteFile(folder / "amplifier.s2p", text);
}

std::string CurrentText(double ic) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%gm", ic * 1e3);
  return buffer;
}

// One Touchstone-style file per current, 100 MHz to 20 GHz in 100 MHz steps, frequencies in MHz.
void WriteSeries(const std::filesystem::path& folder) {
  const double currents[] = {0.5e-3, 1e-3, 2e-3, 3e-3, 5e-3, 7.5e-3, 10e-3, 15e-3, 20e-3, 25e-3, 30e-3, 40e-3};
  std::filesystem::create_directories(folder);
  int index = 1;
  for (const double ic : currents) {
    Circuit device;
    device.ic = ic;
    char name[64], header[160];
    std::snprintf(name, sizeof name, "bjt_%02d_%sA.s2p", index++, CurrentText(ic).c_str());
    std::snprintf(header, sizeof header,
                  "! Bipolar transistor, common emitter, VCE 3 V\n! closed-form fT of the model: %.3f GHz\n",
                  tools::ClosedFormFt(device.device, ic) / 1e9);
    std::string text = std::string(header) + "! Ic=" + CurrentText(ic) + "\n# MHz S MA R 50\n";
    for (int mhz = 100; mhz <= 20000; mhz += 100) text += DataLine(std::to_string(mhz), ScatteringAt(device, mhz * 1e6));
    WriteFile(folder / name, text);
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  const std::filesystem::path folder = argc > 1 ? argv[1] : "examples";
  std::filesystem::create_directories(folder);
  WriteAmplifier(folder);
  WriteSeries(folder / "series");
  return 0;
}
