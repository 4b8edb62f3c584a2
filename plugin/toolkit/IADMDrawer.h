// What an item or a list row draws itself with: whole pixels and the colours of dialogs.
#pragma once

#include <QColor>
#include <cstdint>
#include <memory>

#include "ADMRect.h"
#include "AIColor.h"

class QPainter;
class QWidget;

namespace qRVADM {

// Coordinates are those of the painter: the widget's, or those of the list row. Only for the time of a paint
// event. Copies start with a colour of their own. A drawer with a painter of its own yields copies that make
// theirs; as a widget takes one painter at a time, only one of them may draw until it is gone.
class IADMDrawer {
 public:
  // Paints what is drawn in its ordinary look.
  class DefaultPainter {
   public:
    DefaultPainter() = default;
    DefaultPainter(const DefaultPainter&) = delete;
    DefaultPainter& operator=(const DefaultPainter&) = delete;
    virtual ~DefaultPainter() = default;

    // `painter` is active before and after; its pen, brush and font may be other ones then.
    virtual void Paint(QPainter* painter) = 0;
  };

  // Makes its painter, antialiased, at the first drawing call and ends it when it goes. `defaultPainter`: not
  // owned, may be null. Without bounds: the whole widget.
  IADMDrawer(QWidget* widget, DefaultPainter* defaultPainter);
  IADMDrawer(QWidget* widget, DefaultPainter* defaultPainter, const ADMRect& bounds);
  // Draws with a painter that is active and stays so; not owned.
  IADMDrawer(QWidget* widget, QPainter* painter, DefaultPainter* defaultPainter, const ADMRect& bounds);
  IADMDrawer(const IADMDrawer& other);
  IADMDrawer& operator=(const IADMDrawer&) = delete;
  ~IADMDrawer();

  void GetBoundsRect(ADMRect* rect);  // the area to draw in
  // The colour and the pen, 1 pixel wide: a code of ControlColors.h, resolved for the widget; or the high
  // bytes of the components. Before the first of them the colour is opaque red.
  void SetColor(std::uint32_t code);
  void SetRGBColor(const AIRGBColor& rgb);
  void DrawLine(ADMPoint a, ADMPoint b);  // both end pixels included
  void DrawRect(const ADMRect& rect);     // the outermost pixels of the rectangle
  void FillRect(const ADMRect& rect);
  // One line from the left, centred vertically, with an ellipsis where it is longer than the box.
  void DrawTextInBox(const char* utf8, const ADMRect& box);
  QPainter* GetPainter();  // never null
  void DrawDefault();

 private:
  void UseColor(const QColor& used);

  QWidget* widget;
  std::unique_ptr<QPainter> ownPainter;  // null until the first drawing call
  QPainter* painter;                     // null as long as ownPainter is to come
  bool ownsPainter;
  DefaultPainter* defaultPainter;
  QColor color{Qt::red};
  ADMRect bounds;
};

}  // namespace qRVADM
