#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QPainterPath>
#include <QPoint>
#include <QRect>
#include <string>
#include <string_view>
#include <vector>

#include "colour.h"

class QPainter;

// The drawing surface of every diagram: a thin layer over a QPainter with the operations the
// diagrams are written in (a current point for move-to/line-to, 0x00BBGGRR colours, a font
// colour apart from the pen colour, fonts by name and a rotated font). The same drawing then
// paints a QImage, a printer page or a PDF page.
namespace diagram {

enum class PenStyle { Solid, Dot };
enum class BrushStyle { Solid, Clear };

struct DiagramFont {
  std::string name = "MS Sans Serif";
  int pointSize = 8;
  bool bold = false;
  int orientation = 0;  // tenths of a degree, counter-clockwise; 900 writes upwards
};

class Canvas {
 public:
  // width and height are the picture's size in device pixels.
  Canvas(QPainter& painter, int width, int height);
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  int Width() const { return width_; }
  int Height() const { return height_; }

  void SetPenColour(Colour colour);
  Colour PenColour() const { return penColour_; }
  void SetPenStyle(PenStyle style);
  PenStyle CurrentPenStyle() const { return penStyle_; }
  void SetBrushColour(Colour colour);
  void SetBrushStyle(BrushStyle style);
  BrushStyle CurrentBrushStyle() const { return brushStyle_; }
  void SetFont(const DiagramFont& font);
  const DiagramFont& Font() const { return font_; }
  void SetFontColour(Colour colour);
  Colour FontColour() const { return fontColour_; }

  // Fills the pixels left <= x < right, top <= y < bottom with the brush colour.
  void FillRect(int left, int top, int right, int bottom);
  void MoveTo(int x, int y);
  void LineTo(int x, int y);
  QPoint PenPosition() const { return position_; }
  // Outlines with the pen and fills with the brush (nothing when the brush is clear).
  void Rectangle(int left, int top, int right, int bottom);
  void Ellipse(double left, double top, double right, double bottom);
  // Part of the ellipse in the box, counter-clockwise on the screen from startDegrees (0 is the
  // right-hand end) over spanDegrees; never filled.
  void Arc(double left, double top, double right, double bottom, double startDegrees, double spanDegrees);
  // Diagonal hatching in the colour over the region, without an outline.
  void Hatch(const QPainterPath& region, Colour colour);

  // (x, y) is the top-left corner of the text, or the corner it turns about when rotated.
  void TextOut(int x, int y, std::string_view text);
  int TextWidth(std::string_view text) const;
  // Every text of one font is as high as the font.
  int TextHeight(std::string_view text) const;
  // Where the texts written so far lie, so that a name placed later can keep clear of them.
  const std::vector<QRect>& WrittenTexts() const { return writtenTexts_; }

  // Drawing stays inside the rectangle until ClearClip.
  void SetClipRect(int left, int top, int right, int bottom);
  void ClearClip();

 private:
  void ApplyPen();
  void ApplyBrush();

  QPainter& painter_;
  int width_;
  int height_;
  Colour penColour_ = kBlack;
  PenStyle penStyle_ = PenStyle::Solid;
  Colour brushColour_ = kWhite;
  BrushStyle brushStyle_ = BrushStyle::Solid;
  Colour fontColour_ = kBlack;
  DiagramFont font_;
  QFont qfont_;
  QFontMetrics metrics_;
  QPoint position_;
  std::vector<QRect> writtenTexts_;
};

}  // namespace diagram
