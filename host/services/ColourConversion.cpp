#include "ColourConversion.h"

#include <cmath>

#include "ColourProfileFiles.h"
#include "PlainInk.h"

namespace host {
namespace {

// CIE 1976 difference up to which a colour counts as kept: tables of inks are no closer there and back.
constexpr double kVisible = 5;

double difference(const ColourSample& a, const ColourSample& b) {
  return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

// The arithmetic of profiles leaves white a hair short of 1, which is one step less in 16 bits.
ColourSample withCleanEnds(ColourSpace space, ColourSample sample) {
  constexpr double hair = 0.5 / 65535;
  if (space == ColourSpace::Lab) return sample;
  for (double& component : sample) {
    if (component < hair) component = 0;
    if (component > 1 - hair) component = 1;
  }
  return sample;
}

}  // namespace

ColourConversion::ColourConversion(const std::vector<std::filesystem::path>& profileFolders) {
  findCmykProfile(profileFolders);
}

void ColourConversion::findCmykProfile(const std::vector<std::filesystem::path>& folders) {
  for (const std::filesystem::path& file : cmykProfileFiles(folders)) {
    const auto bytes = readColourProfile(file);
    if (!bytes || !transforms_.setCmykProfile(*bytes)) continue;
    cmykProfile_ = file;
    return;
  }
}

ColourAnswer ColourConversion::convert(ColourSpace source, const ColourSample& sample,
                                       ColourSpace destination) {
  const ColourQuestion question{source, destination, withinRange(source, sample)};
  if (source == destination) return {question.sample, true};
  if (const ColourAnswer* known = cache_.find(question)) return *known;
  const ColourAnswer made = answer(question);
  cache_.put(question, made);
  return made;
}

// A colour is in gamut if the way back leads to it again.
ColourAnswer ColourConversion::answer(const ColourQuestion& question) {
  const auto& [source, destination, sample] = question;
  const ColourSample result =
      withCleanEnds(destination, withinRange(destination, carry(source, sample, destination)));
  const ColourSample back = withinRange(source, carry(destination, result, source));
  return {result, difference(measure(source, sample), measure(source, back)) <= kVisible};
}

ColourSample ColourConversion::carry(ColourSpace source, const ColourSample& sample,
                                     ColourSpace destination) {
  const bool inks = source == ColourSpace::CMYK || destination == ColourSpace::CMYK;
  if (inks && !transforms_.hasCmykProfile()) return carryPlain(source, sample, destination);
  return transforms_.convert(source, sample, destination);
}

// Plain inks are known in RGB only: other spaces are reached through it.
ColourSample ColourConversion::carryPlain(ColourSpace source, const ColourSample& sample,
                                          ColourSpace destination) {
  if (source == ColourSpace::CMYK) {
    const ColourSample rgb = rgbOfInk(sample);
    return destination == ColourSpace::RGB ? rgb : transforms_.convert(ColourSpace::RGB, rgb, destination);
  }
  if (source == ColourSpace::RGB) return inkOfRgb(sample);
  return inkOfRgb(withinRange(ColourSpace::RGB, transforms_.convert(source, sample, ColourSpace::RGB)));
}

ColourSample ColourConversion::measure(ColourSpace space, const ColourSample& sample) {
  if (space != ColourSpace::CMYK || transforms_.hasCmykProfile()) return transforms_.measure(space, sample);
  return transforms_.measure(ColourSpace::RGB, rgbOfInk(sample));
}

}  // namespace host
