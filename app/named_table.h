#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

// The command line's constant tables (modes, views, picture formats, curves): an entry looked up
// by its name, and the names listed for a message.
namespace app {

// The entry whose name (the member given) is name; nullptr when none is.
template <typename Entry, std::size_t N>
const Entry* FindByName(const Entry (&table)[N], std::string_view name, const char* Entry::*field = &Entry::name) {
  const auto found = std::find_if(std::begin(table), std::end(table), [&](const Entry& e) { return name == e.*field; });
  return found == std::end(table) ? nullptr : found;
}

// The names in table order, the last joined by lastJoint: "a, b or c" with " or ".
template <typename Entry, std::size_t N>
std::string NameList(const Entry (&table)[N], const char* lastJoint, const char* Entry::*field = &Entry::name) {
  std::string list;
  for (std::size_t i = 0; i < N; ++i) list.append(i == 0 ? "" : i + 1 == N ? lastJoint : ", ").append(table[i].*field);
  return list;
}

}  // namespace app
