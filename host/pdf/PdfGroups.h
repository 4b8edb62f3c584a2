// Art that fades as one: transparency groups (ISO 32000-1, 11.6.6), not isolated, so that overprint reaches
// what lies below.
#pragma once

#include <qpdf/QPDF.hh>
#include <set>
#include <string>
#include <vector>

namespace host {

class PdfGroups {
 public:
  // The resource name of a group of that content, in the page's coordinates; its box is `width` by `height`.
  // `objects` are the resource names of the pictures and groups in it.
  std::string add(std::string content, std::set<std::string> objects, double width, double height);

  // Makes the groups and adds them to `objects`, which holds the pictures already. `shared` are the resources
  // of all, without /XObject.
  void drawInto(QPDF& pdf, QPDFObjectHandle shared, QPDFObjectHandle objects) const;

 private:
  struct Group {
    std::string content;
    std::set<std::string> objects;
    double width, height;
  };
  std::vector<Group> groups_;  // inner ones before those round them
};

}  // namespace host
