#include "render_options.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <string_view>

#include "numerics/prefixed_number.h"
#include "graphwin/plots/q_table.h"
#include "named_table.h"
#include "touchstone_option.h"

namespace app {
namespace {

using graphwin::plots::SView;

std::string ParseChart(const std::string& text, RenderOptions& o) {
  if (text == "z") o.chart = diagram::ChartKind::Impedance;
  else if (text == "y") o.chart = diagram::ChartKind::Admittance;
  else if (text == "zy") o.chart = diagram::ChartKind::Combined;
  else return "--chart takes z, y or zy, not \"" + text + "\"";
  return {};
}

std::string ParseQ(const std::string& text, RenderOptions& o) {
  const numerics::ParsedValue q = numerics::ParseValueText(text);
  if (q.status != numerics::kParseDigitsRead) return "--q needs a number such as 2 or 0.5, not \"" + text + "\"";
  if (o.qValues.size() == kMaxQArcs) return "at most six --q arcs can be drawn";
  o.qValues.push_back(graphwin::plots::LimitedQ(q.value));  // as the constant-Q dialog takes it
  return {};
}

std::string ParseSParameterMode(const std::string& text, RenderOptions& o) {
  struct ModeName {
    const char* name;
    SView view;
  };
  static constexpr ModeName kModes[] = {{"smith", SView::Smith},         {"polar", SView::Polar},
                                        {"cartesian", SView::Cartesian}, {"mag", SView::Magnitude},
                                        {"db", SView::Decibels},         {"phase", SView::Phase}};
  const ModeName* mode = FindByName(kModes, text);
  if (mode == nullptr) return "--mode takes " + NameList(kModes, " or ") + ", not \"" + text + "\"";
  o.mode = mode->view;
  return {};
}

// A number with a unit prefix, such as 2.4G.
std::string ParseNumber(const std::string& name, const std::string& text, double& value) {
  const numerics::ParsedValue parsed = numerics::ParseValueText(text);
  if (parsed.status != numerics::kParseDigitsRead) return name + " needs a number such as 2.4G or 10, not \"" + text + "\"";
  value = parsed.value;
  return {};
}

template <typename Choice>
struct CurveName {
  const char* name;
  bool Choice::*box;
};

using graphwin::plots::GainChoice;
using graphwin::plots::ImpedanceChoice;
using graphwin::plots::StabilityChoice;

constexpr CurveName<GainChoice> kGainCurves[] = {
    {"mag", &GainChoice::mag}, {"u", &GainChoice::mason}, {"mug", &GainChoice::mug}, {"s21", &GainChoice::s21}};
constexpr CurveName<StabilityChoice> kStabilityCurves[] = {
    {"k", &StabilityChoice::k}, {"u", &StabilityChoice::u}, {"mu", &StabilityChoice::mu}};
constexpr CurveName<ImpedanceChoice> kImpedanceCurves[] = {{"port1", &ImpedanceChoice::port1},
                                                           {"port2", &ImpedanceChoice::port2},
                                                           {"pi", &ImpedanceChoice::cross},
                                                           {"image", &ImpedanceChoice::image},
                                                           {"sym", &ImpedanceChoice::sym}};

// The named curves only; an unknown name is the error.
template <typename Choice, std::size_t N>
std::string ParseNames(const std::string& text, const CurveName<Choice> (&names)[N], Choice& choice) {
  Choice chosen{};
  for (const CurveName<Choice>& name : names) chosen.*name.box = false;
  std::size_t start = 0;
  do {
    const std::size_t comma = text.find(',', start);
    const std::string word = text.substr(start, comma == std::string::npos ? std::string::npos : comma - start);
    const CurveName<Choice>* found = FindByName(names, word);
    if (found == nullptr) {
      return "--curves takes " + NameList(names, " and ") + " joined by commas, not \"" + text + "\"";
    }
    chosen.*found->box = true;
    start = comma == std::string::npos ? comma : comma + 1;
  } while (start != std::string::npos);
  choice = chosen;
  return {};
}

std::string ParseCurves(const std::string& text, RenderOptions& o) {
  if (o.view == kGainView) return ParseNames(text, kGainCurves, o.gainCurves);
  if (o.view == kStabilityView) return ParseNames(text, kStabilityCurves, o.stabilityCurves);
  if (o.view == kImpedanceView) return ParseNames(text, kImpedanceCurves, o.impedanceCurves);
  return {};  // the view is refused once the command line is read
}

std::string ParseImpedanceMode(const std::string& text, RenderOptions& o) {
  using graphwin::plots::ImpedanceMode;
  if (text == "mag") o.impedanceMode = ImpedanceMode::Magnitude;
  else if (text == "re") o.impedanceMode = ImpedanceMode::Real;
  else if (text == "q") o.impedanceMode = ImpedanceMode::Q;
  else return "--mode takes mag, re or q in the impedance view, not \"" + text + "\"";
  return {};
}

// The view comes first, so its modes are known here.
std::string ParseMode(const std::string& text, RenderOptions& o) {
  if (o.view == kImpedanceView) return ParseImpedanceMode(text, o);
  if (o.view == kReflectionView || o.view == kTransmissionView) return ParseSParameterMode(text, o);
  return "--mode belongs to the reflection, transmission and impedance views";
}

// Handles the option at args[i] (and its value); returns an error text or "".
std::string ParseOption(const std::vector<std::string>& args, std::size_t& i, RenderOptions& o) {
  const std::string& name = args[i];
  if (name == "--no-spline") {
    o.spline = false;
    return {};
  }
  const bool frequencyOption = name == "--curves" || name == "--xlog";
  o.frequencyOptionsGiven = o.frequencyOptionsGiven || frequencyOption;
  if (name == "--xlog") {
    o.xlog = true;
    return {};
  }
  if (name == kTouchstoneOption) {
    o.touchstone = true;
    return {};
  }
  constexpr std::string_view kValued[] = {"--out",  "--size",    "--chart",   "--q",       "--curves",
                                          "--data", "--mode",    "--param",   "--circles", "--s12-zoom"};
  if (std::find(std::begin(kValued), std::end(kValued), name) == std::end(kValued)) {
    return "unknown option \"" + name + "\"";
  }
  if (i + 1 >= args.size()) return name + " needs a value";
  const std::string& value = args[++i];
  if (name == "--out") o.outPath = value;
  if (name == "--size") return ParseSize(value, o.width, o.height);
  if (name == "--chart") return ParseChart(value, o);
  if (name == "--q") return ParseQ(value, o);
  if (name == "--curves") return ParseCurves(value, o);
  if (name == "--data") o.dataPath = value;
  if (name == "--mode") return ParseMode(value, o);
  if (name == "--param") o.parameters = value;
  if (name == "--circles") return ParseNumber(name, value, o.circlesFrequency.emplace());
  if (name == "--s12-zoom") return ParseNumber(name, value, o.s12Zoom);
  return {};
}

// The options of the reflection and transmission views, against the view they were given for.
std::string CheckSParameterOptions(const RenderOptions& o) {
  const bool reflection = o.view == kReflectionView || o.view == "smith";
  const bool transmission = o.view == kTransmissionView || o.view == "polar";
  if (o.parameters != "both" && o.view != kReflectionView && o.view != kTransmissionView) {
    return "--param belongs to the reflection and transmission views";
  }
  if (o.view == kTransmissionView && o.mode == SView::Smith) return "the transmission view has no Smith chart";
  const bool known = o.parameters == "both" || (o.view == kReflectionView ? o.parameters == "s11" || o.parameters == "s22"
                                                                           : o.parameters == "s21" || o.parameters == "s12");
  if (!known) return "--param takes s11, s22 or both in the reflection view and s21, s12 or both in the transmission view";
  if ((o.circlesFrequency || o.chart != diagram::ChartKind::Impedance || !o.qValues.empty()) && !reflection) {
    return "--chart, --q and --circles belong to the reflection view";
  }
  if (o.s12Zoom != 1 && !transmission) return "--s12-zoom belongs to the transmission view";
  return {};
}

std::string CheckComplete(const RenderOptions& o) {
  if (o.outPath.empty()) return "--out PATH is missing, for example --out smith.png";
  if (o.files.empty()) return "name one to four S-parameter files to draw";
  if (o.files.size() > kMaxRenderFiles) return "no more than 4 files can be drawn at once";
  const bool frequencyView = o.view == kGainView || o.view == kStabilityView || o.view == kImpedanceView;
  if (o.frequencyOptionsGiven && !frequencyView) {
    return "--curves and --xlog belong to the gain, stability and impedance views";
  }
  return CheckSParameterOptions(o);
}

}  // namespace

std::string ParseSize(const std::string& text, int& width, int& height) {
  int w = 0, h = 0;
  char extra = 0;
  const bool twoNumbers = std::sscanf(text.c_str(), "%dx%d%c", &w, &h, &extra) == 2;
  const auto inRange = [](int v) { return v >= kMinRenderSide && v <= kMaxRenderSide; };
  if (!twoNumbers || !inRange(w) || !inRange(h)) {
    return "--size needs WIDTHxHEIGHT with sides from 64 to 10000 pixels, for example --size 1024x768";
  }
  width = w;
  height = h;
  return {};
}

ParsedRenderOptions ParseRenderOptions(const std::vector<std::string>& args) {
  ParsedRenderOptions parsed;
  RenderOptions& o = parsed.options;
  if (args.empty() || args.front().starts_with("--")) {
    parsed.error = "the view comes first, for example: netrix --render smith --out smith.png FILE";
    return parsed;
  }
  o.view = args.front();
  for (std::size_t i = 1; i < args.size() && parsed.error.empty(); ++i) {
    if (std::string_view(args[i]).starts_with("--")) {
      parsed.error = ParseOption(args, i, o);
    } else {
      o.files.push_back(args[i]);
    }
  }
  if (parsed.error.empty()) parsed.error = CheckComplete(o);
  return parsed;
}

}  // namespace app
