#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "DecimalText.h"
#include "JobSummary.h"

namespace host {
namespace {

using Json = nlohmann::ordered_json;

// Names of a drawing may hold line breaks.
std::string onOneLine(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](unsigned char c) { return c < ' '; }, ' ');
  return text;
}

std::string millimetreText(double millimetres) {
  return decimalText(millimetres, 2, false);
}

// Nobody needs more than a tenth of a micrometre.
double rounded(double millimetres) {
  return std::round(millimetres * 1e4) / 1e4;
}

std::string numbered(std::size_t index) {
  return "  " + std::to_string(index + 1) + ". ";
}

std::string sheetLine(const JobSummary::Sheet& sheet) {
  const std::string size = millimetreText(sheet.width) + " x " + millimetreText(sheet.height) + " mm";
  return (sheet.name.empty() ? std::string() : onOneLine(sheet.name) + ": ") + size + "\n";
}

std::string workLine(const JobSummary::Work& work) {
  std::string line = "  " + onOneLine(work.lineType);
  if (!work.step.empty()) line += " (" + work.step + ")";
  if (work.paths == 0) return line + ": no paths\n";
  return line + ": " + std::to_string(work.paths) + (work.paths == 1 ? " path, " : " paths, ") +
         millimetreText(work.length) + " mm\n";
}

std::string heading(const char* title, bool isEmpty) {
  return "\n" + std::string(title) + (isEmpty ? ": none\n" : "\n");
}

}  // namespace

std::string summaryAsText(const JobSummary& summary, const std::string& name) {
  std::string text = "Job summary: " + onOneLine(name) + "\n";
  text += heading("Artboards", summary.sheets.empty());
  for (std::size_t i = 0; i < summary.sheets.size(); ++i) text += numbered(i) + sheetLine(summary.sheets[i]);
  text += heading("Line types", summary.works.empty());
  for (const JobSummary::Work& work : summary.works) text += workLine(work);
  text += heading("Register marks", summary.marks.empty());
  if (!summary.marks.empty()) text += "  from the lower left corner of the first artboard, right and up:\n";
  for (std::size_t i = 0; i < summary.marks.size(); ++i) {
    const AIRealPoint& mark = summary.marks[i];
    text += numbered(i) + millimetreText(mark.x) + ", " + millimetreText(mark.y) + " mm\n";
  }
  return text;
}

std::string summaryAsJson(const JobSummary& summary, const std::string& name) {
  Json json{{"drawing", name}, {"unit", "mm"}};
  Json& sheets = json["artboards"] = Json::array();
  for (const JobSummary::Sheet& sheet : summary.sheets) {
    sheets.push_back(
        {{"name", sheet.name}, {"width", rounded(sheet.width)}, {"height", rounded(sheet.height)}});
  }
  Json& works = json["line_types"] = Json::array();
  for (const JobSummary::Work& work : summary.works) {
    works.push_back({{"name", work.lineType},
                     {"step", work.step.empty() ? Json() : Json(work.step)},
                     {"paths", work.paths},
                     {"length", rounded(work.length)}});
  }
  Json& marks = json["marks"] = Json::array();
  for (const AIRealPoint& mark : summary.marks)
    marks.push_back({{"x", rounded(mark.x)}, {"y", rounded(mark.y)}});
  return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace host
