#include "data_set.h"

namespace numerics {

DataSetStore& DataSets() {
  static DataSetStore store;
  return store;
}

void CopyPointToState(const SParameters& point, TwoPortState& st) {
  st.s.m11 = point.s[0][0];
  st.s.m12 = point.s[0][1];
  st.s.m21 = point.s[1][0];
  st.s.m22 = point.s[1][1];
}

}  // namespace numerics
