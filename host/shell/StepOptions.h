// Processing steps as the command line gives them.
#pragma once

#include <string>
#include <vector>

namespace host {

class Document;

// Each option is NAME=TYPE: the name of a line type, and a step (see StepWords.h). Empty, or a sentence on
// the first that is none; then none of them has been taken.
std::string chooseSteps(const std::vector<std::string>& options, Document& document);

}  // namespace host
