#include "ProcessingSteps.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "JobMarks.h"
#include "StepWords.h"

namespace host {
namespace {

const char* const kStructural[] = {"Cutting",
                                   "PartialCutting",
                                   "ReversePartialCutting",
                                   "Creasing",
                                   "ReverseCreasing",
                                   "CuttingCreasing",
                                   "ReverseCuttingCreasing",
                                   "PartialCuttingCreasing",
                                   "ReversePartialCuttingCreasing",
                                   "Drilling",
                                   "Gluing",
                                   "FoilStamping",
                                   "ColdFoilStamping",
                                   "Embossing",
                                   "Debossing",
                                   "Perforating",
                                   "Bleed",
                                   "VarnishFree",
                                   "InkFree",
                                   "InkVarnishFree",
                                   "Folding",
                                   "Punching",
                                   "Stapling"};
const char* const kPositions[] = {"Hologram", "Barcode", "ContentArea", "CodingMarking", "Imprinting"};
const char* const kWithoutTypes[] = {"Dimensions", "Braille", "Legend", "White", "Varnish"};

struct Usual {
  const char* lineType;  // in small letters
  const char* step;
};

// Only what a name nearly always means: a step that is wrong does more harm than none. Scores are creases to
// some and cuts to others, and grooves, bevels, pockets and seams have no step.
constexpr Usual kUsual[] = {{"through cut", "Structural/Cutting"},
                            {"cutcontour", "Structural/Cutting"},
                            {"die line", "Structural/Cutting"},
                            {"sheet cut", "Structural/Cutting"},
                            {"outside contour", "Structural/Cutting"},
                            {"inside contour", "Structural/Cutting"},
                            {"fabric cut", "Structural/Cutting"},
                            {"inner cut", "Structural/Cutting"},
                            {"window", "Structural/Cutting"},
                            {"hanging hole", "Structural/Cutting"},
                            {"kiss cut", "Structural/PartialCutting"},
                            {"crease", "Structural/Creasing"},
                            {"crease along flute", "Structural/Creasing"},
                            {"crease across flute", "Structural/Creasing"},
                            {"reverse crease", "Structural/ReverseCreasing"},
                            {"cut-crease", "Structural/CuttingCreasing"},
                            {"perforate", "Structural/Perforating"},
                            {"perforation", "Structural/Perforating"},
                            {"drill", "Structural/Drilling"},
                            {"dowel hole", "Structural/Drilling"},
                            {"fold line", "Structural/Folding"},
                            {"glue area", "Structural/Gluing"},
                            {"braille", "Braille"},
                            {"bleed", "Structural/Bleed"},
                            {"bleed edge", "Structural/Bleed"}};

std::vector<std::string> allSteps() {
  std::vector<std::string> steps;
  for (const char* type : kStructural) steps.push_back(std::string("Structural/") + type);
  for (const char* type : kPositions) steps.push_back(std::string("Positions/") + type);
  steps.insert(steps.end(), std::begin(kWithoutTypes), std::end(kWithoutTypes));
  return steps;
}

}  // namespace

const std::vector<std::string>& processingSteps() {
  static const std::vector<std::string> steps = allSteps();
  return steps;
}

bool isProcessingStep(const std::string& step) {
  const auto& steps = processingSteps();
  return std::find(steps.begin(), steps.end(), step) != steps.end();
}

std::string usualStepOf(const std::string& lineType) {
  const std::string name = inSmallLetters(lineType);
  const auto found = std::find_if(std::begin(kUsual), std::end(kUsual),
                                  [&](const Usual& usual) { return name == usual.lineType; });
  return found == std::end(kUsual) ? std::string() : found->step;
}

std::vector<LineType> typesWithSteps(const Document& document) {
  std::vector<LineType> types = lineTypesOf(document);
  const LayerId marks = markLayerOf(document);
  types.erase(
      std::remove_if(types.begin(), types.end(), [=](const LineType& type) { return type.layer == marks; }),
      types.end());
  return types;
}

std::string stepOf(const Document& document, const LineType& type) {
  return document.layer(type.layer)->step.value_or(usualStepOf(type.name));
}

StepByType stepsOf(const Document& document) {
  StepByType steps;
  for (const LineType& type : typesWithSteps(document)) {
    std::string step = stepOf(document, type);
    if (!step.empty()) steps.emplace(type.name, std::move(step));
  }
  return steps;
}

bool chooseSteps(Document& document, const StepByType& steps) {
  bool isChanged = false;
  for (const LineType& type : typesWithSteps(document)) {
    const auto chosen = steps.find(type.name);
    if (chosen == steps.end() || chosen->second == stepOf(document, type)) continue;
    document.editLayer(type.layer).step = chosen->second;
    isChanged = true;
  }
  return isChanged;
}

bool isCutting(const std::string& step) {
  const std::string cutting[] = {"Structural/Cutting", "Structural/PartialCutting",
                                 "Structural/ReversePartialCutting", "Structural/Punching"};
  return std::find(std::begin(cutting), std::end(cutting), step) != std::end(cutting);
}

}  // namespace host
