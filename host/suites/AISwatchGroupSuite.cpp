#include "AISwatchGroup.h"

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

AISwatchGroupRef groupHandle(const Document& document, SwatchGroupId id) {
  return makeHandle<AISwatchGroupRef>(HandleKind::SwatchGroup, document.serial(), id);
}

AISwatchGroupRef getGroupByName(Host& host, AISwatchListRef list, AIUnicodeStringHandle name) {
  const Document* document = host.currentDocument();
  const HostString* text = findString(host, name);
  if (list != nullptr || document == nullptr || text == nullptr) return nullptr;
  for (const SwatchGroupId id : document->state().swatchGroups) {
    const SwatchGroup* group = document->swatchGroup(id);
    if (group != nullptr && group->name == text->text()) return groupHandle(*document, id);
  }
  return nullptr;
}

AISwatchGroupRef newGroup(Host& host, AISwatchListRef list, std::int32_t kind, std::int32_t position) {
  Document* document = host.currentDocument();
  if (list != nullptr || document == nullptr || position < -1) return nullptr;
  const auto groups = document->state().swatchGroups.size();
  if (position > 0 && static_cast<std::size_t>(position) > groups) return nullptr;
  const SwatchGroupId id = document->addSwatchGroup(position);
  if (kind != kAISwatchGroupKindPlain) document->editSwatchGroup(id).kind = kind;
  return groupHandle(*document, id);
}

AIErr setGroupName(Host& host, AISwatchGroupRef group, AIUnicodeStringHandle name) {
  const auto found = findSwatchGroup(host, group);
  const HostString* text = findString(host, name);
  if (!found || text == nullptr) return kBadParameterErr;
  if (found->name != text->text()) found.document->editSwatchGroup(found.id).name = text->text();
  return kNoErr;
}

AISwatchRef addSwatch(Host& host, AISwatchGroupRef group, const AIColor* color, std::int32_t options) {
  const auto found = findSwatchGroup(host, group);
  if (!found || color == nullptr || options != 0 || !isColorOf(*found.document, *color)) return nullptr;
  std::string name;
  if (color->kind == kCustomColor) name = findCustomColor(host, color->c.c.color)->name;
  const SwatchId id = found.document->addSwatch(found.id, *color, std::move(name));
  return makeHandle<AISwatchRef>(HandleKind::Swatch, found.document->serial(), id);
}

}  // namespace

SuiteOffer swatchGroupSuite() {
  SuiteEntries entries(kAISwatchGroupSuite);
  static const AISwatchGroupSuite table{
      entries.add<getGroupByName>("GetGroupByName"),
      entries.add<newGroup>("NewGroup"),
      entries.add<setGroupName>("SetGroupName"),
      entries.add<addSwatch>("AddSwatch"),
  };
  return entries.offer(kAISwatchGroupSuiteVersion, &table);
}

}  // namespace host
