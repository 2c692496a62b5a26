#include "curve_names.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace diagram {
namespace {

// How far a name may wander from its point: lines up or down, half widths to either side.
constexpr int kSearchLines = 6;
constexpr int kSearchHalfWidths = 2;

QRect MovedInside(QRect box, const QRect& picture) {
  box.moveLeft(std::clamp(box.left(), picture.left(), std::max(picture.left(), picture.right() + 1 - box.width())));
  box.moveTop(std::clamp(box.top(), picture.top(), std::max(picture.top(), picture.bottom() + 1 - box.height())));
  return box;
}

bool IsFree(const QRect& box, std::span<const QRect> taken) {
  return std::none_of(taken.begin(), taken.end(), [&](const QRect& t) { return t.intersects(box); });
}

// Every shift the search tries, the shortest first.
std::vector<QPoint> ShiftsByDistance(const QSize& size) {
  std::vector<QPoint> shifts;
  const int half = std::max(1, size.width() / 2);
  for (int line = -kSearchLines; line <= kSearchLines; ++line) {
    for (int side = -kSearchHalfWidths; side <= kSearchHalfWidths; ++side) {
      shifts.emplace_back(side * half, line * size.height());
    }
  }
  std::stable_sort(shifts.begin(), shifts.end(), [](const QPoint& a, const QPoint& b) {
    return QPoint::dotProduct(a, a) < QPoint::dotProduct(b, b);
  });
  return shifts;
}

}  // namespace

QRect PlaceText(const QRect& wanted, const QRect& picture, std::span<const QRect> taken) {
  for (const QPoint& shift : ShiftsByDistance(wanted.size())) {
    const QRect box = MovedInside(wanted.translated(shift), picture);
    if (IsFree(box, taken)) return box;
  }
  return MovedInside(wanted, picture);
}

void TextOutWithHalo(Canvas& canvas, int left, int top, std::string_view text) {
  const Colour ink = canvas.FontColour();
  canvas.SetFontColour(kWhite);
  for (int dy = -1; dy <= 1; ++dy) {
    for (int dx = -1; dx <= 1; ++dx) {
      if (dx != 0 || dy != 0) canvas.TextOut(left + dx, top + dy, text);
    }
  }
  canvas.SetFontColour(ink);
  canvas.TextOut(left, top, text);
}

void WriteCurveName(Canvas& canvas, int column, int row, bool textLeft, std::string_view text) {
  const int width = canvas.TextWidth(text);
  const QRect wanted(textLeft ? column - width : column, row, width, canvas.TextHeight(text));
  const QRect place = PlaceText(wanted, QRect(0, 0, canvas.Width(), canvas.Height()), canvas.WrittenTexts());
  TextOutWithHalo(canvas, place.left(), place.top(), text);
}

}  // namespace diagram
