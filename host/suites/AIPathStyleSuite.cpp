#include "AIPathStyle.h"

#include <cmath>

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

constexpr AIReal kDefaultMiterLimit = 4;

AIErr getPathStyle(Host& host, AIArtHandle handle, AIPathStyle* style) {
  const ArtRef path = findArt(host, handle);
  if (!path || style == nullptr) return kBadParameterErr;
  const AIPathStyle* found = path.document->styleOf(path.id);
  if (found == nullptr) return kWrongKindErr;
  *style = *found;
  return kNoErr;
}

bool isValid(const AIDashStyle& dash) {
  if (dash.length < 0 || dash.length > kMaxDashComponents || !std::isfinite(dash.offset)) return false;
  for (int i = 0; i < dash.length; ++i) {
    if (!std::isfinite(dash.array[i]) || dash.array[i] < 0) return false;
  }
  return true;
}

bool isValid(const AIStrokeStyle& stroke) {
  const bool knownCap = stroke.cap >= kAIButtCap && stroke.cap <= kAIProjectingCap;
  const bool knownJoin = stroke.join >= kAIMiterJoin && stroke.join <= kAIBevelJoin;
  return std::isfinite(stroke.width) && stroke.width >= 0 && std::isfinite(stroke.miterLimit) && knownCap &&
         knownJoin && isValid(stroke.dash);
}

bool isValid(const Document& document, const AIPathStyle& style) {
  return isValid(style.stroke) && isColorOf(document, style.fill.color) &&
         isColorOf(document, style.stroke.color);
}

AIErr setPathStyle(Host& host, AIArtHandle handle, const AIPathStyle* style) {
  const ArtRef path = findArt(host, handle);
  if (!path || style == nullptr) return kBadParameterErr;
  if (path.document->styleOf(path.id) == nullptr) return kWrongKindErr;
  if (!path.document->isEditable(path.id)) return kLayerLockedErr;
  if (!isValid(*path.document, *style)) return kBadParameterErr;
  auto kept = std::make_shared<AIPathStyle>(*style);
  if (kept->stroke.miterLimit < 1) kept->stroke.miterLimit = kDefaultMiterLimit;
  path.document->setStyle(path.id, std::move(kept));
  return kNoErr;
}

}  // namespace

SuiteOffer pathStyleSuite() {
  SuiteEntries entries(kAIPathStyleSuite);
  static const AIPathStyleSuite table{
      entries.add<getPathStyle>("GetPathStyle"),
      entries.add<setPathStyle>("SetPathStyle"),
  };
  return entries.offer(kAIPathStyleSuiteVersion, &table);
}

}  // namespace host
