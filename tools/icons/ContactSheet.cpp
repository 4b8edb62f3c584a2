#include "ContactSheet.h"

#include <algorithm>

#include "Raster.h"
#include "Theme.h"

namespace icons {
namespace {

// All in pixels.
constexpr int kColumns = 4;
constexpr int kGap = 12;
constexpr int kSmallest = 16;
constexpr int kLabelSize = 10;
constexpr int kLabelHeight = 20;

struct Layout {
  int largest;  // size of the largest icon at single resolution
  int rows;     // of one theme

  int cellWidth() const { return kSmallest + largest * 3 + kGap * 4; }
  int cellHeight() const { return largest * 2 + kLabelHeight + kGap; }
  int width() const { return cellWidth() * kColumns; }
  int themeHeight() const { return cellHeight() * rows + kGap; }
};

Layout layoutOf(const std::vector<DrawnIcon>& set) {
  int largest = kSmallest;
  for (const DrawnIcon& drawn : set) largest = std::max(largest, drawn.icon.size);
  return {largest, (static_cast<int>(set.size()) + kColumns - 1) / kColumns};
}

void setColour(cairo_t* context, Colour colour) {
  cairo_set_source_rgb(context, colour.red / 255.0, colour.green / 255.0, colour.blue / 255.0);
}

void fillGround(cairo_t* context, const Layout& layout, int top, Colour ground) {
  setColour(context, ground);
  cairo_rectangle(context, 0, top, layout.width(), layout.themeHeight());
  cairo_fill(context);
}

void drawPicture(cairo_t* context, const std::string& svg, int pixels, int left, int bottom) {
  const SurfacePointer picture = drawSvg(svg, pixels);
  cairo_set_source_surface(context, picture.get(), left, bottom - pixels);
  cairo_paint(context);
}

void drawCell(cairo_t* context, const DrawnIcon& drawn, const Layout& layout, const Theme& theme, int left,
              int top) {
  const Icon& icon = drawn.icon;
  const std::string svg = drawn.source.inInk(icon.themed ? theme.ink : kLight.ink);
  const int bottom = top + layout.largest * 2;
  drawPicture(context, svg, kSmallest, left, bottom);
  drawPicture(context, svg, icon.size, left + kSmallest + kGap, bottom);
  drawPicture(context, svg, icon.size * 2, left + kSmallest + icon.size + kGap * 2, bottom);
  setColour(context, theme.ink);
  cairo_move_to(context, left, bottom + kLabelHeight - 6);
  cairo_show_text(context, (std::to_string(icon.id) + " " + icon.name).c_str());
}

void drawTheme(cairo_t* context, const std::vector<DrawnIcon>& set, const Layout& layout, const Theme& theme,
               int top) {
  fillGround(context, layout, top, theme.ground);
  int cell = 0;
  for (const DrawnIcon& drawn : set) {
    const int left = kGap + cell % kColumns * layout.cellWidth();
    drawCell(context, drawn, layout, theme, left, top + kGap + cell / kColumns * layout.cellHeight());
    ++cell;
  }
}

}  // namespace

std::string drawContactSheet(const std::vector<DrawnIcon>& set) {
  const Layout layout = layoutOf(set);
  const SurfacePointer sheet(
      cairo_image_surface_create(CAIRO_FORMAT_RGB24, layout.width(), layout.themeHeight() * 2));
  const ContextPointer context(cairo_create(sheet.get()));
  cairo_select_font_face(context.get(), "sans-serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(context.get(), kLabelSize);
  int top = 0;
  for (const Theme* theme : kThemes) {
    drawTheme(context.get(), set, layout, *theme, top);
    top += layout.themeHeight();
  }
  return encodePng(sheet.get());
}

}  // namespace icons
