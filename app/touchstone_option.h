#pragma once

// The option of the headless modes that reads the files as Touchstone files.
namespace app {

inline constexpr const char* kTouchstoneOption = "--touchstone";

}  // namespace app
