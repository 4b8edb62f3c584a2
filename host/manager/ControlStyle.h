// How controls look: flat, dense, quiet, and from the palette alone, so one style serves every theme.
#pragma once

#include <QProxyStyle>

#include "ActiveFields.h"
#include "ButtonRoles.h"

namespace host {

class ControlStyle : public QProxyStyle {
 public:
  ControlStyle();

  using QProxyStyle::polish;
  using QProxyStyle::unpolish;
  void polish(QWidget* widget) override;
  void unpolish(QWidget* widget) override;
  QPalette standardPalette() const override;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget = nullptr) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget = nullptr) const override;

  QRect subElementRect(SubElement element, const QStyleOption* option,
                       const QWidget* widget = nullptr) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget = nullptr) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget = nullptr) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                  const QWidget* widget = nullptr) const override;
  int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                QStyleHintReturn* answer = nullptr) const override;
  QIcon standardIcon(StandardPixmap which, const QStyleOption* option = nullptr,
                     const QWidget* widget = nullptr) const override;

  QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                              const QStyleOption* option) const override;

 private:
  ActiveFields activeFields_;
  ButtonRoles buttonRoles_;
};

}  // namespace host
