#include "JobSummary.h"

#include <unordered_map>

#include "CurveLength.h"
#include "DrawnArt.h"
#include "JobMarks.h"
#include "LineTypes.h"
#include "ProcessingSteps.h"

namespace host {
namespace {

double millimetresInUnit(const Document& document) {
  return document.scale() * 25.4 / 72;
}

std::vector<JobSummary::Sheet> sheetsOf(const Document& document) {
  const double scale = millimetresInUnit(document);
  std::vector<JobSummary::Sheet> sheets;
  for (const Artboard& artboard : document.state().artboards) {
    const AIRealRect& box = artboard.position;
    sheets.push_back({artboard.name, (box.right - box.left) * scale, (box.top - box.bottom) * scale});
  }
  return sheets;
}

std::vector<JobSummary::Work> worksOf(const Document& document, const DrawnArt& drawn) {
  const std::map<std::string, std::string> steps = stepsOf(document);
  std::vector<JobSummary::Work> works;
  std::unordered_map<CustomColorId, std::size_t> workOf;
  for (const LineType& type : lineTypesOf(document)) {
    const auto step = steps.find(type.name);
    workOf.emplace(type.color, works.size());
    works.push_back({type.name, step == steps.end() ? std::string() : step->second});
  }
  for (const DrawnArt::Object& object : drawn.objects) {
    const auto found = object.isBody ? workOf.end() : workOf.find(spotOf(document, object.art));
    if (found == workOf.end()) continue;
    JobSummary::Work& work = works[found->second];
    work.paths += object.endPath - object.firstPath;
    for (std::uint32_t i = object.firstPath; i < object.endPath; ++i)
      work.length += lengthOf(*drawn.paths[i]);
  }
  for (JobSummary::Work& work : works) work.length *= millimetresInUnit(document);
  return works;
}

std::vector<AIRealPoint> markCentres(const Document& document, const DrawnArt& drawn) {
  const AIRealRect& sheet = document.state().artboards.front().position;
  const double scale = millimetresInUnit(document);
  std::vector<AIRealPoint> centres;
  for (const JobMark& mark : marksOf(document)) {
    const DrawnArt::Range& range = drawn.ranges[mark.art];
    if (range.first == range.end) continue;
    centres.push_back({(mark.centre.x - sheet.left) * scale, (mark.centre.y - sheet.bottom) * scale});
  }
  return centres;
}

}  // namespace

JobSummary summaryOf(const Document& document) {
  const DrawnArt drawn(document);
  return {sheetsOf(document), worksOf(document, drawn), markCentres(document, drawn)};
}

}  // namespace host
