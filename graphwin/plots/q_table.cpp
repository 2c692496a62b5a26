#include "q_table.h"

#include <algorithm>

#include "numerics/prefixed_number.h"
#include "numerics/real_functions.h"

namespace graphwin::plots {

double LimitedQ(double q) { return numerics::ClampValue(kHighestQ, kLowestQ, q); }

void ConstantQTable::Store(double q) { slots_[static_cast<std::size_t>(std::min(Count(), kSlots - 1))] = LimitedQ(q); }

void ConstantQTable::StoreText(std::string_view text) { Store(numerics::ParseValueText(text).value); }

void ConstantQTable::DeleteLast() {
  if (const int count = Count(); count > 0) slots_[static_cast<std::size_t>(count - 1)] = 0;
}

int ConstantQTable::Count() const {
  int count = 0;
  while (count < kSlots && slots_[static_cast<std::size_t>(count)] != 0) ++count;
  return count;
}

std::vector<double> ConstantQTable::Values() const {
  return {slots_.begin(), slots_.begin() + Count()};
}

}  // namespace graphwin::plots
