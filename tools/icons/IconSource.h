// The drawing that an icon is made from: SVG in which `currentColor` stands for the ink.
#pragma once

#include <string>

#include "Colour.h"

namespace icons {

class IconSource {
 public:
  // `svg` is the file's text. Throws a Fault if a themed icon has no ink, since its versions would be equal,
  // or if a colour does not stand out from a theme's ground. #fff is let pass: it lies on other colours.
  IconSource(std::string svg, bool themed);

  // The drawing with the ink in place.
  std::string inInk(Colour ink) const;

 private:
  std::string svg_;
};

}  // namespace icons
