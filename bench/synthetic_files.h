#pragma once

#include <QStringList>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

// Touchstone files of 253 points, 100 MHz to 12.7 GHz, shaped like a transistor's S-parameters,
// written once into a folder of the temporary directory.
namespace bench {

struct SyntheticSeries {
  std::string folder;    // below the temporary directory
  std::string prefix;    // file names are prefix + number + ".s2p"
  int count = 1;
  double s21Step = 0;    // |S21| grows by this from one file to the next
  double s21Slope = 0;   // and falls by this per point
  bool icLines = false;  // each file names its current, "! Ic=<n>m"
};

inline QStringList WriteSyntheticFiles(const SyntheticSeries& series) {
  const std::filesystem::path folder = std::filesystem::temp_directory_path() / series.folder;
  std::filesystem::create_directories(folder);
  QStringList paths;
  for (int file = 1; file <= series.count; ++file) {
    const std::filesystem::path path = folder / (series.prefix + std::to_string(file) + ".s2p");
    std::ofstream out(path, std::ios::binary);
    if (series.icLines) out << "! Ic=" << file << "m\n";
    out << "# MHz S MA R 50\n";
    for (int i = 0; i < 253; ++i) {
      char line[200];
      std::snprintf(line, sizeof line, "%d %.6f %.4f %.6f %.4f %.6f %.4f %.6f %.4f\n", 100 + i * 50,
                    0.8 - i * 1e-3, -30.0 - i * 0.7, 5.0 + file * series.s21Step - i * series.s21Slope,
                    150.0 - i * 0.5, 0.02 + i * 1e-4, 70.0 - i * 0.2, 0.6 - i * 1e-3, -20.0 - i * 0.3);
      out << line;
    }
    paths.append(QString::fromStdString(path.string()));
  }
  return paths;
}

}  // namespace bench
