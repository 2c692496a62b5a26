// The keywords of version 2.0 files that two-port files use.
#include <cmath>

#include "reader_core.h"
#include "text_cursor.h"
#include "text_functions.h"
#include "touchstone_parser.h"
#include "touchstone_tokens.h"

namespace numerics {
namespace {

constexpr const char* kReferenceContent = "[Reference] needs one positive resistance in ohms per port, two in all.";

}  // namespace

void TouchstoneParser::TakeKeyword(std::string_view text) {
  const std::size_t close = text.find(']');
  if (close == std::string_view::npos) Fail("the keyword " + std::string(text) + " lacks its closing \"]\".");
  if (referencesWanted_ > 0) Fail(kReferenceContent);
  CheckRecordComplete();  // a keyword never stands inside a record
  const std::string name = UpperCaseText(text.substr(1, close - 1));
  const std::string_view argument = TokenReader(text.substr(close + 1)).Rest();
  using Take = void (TouchstoneParser::*)(std::string_view);
  static const std::pair<const char*, Take> kKeywords[] = {
      {"VERSION", &TouchstoneParser::TakeVersion},
      {"NUMBER OF PORTS", &TouchstoneParser::TakePorts},
      {"TWO-PORT DATA ORDER", &TouchstoneParser::TakeDataOrder},
      {"NUMBER OF FREQUENCIES", &TouchstoneParser::TakeFrequencyCount},
      {"NUMBER OF NOISE FREQUENCIES", &TouchstoneParser::TakeNoiseCount},
      {"REFERENCE", &TouchstoneParser::TakeReference},
      {"MATRIX FORMAT", &TouchstoneParser::TakeMatrixFormat},
      {"NETWORK DATA", &TouchstoneParser::StartNetworkData},
      {"NOISE DATA", &TouchstoneParser::StartNoiseData},
      {"BEGIN INFORMATION", &TouchstoneParser::StartInformation},
      {"END INFORMATION", &TouchstoneParser::EndInformation},
      {"END", &TouchstoneParser::End},
  };
  for (const auto& [keyword, take] : kKeywords) {
    if (name != keyword) continue;
    if (section_ == Section::Information && take != &TouchstoneParser::EndInformation) return;
    if (version_ == 1 && take != &TouchstoneParser::TakeVersion) {
      Fail("[" + std::string(text.substr(1, close - 1)) + "] needs a line \"[Version] 2.0\" before it.");
    }
    return (this->*take)(argument);
  }
  if (section_ != Section::Information) {
    Fail("[" + std::string(text.substr(1, close - 1)) + "] is not a keyword of a two-port Touchstone file.");
  }
}

void TouchstoneParser::TakeVersion(std::string_view argument) {
  if (!argument.starts_with("2.")) {
    Fail("[Version] " + std::string(argument) +
         " is not read; Touchstone files of version 1 (without [Version]) "
         "and 2.0 are.");
  }
  version_ = 2;
  data_.layout.inOhms = data_.layout.parameter != NetworkParameter::S;
}

void TouchstoneParser::TakePorts(std::string_view argument) {
  const int ports = WholeNumber(argument, "[Number of Ports]");
  if (ports != 2) Fail("the file describes " + std::to_string(ports) + " ports; only two-port files can be read.");
}

void TouchstoneParser::TakeDataOrder(std::string_view argument) {
  if (argument != "12_21" && argument != "21_12") {
    Fail("[Two-Port Data Order] takes 12_21 or 21_12, not \"" + std::string(argument) + "\".");
  }
  data_.layout.order12_21 = argument == "12_21";
}

void TouchstoneParser::TakeFrequencyCount(std::string_view argument) {
  announcedFrequencies_ = Announced{WholeNumber(argument, "[Number of Frequencies]"), line_};
}

void TouchstoneParser::TakeNoiseCount(std::string_view argument) {
  announcedNoise_ = Announced{WholeNumber(argument, "[Number of Noise Frequencies]"), line_};
}

// The two resistances may stand on the keyword's line or on the lines that follow it.
void TouchstoneParser::TakeReference(std::string_view argument) {
  referenceKeyword_ = true;
  referencesWanted_ = 2;
  TakeReferenceNumbers(argument);
}

void TouchstoneParser::TakeReferenceNumbers(std::string_view text) {
  TokenReader tokens(text);
  for (std::string_view token = tokens.Next(); !token.empty(); token = tokens.Next()) {
    const std::optional<double> ohms = ParseRealToken(token);
    if (referencesWanted_ == 0 || !ohms || !(*ohms > 0)) Fail(kReferenceContent);
    (referencesWanted_ == 2 ? data_.layout.references.r1 : data_.layout.references.r2) = *ohms;
    --referencesWanted_;
  }
}

void TouchstoneParser::TakeMatrixFormat(std::string_view argument) {
  if (UpperCaseText(argument) != "FULL") {
    Fail("[Matrix Format] " + std::string(argument) + " is not read; two-port files are read as Full matrices.");
  }
}

void TouchstoneParser::StartNetworkData(std::string_view) {
  EndSection();
  section_ = Section::NetworkData;
}

void TouchstoneParser::StartNoiseData(std::string_view) {
  EndSection();
  section_ = Section::NoiseData;
}

void TouchstoneParser::StartInformation(std::string_view) { section_ = Section::Information; }

void TouchstoneParser::EndInformation(std::string_view) {
  if (section_ == Section::Information) section_ = Section::Header;
}

void TouchstoneParser::End(std::string_view) {
  EndSection();
  section_ = Section::Ended;
}

int TouchstoneParser::WholeNumber(std::string_view argument, const char* keyword) const {
  const std::optional<double> value = ParseRealToken(TokenReader(argument).Next());
  if (!value || *value < 0 || *value > 1e9 || std::floor(*value) != *value) {
    Fail(std::string(keyword) + " needs a whole number, not \"" + std::string(argument) + "\".");
  }
  return static_cast<int>(*value);
}

}  // namespace numerics
