#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "series/series_list.h"

namespace series {
namespace {

using Paths = std::vector<std::string>;

// Deleting from an empty list changes nothing; the first row moving up wraps to the bottom.
TEST(SeriesList, DeletesAndMovesRows) {
  SeriesList list;
  list.DeleteLast();
  EXPECT_EQ(list.SeriesCount(), 0U);
  list.Append({"a", "b", "c"});
  list.MoveUp(0);
  EXPECT_EQ(list.Paths(), (Paths{"c", "b", "a"}));
  list.MoveUp(2);
  EXPECT_EQ(list.Paths(), (Paths{"c", "a", "b"}));
}

}  // namespace
}  // namespace series
