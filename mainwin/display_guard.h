#pragma once

// Without a display Qt ends the program while the application object is made, with advice to
// reinstall. While a DisplayGuard lives, that end is replaced by a message that names the
// modes which need no display, and exit status 1.
namespace mainwin {

class DisplayGuard {
 public:
  DisplayGuard();
  ~DisplayGuard();
  DisplayGuard(const DisplayGuard&) = delete;
  DisplayGuard& operator=(const DisplayGuard&) = delete;
};

}  // namespace mainwin
