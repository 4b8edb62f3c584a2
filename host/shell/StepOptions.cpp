#include "StepOptions.h"

#include <algorithm>
#include <optional>

#include "JobMarks.h"
#include "ProcessingSteps.h"
#include "StepWords.h"
#include "SvgQuoted.h"
#include "WordList.h"

namespace host {
namespace {

std::string complaintAboutName(const std::string& name, const Document& document) {
  const LayerId marks = markLayerOf(document);
  if (marks != 0 && document.layer(marks)->title == name) {
    return "marks have to be printed, so " + quoted(name) + " takes no processing step";
  }
  std::vector<std::string> names;
  for (const LineType& type : typesWithSteps(document)) names.push_back(quoted(type.name));
  return "the drawing has no line type " + quoted(name) + "; it has " +
         (names.empty() ? "none" : wordList(names, "and"));
}

// Adds what "NAME=TYPE" says. Empty, or a sentence on what is wrong with it.
std::string readStep(const std::string& text, const Document& document, StepByType& steps) {
  const std::size_t equals = text.rfind('=');
  if (equals == std::string::npos) return "--step takes NAME=TYPE, not " + quoted(text);
  const std::string name = text.substr(0, equals);
  const std::string word = text.substr(equals + 1);
  const std::vector<LineType> types = typesWithSteps(document);
  const bool isKnown =
      std::any_of(types.begin(), types.end(), [&](const LineType& type) { return type.name == name; });
  if (!isKnown) return complaintAboutName(name, document);
  const std::optional<std::string> step = stepMeantBy(word);
  if (!step)
    return "there is no processing step " + quoted(word) + "; write " + wordList(stepsLike(word), "or");
  steps[name] = *step;
  return {};
}

}  // namespace

std::string chooseSteps(const std::vector<std::string>& options, Document& document) {
  StepByType steps;
  for (const std::string& text : options) {
    if (std::string complaint = readStep(text, document, steps); !complaint.empty()) return complaint;
  }
  chooseSteps(document, steps);
  return {};
}

}  // namespace host
