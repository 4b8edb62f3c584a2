// What is wrong with a list of icons, a source or a folder: one sentence that names file, place and reason.
#pragma once

#include <stdexcept>

namespace icons {

class Fault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace icons
