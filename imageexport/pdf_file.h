#pragma once

#include <functional>
#include <string>

#include "export_result.h"

class QPainter;

// A diagram as a vector PDF page: the same drawing routine that paints the bitmap paints a
// page of exactly width x height pixels at 96 pixels per inch.
namespace imageexport {

inline constexpr int kPdfPixelsPerInch = 96;

ExportResult SavePdf(const std::string& path, int width, int height, const std::function<void(QPainter&)>& draw);

}  // namespace imageexport
