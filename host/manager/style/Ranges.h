// What shows a place in a range: sliders, scroll bars, progress bars.
#pragma once

#include "Paint.h"

class QRect;
class QStyleOptionSlider;

namespace host::look {

void slider(const Paint& paint);
void scrollBar(const Paint& paint);
void progressGroove(const Paint& paint);
void progressContents(const Paint& paint);
void progressLabel(const Paint& paint);

// The bar has no arrows: the thumb runs over its whole length.
QRect scrollThumb(const QStyleOptionSlider& bar, int shortest);

}  // namespace host::look
