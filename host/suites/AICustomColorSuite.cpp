#include "AICustomColor.h"

#include <cmath>

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

bool isFinite(const AICustomColor& color) {
  const AICustomColorUnion& c = color.c;
  switch (color.kind) {
    case kCustomFourColor:
      return std::isfinite(c.f.cyan + c.f.magenta + c.f.yellow + c.f.black);
    case kCustomThreeColor:
      return std::isfinite(c.rgb.red + c.rgb.green + c.rgb.blue);
    case kCustomLabColor:
      return std::isfinite(c.lab.l + c.lab.a + c.lab.b);
  }
  return false;
}

AIErr newCustomColor(Host& host, const AICustomColor* definition, AIUnicodeStringHandle name,
                     AICustomColorHandle* color) {
  const HostString* text = findString(host, name);
  if (definition == nullptr || text == nullptr || color == nullptr || !isFinite(*definition)) {
    return kBadParameterErr;
  }
  Document* document = host.currentDocument();
  if (document == nullptr) return kNoDocumentErr;
  if (document->customColorByName(text->text()) != 0) return kBadParameterErr;
  const CustomColorId id = document->addCustomColor(text->text(), *definition);
  *color = makeHandle<AICustomColorHandle>(HandleKind::CustomColor, document->serial(), id);
  return kNoErr;
}

AIErr getCustomColor(Host& host, AICustomColorHandle color, AICustomColor* definition) {
  const auto found = findCustomColor(host, color);
  if (!found || definition == nullptr) return kBadParameterErr;
  *definition = found->definition;
  return kNoErr;
}

AIErr getCustomColorName(Host& host, AICustomColorHandle color, AIUnicodeStringHandle name) {
  const auto found = findCustomColor(host, color);
  return found ? writeString(host, name, found->name) : kBadParameterErr;
}

AIErr isValid(Host& host, AICustomColorHandle color, AIBoolean* answer) {
  if (answer == nullptr) return kBadParameterErr;
  const auto found = findCustomColor(host, color);
  *answer = found && found.document == host.currentDocument() ? 1 : 0;
  return kNoErr;
}

}  // namespace

SuiteOffer customColorSuite() {
  SuiteEntries entries(kAICustomColorSuite);
  static const AICustomColorSuite table{
      entries.add<newCustomColor>("NewCustomColor"),
      entries.add<getCustomColor>("GetCustomColor"),
      entries.add<getCustomColorName>("GetCustomColorName"),
      entries.add<isValid>("IsValid"),
  };
  return entries.offer(kAICustomColorSuiteVersion, &table);
}

}  // namespace host
