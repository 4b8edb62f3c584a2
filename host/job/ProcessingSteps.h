// Processing steps (ISO 19593-1): what a layer's lines are to a finishing machine. A step is written as its
// group and, where the group wants one, its type: "Structural/Cutting", "Legend".
#pragma once

#include <map>
#include <string>
#include <vector>

#include "LineTypes.h"

namespace host {

const std::vector<std::string>& processingSteps();
bool isProcessingStep(const std::string& step);

// What a line type of this name mostly is, whatever the case of its letters; empty: nothing known.
std::string usualStepOf(const std::string& lineType);

// The line types that can have a step: all but that of the marks, which must print.
std::vector<LineType> typesWithSteps(const Document& document);

// As chosen in the document, or else the usual one; empty: none.
std::string stepOf(const Document& document, const LineType& type);

// By the name of a line type; empty: none.
using StepByType = std::map<std::string, std::string>;

// Of all that have one.
StepByType stepsOf(const Document& document);
// Keeps those that are other than the steps that hold already; names that are no line type's are left out.
// Best in a step of the document's. False if nothing was to be changed.
bool chooseSteps(Document& document, const StepByType& steps);

// Does a tool cut pieces out or round along lines of this step, so that they have to close? Not along those
// that a piece is folded or torn off at.
bool isCutting(const std::string& step);

}  // namespace host
