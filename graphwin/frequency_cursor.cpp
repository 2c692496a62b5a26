#include "frequency_cursor.h"

#include <algorithm>
#include <cassert>

#include "graph_form.h"

namespace graphwin {

void FrequencyCursor::Register(TGraphForm& window) {
  assert(std::find(windows_.begin(), windows_.end(), &window) == windows_.end());
  windows_.push_back(&window);
}

void FrequencyCursor::Unregister(TGraphForm& window) { std::erase(windows_, &window); }

void FrequencyCursor::MoveTo(double frequency) {
  if (frequency_ == frequency) return;
  frequency_ = frequency;
  for (TGraphForm* window : windows_) {
    if (window->isVisible()) window->ShowCursor(frequency);
  }
}

}  // namespace graphwin
