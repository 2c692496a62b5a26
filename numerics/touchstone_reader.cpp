#include "touchstone_reader.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

#include "reader_core.h"
#include "text_cursor.h"
#include "touchstone_parser.h"
#include "touchstone_tokens.h"

namespace numerics {
namespace {

constexpr const char* kNetworkRecordContent =
    "A two-port record holds a frequency and eight numbers: the four parameters as pairs in the format of the "
    "option line (MA, DB or RI).";
constexpr const char* kNoiseRecordContent =
    "A noise record holds a frequency and four numbers: the minimum noise figure in dB, the magnitude and angle of "
    "the optimum source reflection, and the noise resistance.";

bool OnlySeparators(std::string_view text) {
  for (const char c : text) {
    if (!IsTokenSeparator(c)) return false;
  }
  return true;
}

std::string FrequencyText(double f) {
  char text[32];
  std::snprintf(text, sizeof text, "%.10g", f);
  return text;
}

// The port count an ".sNp" name states; 2 for any other name.
int PortsByExtension(const std::string& fileName) {
  const std::size_t dot = fileName.find_last_of('.');
  if (dot == std::string::npos || fileName.size() - dot < 4) return 2;
  const std::string_view ext = std::string_view(fileName).substr(dot + 1);
  if (std::tolower(static_cast<unsigned char>(ext.front())) != 's' ||
      std::tolower(static_cast<unsigned char>(ext.back())) != 'p') {
    return 2;
  }
  int ports = 0;
  for (const char c : ext.substr(1, ext.size() - 2)) {
    if (!std::isdigit(static_cast<unsigned char>(c)) || ports > 1000) return 2;
    ports = ports * 10 + (c - '0');
  }
  return ports;
}

}  // namespace

TouchstoneData TouchstoneParser::Read(std::string_view content) {
  if (const int ports = PortsByExtension(fileName_); ports != 2) {
    throw ReadFailure{"File " + fileName_ + " is a Touchstone file of " + std::to_string(ports) +
                      " ports; only two-port files (.s2p) can be read."};
  }
  // A record takes a line or more: room for one per line spares the copies of growing vectors.
  const auto lines = static_cast<std::size_t>(std::count(content.begin(), content.end(), '\n')) + 1;
  data_.frequency.reserve(lines);
  data_.recordStart.reserve(lines);
  data_.content = content;
  for (std::size_t start = 0; start < content.size();) {
    const std::size_t end = std::min(content.find('\n', start), content.size());
    std::string_view line = content.substr(start, end - start);
    if (line.ends_with('\r')) line.remove_suffix(1);
    start = end + 1;
    if (++line_ == 1) data_.title = line;
    TakeLine(line);
  }
  EndSection();
  if (referencesWanted_ > 0) Fail("[Reference] needs one positive resistance in ohms per port, two in all.");
  if (data_.recordStart.empty()) {
    throw ReadFailure{"File " + fileName_ +
                      " holds no network data. A Touchstone file needs lines of a frequency and eight numbers "
                      "after its \"#\" option line."};
  }
  return std::move(data_);
}

void TouchstoneParser::TakeLine(std::string_view line) {
  const std::size_t bang = line.find('!');
  std::string_view body = line.substr(0, bang);
  if (bang != std::string_view::npos && OnlySeparators(body)) data_.comments.emplace_back(line.substr(bang + 1));
  body = TokenReader(body).Rest();
  if (body.empty() || section_ == Section::Ended) return;
  if (body.front() == '[') return TakeKeyword(body);
  if (section_ == Section::Information) return;
  if (body.front() == '#') return TakeOptionLine(body.substr(1));
  if (referencesWanted_ > 0) return TakeReferenceNumbers(body);
  TakeNumbers(body);
}

// Only the first option line counts; the format asks readers to pass over any later one.
void TouchstoneParser::TakeOptionLine(std::string_view tokens) {
  if (data_.hasOptionLine) return;
  TouchstoneOptions options;
  if (const std::optional<std::string> wrong = ReadOptionTokens(tokens, options)) Fail(*wrong);
  data_.hasOptionLine = true;
  data_.frequencyUnit = options.frequencyUnit;
  TouchstoneLayout& layout = data_.layout;
  layout.format = options.format;
  layout.parameter = options.parameter;
  layout.inOhms = version_ >= 2 && options.parameter != NetworkParameter::S;
  if (!referenceKeyword_) layout.references = {options.resistance, options.resistance};
}

void TouchstoneParser::TakeNumbers(std::string_view text) {
  if (section_ == Section::Header) {
    if (version_ >= 2) Fail("numbers stand before [Network Data]; a version 2.0 file announces its data with it.");
    section_ = Section::NetworkData;
  }
  TokenReader tokens(text);
  for (std::string_view token = tokens.Next(); !token.empty(); token = tokens.Next()) TakeNumber(token);
}

// Only a record's frequency is converted here; the other numbers are checked, and converted
// when the record is asked for. In a version 1 file the noise block starts with a frequency
// that does not rise.
void TouchstoneParser::TakeNumber(std::string_view token) {
  const std::optional<double> frequency = record_.count == 0 ? ParseRealToken(token) : std::nullopt;
  if (record_.count == 0 ? !frequency : !IsRealToken(token)) {
    Fail(NotANumber(token, section_ == Section::NoiseData ? kNoiseRecordContent : kNetworkRecordContent));
  }
  if (record_.count == 0) {
    record_ = {*frequency, 0, static_cast<std::size_t>(token.data() - data_.content.data()), line_};
    const bool falls = !data_.frequency.empty() && !(*frequency > data_.frequency.back());
    if (section_ == Section::NetworkData && version_ == 1 && falls) section_ = Section::NoiseData;
  }
  ++record_.count;
  if (section_ == Section::NoiseData && record_.count == kNoiseRecordSize) {
    ++data_.noisePoints;
    record_.count = 0;
  } else if (record_.count == kNetworkRecordSize) {
    FinishNetworkRecord();
    record_.count = 0;
  }
}

void TouchstoneParser::FinishNetworkRecord() {
  if (!data_.frequency.empty() && !(record_.frequency > data_.frequency.back())) {
    FailAt(record_.firstLine, "the frequency " + FrequencyText(record_.frequency) +
                                  " does not lie above the one before it; the network data must rise in frequency.");
  }
  data_.frequency.push_back(record_.frequency);
  data_.recordStart.push_back(record_.start);
}

void TouchstoneParser::CheckRecordComplete() const {
  if (record_.count == 0) return;
  const std::size_t size = section_ == Section::NoiseData ? kNoiseRecordSize : kNetworkRecordSize;
  FailAt(record_.firstLine, "the record that starts on this line holds only " + std::to_string(record_.count) +
                                " of its " + std::to_string(size) + " numbers.");
}

void TouchstoneParser::EndSection() {
  CheckRecordComplete();
  if (section_ == Section::NetworkData) {
    CheckAnnounced(announcedFrequencies_, data_.recordStart.size(), "[Number of Frequencies]");
  }
  if (section_ == Section::NoiseData) {
    CheckAnnounced(announcedNoise_, static_cast<std::size_t>(data_.noisePoints), "[Number of Noise Frequencies]");
  }
}

void TouchstoneParser::CheckAnnounced(const std::optional<Announced>& announced, std::size_t found,
                                      const char* keyword) const {
  if (!announced || static_cast<std::size_t>(announced->count) == found) return;
  FailAt(announced->line, std::string(keyword) + " announces " + std::to_string(announced->count) +
                              " frequencies, but the file holds " + std::to_string(found) + ".");
}

void TouchstoneParser::Fail(const std::string& what) const { FailAt(line_, what); }

void TouchstoneParser::FailAt(int line, const std::string& what) const { FailAtLine(fileName_, line, what); }

TouchstoneData ReadTouchstone(std::string_view content, const std::string& fileName) {
  return TouchstoneParser(fileName).Read(content);
}

}  // namespace numerics
