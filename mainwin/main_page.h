#pragma once

#include <optional>

#include "diagram/pages/page_scene.h"

// The pages of the main window's notebook, numbered as the tabs show them from the left.
namespace mainwin {

enum class MainPage { Frequency = 1, Input, FtFmax, KMag, StabilityLimit, Table };

// What the output pages say while the series holds fewer than two files.
inline constexpr const char* kTwoFilesNeeded = "Please insert two or more files.";

// The graph pages and the table show results of the series.
inline bool IsOutputPage(MainPage page) { return page >= MainPage::FtFmax; }

// The graph a page shows; none for the entry pages and the table.
inline std::optional<diagram::pages::OutputPage> GraphOfPage(MainPage page) {
  if (page < MainPage::FtFmax || page > MainPage::StabilityLimit) return std::nullopt;
  return static_cast<diagram::pages::OutputPage>(static_cast<int>(page) - static_cast<int>(MainPage::FtFmax));
}

}  // namespace mainwin
