#include "graph_inputs.h"

#include <algorithm>

namespace graphwin::plots {

int ShownPoints(const GraphInputs& inputs, const GraphFile& file) {
  const int all = std::max(file.set->pointCount, 0);
  return inputs.displayCount > 0 ? std::min(inputs.displayCount, all) : all;
}

std::string FileName(const GraphFile& file) {
  const std::size_t slash = file.path.find_last_of('/');
  return slash == std::string::npos ? file.path : file.path.substr(slash + 1);
}

}  // namespace graphwin::plots
