// One artboard of the current document, by its index.
#pragma once

#include <cstdint>

#include "AITypes.h"

// To walk all artboards count up from 0 until ParameterError, which both operations throw when there is no
// artboard of that index, or none to be had at all.
class ArtboardRef {
 public:
  void SetIndex(std::uint32_t artboard);
  void GetRect(AIRealRect* rect) const;

 private:
  std::uint32_t index = 0;
};
