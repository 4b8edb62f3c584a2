// Rows of lists and trees, and the headers over them.
#pragma once

#include "Paint.h"

namespace host::look {

void itemPanel(const Paint& paint);
void dropMark(const Paint& paint);
void branch(const Paint& paint);
void headerSection(const Paint& paint);
void headerEmptyArea(const Paint& paint);
void headerArrow(const Paint& paint);

}  // namespace host::look
