#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "touchstone_options.h"
#include "touchstone_reader.h"

// The state of one Touchstone read, line by line: the reader's lines and records, and the
// keywords of version 2.0 files.
namespace numerics {

class TouchstoneParser {
 public:
  explicit TouchstoneParser(const std::string& fileName) : fileName_(fileName) {}
  TouchstoneData Read(std::string_view content);

 private:
  static constexpr std::size_t kNetworkRecordSize = 9;
  static constexpr std::size_t kNoiseRecordSize = 5;

  enum class Section { Header, NetworkData, NoiseData, Information, Ended };

  // The record being read; a record may wrap over several lines.
  struct Record {
    double frequency = 0;
    std::size_t count = 0;  // numbers read so far
    std::size_t start = 0;  // position of the frequency in the content
    int firstLine = 0;
  };

  // A count announced by a keyword, and the line that announced it.
  struct Announced {
    int count = 0;
    int line = 0;
  };

  void TakeLine(std::string_view line);
  void TakeOptionLine(std::string_view tokens);
  void TakeNumbers(std::string_view text);
  void TakeNumber(std::string_view token);
  void FinishNetworkRecord();
  void EndSection();
  void CheckRecordComplete() const;
  void CheckAnnounced(const std::optional<Announced>& announced, std::size_t found, const char* keyword) const;
  [[noreturn]] void Fail(const std::string& what) const;
  [[noreturn]] void FailAt(int line, const std::string& what) const;

  // Keywords of version 2.0 files (touchstone_keywords.cpp).
  void TakeKeyword(std::string_view text);
  void TakeVersion(std::string_view argument);
  void TakePorts(std::string_view argument);
  void TakeDataOrder(std::string_view argument);
  void TakeFrequencyCount(std::string_view argument);
  void TakeNoiseCount(std::string_view argument);
  void TakeReference(std::string_view argument);
  void TakeReferenceNumbers(std::string_view text);
  void TakeMatrixFormat(std::string_view argument);
  void StartNetworkData(std::string_view argument);
  void StartNoiseData(std::string_view argument);
  void StartInformation(std::string_view argument);
  void EndInformation(std::string_view argument);
  void End(std::string_view argument);
  int WholeNumber(std::string_view argument, const char* keyword) const;

  const std::string& fileName_;
  int line_ = 0;
  int version_ = 1;
  Section section_ = Section::Header;
  bool referenceKeyword_ = false;  // [Reference] set the port references
  int referencesWanted_ = 0;       // [Reference] resistances still to come
  std::optional<Announced> announcedFrequencies_;
  std::optional<Announced> announcedNoise_;
  Record record_;
  TouchstoneData data_;
};

}  // namespace numerics
