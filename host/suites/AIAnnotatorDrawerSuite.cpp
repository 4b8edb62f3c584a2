#include "AIAnnotatorDrawer.h"

#include <cmath>

#include "Entry.h"
#include "HostObjects.h"
#include "Suites.h"

namespace host {
namespace {

AIErr setColor(Host& host, AIAnnotatorDrawer* drawer, const AIRGBColor* color) {
  AnnotationDrawer* found = host.objects().drawers.find(drawer);
  if (found == nullptr || color == nullptr) return kBadParameterErr;
  found->pen.color = *color;
  return kNoErr;
}

AIErr setLineWidth(Host& host, AIAnnotatorDrawer* drawer, AIReal pixels) {
  AnnotationDrawer* found = host.objects().drawers.find(drawer);
  if (found == nullptr || !std::isfinite(pixels) || pixels <= 0) return kBadParameterErr;
  found->pen.lineWidth = pixels;
  return kNoErr;
}

AIErr drawRect(Host& host, AIAnnotatorDrawer* drawer, const AIRect* rect, AIBoolean fill) {
  const AnnotationDrawer* found = host.objects().drawers.find(drawer);
  if (found == nullptr || rect == nullptr) return kBadParameterErr;
  found->canvas->drawRect(covering(*rect), found->pen, fill != 0);
  return kNoErr;
}

}  // namespace

SuiteOffer annotatorDrawerSuite() {
  SuiteEntries entries(kAIAnnotatorDrawerSuite);
  static const AIAnnotatorDrawerSuite table{
      entries.add<setColor>("SetColor"),
      entries.add<setLineWidth>("SetLineWidth"),
      entries.add<drawRect>("DrawRect"),
  };
  return entries.offer(kAIAnnotatorDrawerSuiteVersion, &table);
}

}  // namespace host
