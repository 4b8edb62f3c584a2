// What a job asks of the table, to lie beside its file.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Document.h"

namespace host {

struct JobSummary {
  struct Sheet {
    std::string name;
    double width = 0, height = 0;  // millimetres
  };
  struct Work {
    std::string lineType;
    std::string step;       // see ProcessingSteps.h; empty: none
    std::size_t paths = 0;  // painted in the line type; a compound path counts as its parts
    double length = 0;      // millimetres, of all their outlines, a closed one to its start
  };
  std::vector<Sheet> sheets;
  std::vector<Work> works;         // every line type, in the order of lineTypesOf
  std::vector<AIRealPoint> marks;  // centres in millimetres from the lower left of the first artboard, y up
};

// Guides and art that is hidden, by itself, a group or its layer, count for nothing, marks among it.
JobSummary summaryOf(const Document& document);

// For people, and for programs; both end with a line break. `name` is the drawing's.
std::string summaryAsText(const JobSummary& summary, const std::string& name);
std::string summaryAsJson(const JobSummary& summary, const std::string& name);

}  // namespace host
