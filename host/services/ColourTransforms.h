// Colours by their profiles: sRGB and Lab built in, gray as the neutrals of sRGB, inks by a profile.
#pragma once

#include <memory>
#include <string_view>

#include "ColourSample.h"

namespace host {

// Results may lie outside their ranges. What can't be made for want of memory throws std::bad_alloc.
class ColourTransforms {
 public:
  ColourTransforms();
  ColourTransforms(const ColourTransforms&) = delete;
  ColourTransforms& operator=(const ColourTransforms&) = delete;
  ~ColourTransforms();

  // `bytes`: an ICC profile, which is copied. Once only. False, and nothing changed, if it does not take
  // inks to colours and back. CMYK is not to be asked for without a profile.
  bool setCmykProfile(std::string_view bytes);
  bool hasCmykProfile() const;

  // Relative colorimetric with black point compensation.
  ColourSample convert(ColourSpace source, const ColourSample& sample, ColourSpace destination);

  // The Lab of a sample as it is, black included.
  ColourSample measure(ColourSpace space, const ColourSample& sample);

 private:
  struct Engine;
  std::unique_ptr<Engine> engine_;
};

}  // namespace host
