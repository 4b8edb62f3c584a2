// What takes text or drops down: line edits, spin boxes, combo boxes.
#pragma once

#include "Paint.h"

namespace host::look {

void lineEditPanel(const Paint& paint);
void spinBox(const Paint& paint);
void comboBox(const Paint& paint);

}  // namespace host::look
