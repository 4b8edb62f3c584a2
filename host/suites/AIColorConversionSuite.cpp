#include "AIColorConversion.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "ColourConversion.h"
#include "ColourProfileFiles.h"
#include "Entry.h"
#include "Suites.h"

namespace host {
namespace {

// For the profile folders that the environment names now. Finding a profile and preparing it takes
// longer than all conversions of a run, so it is kept for as long as those stay the same.
ColourConversion& conversion() {
  static std::string variables;
  static std::unique_ptr<ColourConversion> kept;
  std::string wanted = colourProfileVariables();
  if (!kept || variables != wanted) {
    kept = std::make_unique<ColourConversion>(colourProfileFolders());
    variables = std::move(wanted);
  }
  return *kept;
}

std::optional<ColourSpace> colourSpace(AIColorSpace space) {
  switch (space) {
    case kGraySpace:
      return ColourSpace::Gray;
    case kRGBSpace:
      return ColourSpace::RGB;
    case kCMYKSpace:
      return ColourSpace::CMYK;
    case kLabSpace:
      return ColourSpace::Lab;
  }
  return std::nullopt;
}

AIErr convertSample(Host&, AIColorSpace source, const AISampleComponent* sample, AIColorSpace destination,
                    AISampleComponent* result, AIConversionOptions options, AIBoolean* inGamut) {
  const auto from = colourSpace(source);
  const auto to = colourSpace(destination);
  if (!from || !to || sample == nullptr || result == nullptr || options != kDefaultConversion) {
    return kBadParameterErr;
  }
  ColourSample question{};
  for (std::size_t i = 0; i < componentCount(*from); ++i) {
    if (!std::isfinite(sample[i])) return kBadParameterErr;
    question[i] = static_cast<double>(sample[i]);
  }
  const ColourAnswer answer = conversion().convert(*from, question, *to);
  std::transform(answer.sample.begin(),
                 answer.sample.begin() + static_cast<std::ptrdiff_t>(componentCount(*to)), result,
                 [](double component) { return static_cast<AISampleComponent>(component); });
  if (inGamut != nullptr) *inGamut = answer.inGamut ? 1 : 0;
  return kNoErr;
}

}  // namespace

SuiteOffer colorConversionSuite() {
  SuiteEntries entries(kAIColorConversionSuite);
  static const AIColorConversionSuite table{entries.add<convertSample>("ConvertSample")};
  return entries.offer(kAIColorConversionSuiteVersion, &table);
}

}  // namespace host
