#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data_set.h"
#include "network_conversion.h"
#include "touchstone_options.h"

// Two-port Touchstone files of version 1.x and 2.0: "!" comments anywhere, the "#" option line,
// the version 2.0 keywords that two-port files use, records that wrap over several lines, and
// the noise block, which is recognised and left out of the network data.
namespace numerics {

// How the records' numbers become S-parameters.
struct TouchstoneLayout {
  NumberFormat format = NumberFormat::MagnitudeAngle;
  NetworkParameter parameter = NetworkParameter::S;
  PortReferences references;  // S, and Y, Z, H, G of version 1 files, are normalised to them
  bool inOhms = false;        // Y, Z, H, G of version 2.0 files are in ohms and siemens
  bool order12_21 = false;    // N12 comes before N21
};

// What a file holds. The records' numbers stay in the content, which the data view: reading a
// long sweep converts only the records asked for.
struct TouchstoneData {
  std::string_view content;              // the file's content; it must outlive the data
  std::string title;                     // the file's first line, verbatim
  std::vector<double> frequency;         // as written, in units of frequencyUnit; strictly rising
  std::vector<std::size_t> recordStart;  // where each record's frequency stands in the content
  TouchstoneLayout layout;
  double frequencyUnit = 1e9;  // Hz per unit of the frequency column
  bool hasOptionLine = false;
  int noisePoints = 0;                // records of the noise block
  std::vector<std::string> comments;  // the text behind "!" of every line that starts with one
};

// Reads a file's whole content; every number is checked. Bad input throws ReadFailure naming the file, the line and
// what was expected; fileName only names the file (and tells an N-port file by its extension).
TouchstoneData ReadTouchstone(std::string_view content, const std::string& fileName);
// The data view the content, so a string about to vanish cannot be read.
TouchstoneData ReadTouchstone(std::string&& content, const std::string& fileName) = delete;

// The S-parameters of record i at the reference impedance z0 (ohms), Polar, in degrees. A record
// that has none throws ReadFailure naming its line.
SParameters TouchstoneScattering(const TouchstoneData& data, std::size_t i, double z0, const std::string& fileName);

}  // namespace numerics
