// What has to be known of the product that makes register marks: the one place where the host names it.
#pragma once

namespace host {

struct MarksProduct {
  const char* bundle;  // the one that is loaded by default, beside the program
  const char* menuKey;
  const char* preferencePrefix;
  const char* sizeKey;       // real, points
  const char* weightKey;     // real, points
  const char* amountKey;     // real, 0 to 1
  const char* shapeKey;      // integer, MarkShape + 1
  const char* placementKey;  // integer, Placement + 1
  const char* notPlacedKey;  // integer: written by the product, how many marks found no room
  const char* layerTitle;
  const char* artName;
};

constexpr MarksProduct kMarksProduct{"corvane.bundle", "Add brevia Register Marks...",
                                     "Corvane",        "Size",
                                     "StrokeWeight",   "sliderrealvalue",
                                     "Shape",          "Action",
                                     "LastNotPlaced",  "Regmark",
                                     "brevia Regmark"};

}  // namespace host
