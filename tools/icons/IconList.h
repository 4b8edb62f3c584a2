// The list of icons that a bundle ships: a text of one icon a line, blank lines and lines of `#` aside, each
//
//     ID  SOURCE.svg  SIZE  themed|plain
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace icons {

struct Icon {
  int id;            // the number that code names it by
  std::string name;  // of the source, without its extension: lower-case letters, digits and hyphens
  int size;          // width and height in pixels at single resolution
  bool themed;       // has a version for each theme besides its own
  int line;          // in the list, from 1
};

// `file` names the list in faults. Throws a Fault at the first line that is wrong, and when two icons would
// come to share a resource id or a file.
std::vector<Icon> parseIconList(std::string_view text, const std::string& file);

}  // namespace icons
