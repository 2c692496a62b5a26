#pragma once

#include <optional>
#include <vector>

// One frequency marked in every open graph window at once: the mouse in any window moves it, and
// each window marks it on its curves over its picture, without drawing the diagram again. The
// windows register themselves; none knows another.
namespace graphwin {

class TGraphForm;

class FrequencyCursor {
 public:
  void Register(TGraphForm& window);
  void Unregister(TGraphForm& window);

  // Marks the frequency in every visible window; nothing is done when it is marked already.
  // A hidden window takes it up when it draws next.
  void MoveTo(double frequency);
  std::optional<double> Frequency() const { return frequency_; }

 private:
  std::vector<TGraphForm*> windows_;
  std::optional<double> frequency_;
};

}  // namespace graphwin
