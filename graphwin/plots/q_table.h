#pragma once

#include <array>
#include <string_view>
#include <vector>

// The program's table of constant-Q circles for the Smith chart: six slots, 0 marking an empty
// one, the filled slots kept at the front. Plain C++.
namespace graphwin::plots {

inline constexpr double kLowestQ = 0.01;
inline constexpr double kHighestQ = 10000;

// A Q as the table takes it: limited to 0.01 .. 10000.
double LimitedQ(double q);

class ConstantQTable {
 public:
  static constexpr int kSlots = 6;

  // Into the first empty slot, or over the sixth when all are filled; the value is limited.
  void Store(double q);
  // The text as typed, with a unit prefix; text without digits counts as 0.
  void StoreText(std::string_view text);
  // Empties the last filled slot.
  void DeleteLast();
  void Clear() { slots_ = {}; }
  int Count() const;
  // The filled slots, in their order.
  std::vector<double> Values() const;

 private:
  std::array<double, kSlots> slots_{};
};

}  // namespace graphwin::plots
