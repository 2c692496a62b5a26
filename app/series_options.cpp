#include "series_options.h"

#include "numerics/prefixed_number.h"
#include "touchstone_option.h"

namespace app {
namespace {

using series::SeriesSettings;
using series::XAxisChoice;

struct FlagOption {
  const char* name;
  bool SeriesSettings::*flag;
};

constexpr FlagOption kFlags[] = {
    {"--with-lgnd", &SeriesSettings::withLgnd},
    {"--fmax-from-u", &SeriesSettings::fmaxFromU},
    {"--density", &SeriesSettings::density},
};

constexpr const char* kValueOptions[] = {"--fo", "--multiplier", "--lgnd", "--x-axis", "--area", "--comment", "--out"};

template <typename T>
struct Choice {
  const char* text;
  T value;
};

constexpr Choice<double> kMultipliers[] = {
    {"Hz", series::kMultiplierHz}, {"MHz", series::kMultiplierMHz}, {"GHz", series::kMultiplierGHz}};
constexpr Choice<XAxisChoice> kXAxes[] = {
    {"ic", XAxisChoice::CurrentIc}, {"id", XAxisChoice::CurrentId}, {"fileno", XAxisChoice::FileNumber}};

template <typename T, std::size_t N>
bool ReadChoice(const Choice<T> (&choices)[N], const std::string& text, T& target) {
  for (const Choice<T>& c : choices) {
    if (text == c.text) {
      target = c.value;
      return true;
    }
  }
  return false;
}

bool ReadNumber(const std::string& name, const std::string& text, double& target, std::string& error) {
  const numerics::ParsedValue parsed = numerics::ParseValueText(text);
  if (parsed.status != numerics::kParseDigitsRead) {
    error = name + " needs a number with an optional unit prefix, such as 2.0G or 100p, not \"" + text + "\".";
    return false;
  }
  target = parsed.value;
  return true;
}

bool ReadArea(const std::string& text, double& area, std::string& error) {
  if (!ReadNumber("--area", text, area, error)) return false;
  if (area > 0) return true;
  error = "--area is the transistor area in square micrometres and must be above 0, not \"" + text + "\".";
  return false;
}

bool ReadValueOption(const std::string& name, const std::string& text, SeriesOptions& o, std::string& error) {
  SeriesSettings& s = o.settings;
  if (name == "--fo") return ReadNumber(name, text, s.fo, error);
  if (name == "--lgnd") return ReadNumber(name, text, s.lgnd, error);
  if (name == "--area") return ReadArea(text, s.area, error);
  if (name == "--comment") s.comment = text;
  if (name == "--out") o.outPath = text;
  if (name == "--multiplier" && !ReadChoice(kMultipliers, text, s.multiplier)) {
    error = "--multiplier takes Hz, MHz or GHz (the unit of the files' frequency column), not \"" + text + "\".";
    return false;
  }
  if (name == "--x-axis" && !ReadChoice(kXAxes, text, s.xAxis)) {
    error = "--x-axis takes ic, id or fileno, not \"" + text + "\".";
    return false;
  }
  return true;
}

bool IsValueOption(const std::string& arg) {
  for (const char* name : kValueOptions) {
    if (arg == name) return true;
  }
  return false;
}

bool SetFlag(const std::string& arg, SeriesSettings& settings) {
  for (const FlagOption& f : kFlags) {
    if (arg == f.name) {
      settings.*(f.flag) = true;
      return true;
    }
  }
  return false;
}

}  // namespace

bool ParseSeriesOptions(const std::vector<std::string>& args, SeriesOptions& options, std::string& error) {
  bool optionsEnded = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (optionsEnded || arg.size() < 2 || arg[0] != '-') {
      options.files.push_back(arg);
    } else if (arg == "--") {
      optionsEnded = true;
    } else if (arg == kTouchstoneOption) {
      // Each file's option line names its frequency unit; --multiplier serves files without one.
      options.settings.reading = numerics::FileReading::Touchstone;
      options.settings.automaticMultiplier = true;
    } else if (arg == "--checks") {
      options.checks = true;
    } else if (IsValueOption(arg)) {
      if (i + 1 == args.size()) {
        error = arg + " needs a value; see netrix --help.";
        return false;
      }
      if (!ReadValueOption(arg, args[++i], options, error)) return false;
    } else if (!SetFlag(arg, options.settings)) {
      error = "unknown option " + arg + "; see netrix --help (put -- before file names that start with -).";
      return false;
    }
  }
  return true;
}

}  // namespace app
