// How much room controls take, and where their parts lie.
#pragma once

#include <QSize>
#include <QStyle>
#include <optional>

class QRect;
class QStyleOptionComplex;

namespace host::look {

// None of these answers for every element: what they leave out the style below measures.
std::optional<int> metricOf(QStyle::PixelMetric metric, const QStyleOption* option, const QWidget* widget);
std::optional<QSize> sizeOf(QStyle::ContentsType type, const QStyleOption* option, const QSize& contents,
                            const QWidget* widget);
std::optional<QRect> partOf(QStyle::ComplexControl control, const QStyleOptionComplex& option,
                            QStyle::SubControl part, const QWidget* widget);
std::optional<int> hintOf(QStyle::StyleHint hint);

}  // namespace host::look
