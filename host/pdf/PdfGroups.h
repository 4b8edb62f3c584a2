// Art that fades as one: transparency groups (ISO 32000-1, 11.6.6). Isolated only where it makes a difference
// to the look, since overprint reaches what lies below out of the others alone.
#pragma once

#include <qpdf/QPDF.hh>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "Art.h"

namespace host {

class PdfGroups {
 public:
  struct Group {
    std::string content;
    std::set<std::string> objects;  // resource names of the pictures and groups in it
    bool isIsolated;
  };
  // Those of a page of that size, in its coordinates; the resource name.
  std::string add(Group group, AIRealPoint size);

  // Makes the groups and adds them to `objects`, which holds the pictures already. `shared` are the resources
  // of all, without /XObject.
  void drawInto(QPDF& pdf, QPDFObjectHandle shared, QPDFObjectHandle objects) const;

 private:
  std::vector<std::pair<Group, AIRealPoint>> groups_;  // inner ones before those round them
};

}  // namespace host
