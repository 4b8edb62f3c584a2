#include "AISwatchList.h"

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

AISwatchRef swatchHandle(const Document& document, SwatchId id) {
  return makeHandle<AISwatchRef>(HandleKind::Swatch, document.serial(), id);
}

AIErr countSwatches(Host& host, AISwatchListRef list, std::int32_t* count) {
  if (list != nullptr || count == nullptr) return kBadParameterErr;
  const Document* document = host.currentDocument();
  if (document == nullptr) return kNoDocumentErr;
  *count = static_cast<std::int32_t>(document->state().swatches.size());
  return kNoErr;
}

AISwatchRef getNthSwatch(Host& host, AISwatchListRef list, std::int32_t index) {
  const Document* document = host.currentDocument();
  if (list != nullptr || document == nullptr || index < 0) return nullptr;
  const auto& swatches = document->state().swatches;
  const auto position = static_cast<std::size_t>(index);
  return position < swatches.size() ? swatchHandle(*document, swatches[position]) : nullptr;
}

AISwatchRef getSwatchByNameAndType(Host& host, AISwatchListRef list, AIUnicodeStringHandle name,
                                   AIColorTag type) {
  const Document* document = host.currentDocument();
  const HostString* text = findString(host, name);
  if (list != nullptr || document == nullptr || text == nullptr) return nullptr;
  for (const SwatchId id : document->state().swatches) {
    const Swatch* swatch = document->swatch(id);
    if (swatch != nullptr && swatch->color.kind == type && swatch->name == text->text()) {
      return swatchHandle(*document, id);
    }
  }
  return nullptr;
}

AIErr getAIColor(Host& host, AISwatchRef swatch, AIColor* color) {
  const auto found = findSwatch(host, swatch);
  if (!found || color == nullptr) return kBadParameterErr;
  *color = found->color;
  return kNoErr;
}

AIErr getSwatchName(Host& host, AISwatchRef swatch, AIUnicodeStringHandle name) {
  const auto found = findSwatch(host, swatch);
  return found ? writeString(host, name, found->name) : kBadParameterErr;
}

AIErr setSwatchName(Host& host, AISwatchRef swatch, AIUnicodeStringHandle name) {
  const auto found = findSwatch(host, swatch);
  const HostString* text = findString(host, name);
  if (!found || text == nullptr) return kBadParameterErr;
  if (found->name != text->text()) found.document->editSwatch(found.id).name = text->text();
  return kNoErr;
}

}  // namespace

SuiteOffer swatchListSuite() {
  SuiteEntries entries(kAISwatchListSuite);
  static const AISwatchListSuite table{
      entries.add<countSwatches>("CountSwatches"),
      entries.add<getNthSwatch>("GetNthSwatch"),
      entries.add<getSwatchByNameAndType>("GetSwatchByNameAndType"),
      entries.add<getAIColor>("GetAIColor"),
      entries.add<getSwatchName>("GetSwatchName"),
      entries.add<setSwatchName>("SetSwatchName"),
  };
  return entries.offer(kAISwatchListSuiteVersion, &table);
}

}  // namespace host
