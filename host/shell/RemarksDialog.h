// What of a drawing was not understood.
#pragma once

#include <vector>

#include "SvgDrawing.h"

class QWidget;

namespace host {

// Lists the remarks in a dialog over `parent`, from which they can be copied; returns when it is closed.
void showRemarksDialog(const std::vector<SvgRemark>& remarks, QWidget* parent);

}  // namespace host
