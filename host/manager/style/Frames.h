// What surrounds and separates: frames, group boxes, tool tips, splitters, grips.
#pragma once

#include "Paint.h"

class QRect;
class QStyleOptionGroupBox;
class QWidget;

namespace host::look {

void viewFrame(const Paint& paint);
void shapedFrame(const Paint& paint);
void windowFrame(const Paint& paint);
void toolTipPanel(const Paint& paint);
void groupBox(const Paint& paint);
void splitter(const Paint& paint);
void sizeGrip(const Paint& paint);
void rubberBand(const Paint& paint);
void plainGround(const Paint& paint);
void nothing(const Paint& paint);
void arrowUp(const Paint& paint);
void arrowDown(const Paint& paint);
void arrowLeft(const Paint& paint);
void arrowRight(const Paint& paint);

// Where the frame of a group box runs: through the middle of its title, if it has one.
QRect groupFrame(const QStyleOptionGroupBox& box, const QWidget* widget);

}  // namespace host::look
