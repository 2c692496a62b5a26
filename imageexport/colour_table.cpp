#include "colour_table.h"

#include <algorithm>
#include <numeric>
#include <unordered_map>

namespace imageexport {
namespace {

constexpr std::uint32_t kRgbMask = 0xFFFFFF;
constexpr std::uint32_t kNoColour = 0xFFFFFFFF;  // never equal to a masked colour

int ChannelOf(std::uint32_t colour, int channel) { return static_cast<int>((colour >> (16 - 8 * channel)) & 0xFF); }

// Looks colours up through a one-entry cache: diagrams are long runs of one colour.
template <typename Lookup>
void IndexPixels(std::span<const std::uint32_t> pixels, IndexedPicture& out, Lookup lookup) {
  out.indices.resize(pixels.size());
  std::uint32_t lastColour = kNoColour;
  std::uint8_t lastIndex = 0;
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    const std::uint32_t colour = pixels[i] & kRgbMask;
    if (colour != lastColour) {
      lastColour = colour;
      lastIndex = lookup(colour);
    }
    out.indices[i] = lastIndex;
  }
}

// Palette in order of first appearance; false as soon as a 257th colour turns up.
bool IndexExactly(std::span<const std::uint32_t> pixels, IndexedPicture& out) {
  std::unordered_map<std::uint32_t, std::uint8_t> index;
  bool overflow = false;
  IndexPixels(pixels, out, [&](std::uint32_t colour) -> std::uint8_t {
    const auto found = index.find(colour);
    if (found != index.end()) return found->second;
    if (out.palette.size() == kMaxPaletteSize) {
      overflow = true;
      return 0;
    }
    const auto next = static_cast<std::uint8_t>(out.palette.size());
    out.palette.push_back(colour);
    index.emplace(colour, next);
    return next;
  });
  return !overflow;
}

struct Entry {
  std::uint32_t colour;
  std::uint64_t count;
};

// A run of entries with its widest channel and that channel's spread.
struct Box {
  std::size_t begin, end;
  int channel = 0;
  int spread = 0;
};

Box Measure(const std::vector<Entry>& entries, std::size_t begin, std::size_t end) {
  Box box{begin, end};
  for (int channel = 0; channel < 3; ++channel) {
    int low = 255, high = 0;
    for (std::size_t i = begin; i < end; ++i) {
      low = std::min(low, ChannelOf(entries[i].colour, channel));
      high = std::max(high, ChannelOf(entries[i].colour, channel));
    }
    if (high - low > box.spread) {
      box.spread = high - low;
      box.channel = channel;
    }
  }
  return box;
}

// Splits a box at the weighted median of its widest channel; both halves keep a colour.
std::pair<Box, Box> Split(std::vector<Entry>& entries, const Box& box) {
  const auto first = entries.begin() + static_cast<std::ptrdiff_t>(box.begin);
  const auto last = entries.begin() + static_cast<std::ptrdiff_t>(box.end);
  std::sort(first, last, [&](const Entry& a, const Entry& b) {
    return ChannelOf(a.colour, box.channel) < ChannelOf(b.colour, box.channel);
  });
  const std::uint64_t total =
      std::accumulate(first, last, std::uint64_t{0}, [](std::uint64_t s, const Entry& e) { return s + e.count; });
  std::uint64_t seen = 0;
  std::size_t cut = box.begin + 1;
  for (std::size_t i = box.begin; i + 1 < box.end && seen + entries[i].count <= total / 2; ++i) {
    seen += entries[i].count;
    cut = i + 1;
  }
  return {Measure(entries, box.begin, cut), Measure(entries, cut, box.end)};
}

std::uint32_t MeanColour(const std::vector<Entry>& entries, const Box& box) {
  std::uint64_t sum[3] = {0, 0, 0}, total = 0;
  for (std::size_t i = box.begin; i < box.end; ++i) {
    for (int c = 0; c < 3; ++c) sum[c] += static_cast<std::uint64_t>(ChannelOf(entries[i].colour, c)) * entries[i].count;
    total += entries[i].count;
  }
  std::uint32_t colour = 0;
  for (int c = 0; c < 3; ++c) colour = colour << 8 | static_cast<std::uint32_t>((sum[c] + total / 2) / total);
  return colour;
}

std::vector<Entry> Histogram(std::span<const std::uint32_t> pixels) {
  std::unordered_map<std::uint32_t, std::uint64_t> counts;
  for (std::size_t i = 0; i < pixels.size();) {  // counted run by run
    const std::uint32_t colour = pixels[i] & kRgbMask;
    std::size_t end = i + 1;
    while (end < pixels.size() && (pixels[end] & kRgbMask) == colour) ++end;
    counts[colour] += end - i;
    i = end;
  }
  std::vector<Entry> entries;
  entries.reserve(counts.size());
  for (const auto& [colour, count] : counts) entries.push_back({colour, count});
  return entries;
}

std::vector<Box> MedianCutBoxes(std::vector<Entry>& entries) {
  std::vector<Box> boxes{Measure(entries, 0, entries.size())};
  while (boxes.size() < kMaxPaletteSize) {
    const auto widest = std::max_element(boxes.begin(), boxes.end(),
                                         [](const Box& a, const Box& b) { return a.spread < b.spread; });
    if (widest->spread == 0) break;
    const auto [lower, upper] = Split(entries, *widest);
    *widest = lower;
    boxes.push_back(upper);
  }
  return boxes;
}

IndexedPicture MedianCut(std::span<const std::uint32_t> pixels) {
  std::vector<Entry> entries = Histogram(pixels);
  const std::vector<Box> boxes = MedianCutBoxes(entries);
  IndexedPicture out;
  std::unordered_map<std::uint32_t, std::uint8_t> index;
  for (std::size_t b = 0; b < boxes.size(); ++b) {
    out.palette.push_back(MeanColour(entries, boxes[b]));
    for (std::size_t i = boxes[b].begin; i < boxes[b].end; ++i) index[entries[i].colour] = static_cast<std::uint8_t>(b);
  }
  IndexPixels(pixels, out, [&](std::uint32_t colour) { return index.at(colour); });
  return out;
}

}  // namespace

IndexedPicture ReduceColours(std::span<const std::uint32_t> pixels) {
  IndexedPicture exact;
  if (IndexExactly(pixels, exact)) return exact;
  return MedianCut(pixels);
}

}  // namespace imageexport
