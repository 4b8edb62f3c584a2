// What a colour of one space is in another.
#pragma once

#include <filesystem>
#include <vector>

#include "ColourCache.h"
#include "ColourTransforms.h"

namespace host {

// Relative colorimetric with black point compensation. Inks follow a CMYK profile if one is found, else
// PlainInk.h. Answers are cached here and not by those who ask: only this object knows what they depend
// on, and a caller's own cache would hide calls that are to be counted or refused.
class ColourConversion {
 public:
  // The first file among cmykProfileFiles(folders) that is a usable profile is the CMYK profile.
  explicit ColourConversion(const std::vector<std::filesystem::path>& profileFolders);

  // A sample beyond its range counts as the nearest within. The answer lies within its range.
  ColourAnswer convert(ColourSpace source, const ColourSample& sample, ColourSpace destination);

  const std::filesystem::path& cmykProfile() const { return cmykProfile_; }  // empty: inks are plain

 private:
  void findCmykProfile(const std::vector<std::filesystem::path>& folders);
  ColourSample carry(ColourSpace source, const ColourSample& sample, ColourSpace destination);
  ColourSample carryPlain(ColourSpace source, const ColourSample& sample, ColourSpace destination);
  ColourSample measure(ColourSpace space, const ColourSample& sample);
  ColourAnswer answer(const ColourQuestion& question);

  ColourTransforms transforms_;
  std::filesystem::path cmykProfile_;
  ColourCache cache_;
};

}  // namespace host
