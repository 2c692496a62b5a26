#include "figures_command.h"

#include <ostream>

#include "numerics/conversions.h"
#include "numerics/data_set.h"
#include "numerics/figures.h"
#include "numerics/file_reader.h"
#include "numerics/real_functions.h"
#include "numerics/text_functions.h"
#include "touchstone_option.h"

namespace app {
namespace {

constexpr const char* kHeader = "f_Hz,k,mu,mu_prime,stable,MAG_dB,MSG_or_MAG_dB,MUG_dB,U_dB,U_ratio_dB,S21sq_dB,h21_abs";

using numerics::Decibels;

std::string FiguresLine(double frequency, const numerics::SParameters& point) {
  numerics::TwoPortState& st = numerics::WorkingState();
  numerics::CopyPointToState(point, st);
  numerics::ComputeTwoPortFigures();
  const double s21Squared = numerics::AbsSqr(st.s.m21);
  numerics::ConvertSToY();
  numerics::ConvertYToH();
  const numerics::TwoPortFigures& f = numerics::WorkingFigures();
  const double values[] = {frequency,
                           f.k,
                           f.mu,
                           f.muPrime,
                           f.unconditionallyStable ? 1.0 : 0.0,
                           Decibels(f.mag),
                           Decibels(f.msgOrMag),
                           Decibels(f.mug),
                           Decibels(f.u),
                           Decibels(f.uRatio),
                           Decibels(s21Squared),
                           numerics::Abs(st.h.m21)};
  std::string line;
  for (const double v : values) line += (line.empty() ? "" : ",") + numerics::CsvNumber(v);
  return line;
}

}  // namespace

int RunFiguresCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> files;
  numerics::ReadingChoice choice;
  for (const std::string& arg : args) {
    if (arg == kTouchstoneOption) {
      choice.reading = numerics::FileReading::Touchstone;
    } else {
      files.push_back(arg);
    }
  }
  if (files.size() != 1) {
    err << "netrix --figures needs exactly one file name, for example: netrix --figures amplifier.s2p\n";
    return 1;
  }
  numerics::DataSetStore& store = numerics::DataSets();
  const numerics::LoadOutcome outcome = numerics::LoadTwoPortFile(store, files.front(), choice);
  if (outcome.status != numerics::LoadStatus::Loaded) {
    err << outcome.message << '\n';
    return 1;
  }
  for (const std::string& note : outcome.notes) err << note << '\n';
  const numerics::TwoPortDataSet& set = store.sets[static_cast<std::size_t>(outcome.dataSetNumber - 1)];
  out << kHeader << '\n';
  for (int i = 0; i < set.pointCount; ++i) {
    out << FiguresLine(set.frequency[static_cast<std::size_t>(i)], set.points[static_cast<std::size_t>(i)]) << '\n';
  }
  return out.good() ? 0 : 1;
}

}  // namespace app
