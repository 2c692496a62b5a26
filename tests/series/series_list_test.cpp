#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "series/series_list.h"

namespace series {
namespace {

std::vector<std::string> Names(int from, int to) {
  std::vector<std::string> names;
  for (int i = from; i <= to; ++i) names.push_back("f" + std::to_string(i) + ".s2p");
  return names;
}

TEST(SeriesList, KeepsTheFirstFortyOfADropAndRefusesTheNext) {
  SeriesList list;
  const AppendResult first = list.Append(Names(1, 45));
  EXPECT_EQ(first.added, 40U);
  EXPECT_TRUE(first.message.empty());
  EXPECT_EQ(list.SeriesCount(), 40U);
  EXPECT_EQ(list.Path(39), "f40.s2p");
  const AppendResult further = list.Append(Names(46, 46));
  EXPECT_EQ(further.added, 0U);
  EXPECT_EQ(further.message, "Maximum of 40 files reached! Perform calculation to get the results.");
  list.DeleteLast();
  EXPECT_EQ(list.Append(Names(50, 52)).added, 1U);  // room for one: the rest go silently
  EXPECT_EQ(list.Path(39), "f50.s2p");
}

TEST(SeriesList, MovesUpAndWrapsTheFirstToTheBottom) {
  SeriesList list;
  list.Append(Names(1, 3));
  list.MoveUp(0);  // row 1 exchanges with the last
  EXPECT_EQ(list.Paths(), (std::vector<std::string>{"f3.s2p", "f2.s2p", "f1.s2p"}));
  list.MoveUp(2);
  EXPECT_EQ(list.Paths(), (std::vector<std::string>{"f3.s2p", "f1.s2p", "f2.s2p"}));
}

TEST(SeriesList, DeletingFromAnEmptyListChangesNothing) {
  SeriesList list;
  list.DeleteLast();
  EXPECT_EQ(list.SeriesCount(), 0U);
  list.Append(Names(1, 2));
  list.DeleteAll();
  EXPECT_EQ(list.SeriesCount(), 0U);
}

}  // namespace
}  // namespace series
