// How a drawing is to be written as a PDF for the table.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "DrawingExport.h"
#include "ProcessingSteps.h"

class QWidget;

namespace host {

struct ExportChoice {
  StepByType steps;  // of all line types, see typesWithSteps
  ExportExtras extras;
};

// Asks in a dialog over `parent`. It shows the steps that hold in the document, the names of what is written
// beside `output`, and that there are findings (see Preflight.h). Nullopt if the user thought better of it.
std::optional<ExportChoice> askHowToExport(const Document& document, const std::string& output,
                                           const ExportExtras& proposed, std::size_t findings,
                                           QWidget* parent);

}  // namespace host
