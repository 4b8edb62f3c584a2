#include "AIPaintStyle.h"

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

// Can the paint be shown? Without a document those can't that refer to one.
bool isPaint(const Document* document, const AIColor& color) {
  static const Document none;
  return isColorOf(document == nullptr ? none : *document, color);
}

AIErr showColorPicker(Host& host, AISwatchRef swatch, AIColor* color, AIBoolean* accepted) {
  if (color == nullptr || accepted == nullptr) return kBadParameterErr;
  const Document* document = host.currentDocument();
  const auto first = findSwatch(host, swatch);
  const bool isOurs = swatch == nullptr || (first && first.document == document);
  if (!isOurs || !isPaint(document, *color)) return kBadParameterErr;
  *accepted = 0;
  if (!host.interactionAllowed || !host.pickPaint) return kNoErr;
  AIColor chosen = *color;
  if (!host.pickPaint(swatch, chosen)) return kNoErr;
  *color = chosen;
  *accepted = 1;
  return kNoErr;
}

}  // namespace

SuiteOffer paintStyleSuite() {
  SuiteEntries entries(kAIPaintStyleSuite);
  static const AIPaintStyleSuite table{entries.add<showColorPicker>("ShowColorPicker")};
  return entries.offer(kAIPaintStyleSuiteVersion, &table);
}

}  // namespace host
