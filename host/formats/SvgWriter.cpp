#include "SvgArtWriter.h"
#include "SvgDrawing.h"
#include "SvgHostText.h"
#include "SvgLayerWriter.h"
#include "SvgWriting.h"
#include "SvgXmlText.h"

namespace host {
namespace {

std::string blockText(const SvgWriting& writing, const std::string& elementName, const std::string& lineBreak,
                      const std::string& indent) {
  const std::string prefix = elementName.substr(0, elementName.find(':'));
  return swatchesText(writing.document, prefix, lineBreak, lineBreak.empty() ? std::string() : indent);
}

// The block with the declaration of its prefix, if the root element doesn't declare it.
SvgNewContent newBlock(SvgWriting& writing, NodeIndex inside, const std::string& lineBreak,
                       const std::string& indent) {
  const SvgScope scope = writing.prefixes.newScope();
  const std::string name = writing.prefixes.name(inside, XmlNamespace::Host, "swatches", scope);
  const std::string text = blockText(writing, name, lineBreak, indent);
  const std::size_t nameEnd = 1 + name.size();
  SvgNewContent content;
  content.add(text.substr(0, nameEnd));
  content.addDeclarations(scope);
  content.add(text.substr(nameEnd));
  return content;
}

// Anew as a whole: a declaration of its prefix that the old one has goes with it.
void replaceSwatches(SvgWriting& writing, NodeIndex block) {
  if (swatchesText(writing.document).empty()) return writing.plan.cut(block);
  const SvgNode& node = writing.source.node(block);
  const std::string lineBreak = writing.layout.breakBefore(node.begin);
  writing.plan.replace(node.begin, node.end,
                       newBlock(writing, node.parent, lineBreak, writing.layout.indent(node.parent)));
}

NodeIndex metadataOf(const SvgSource& source) {
  NodeIndex child = source.node(source.root()).firstChild;
  while (child != 0 && !(source.is(child, "metadata") && source.node(child).editable)) {
    child = source.node(child).nextSibling;
  }
  return child;
}

void insertSwatches(SvgWriting& writing) {
  const NodeIndex root = writing.source.root();
  if (const NodeIndex metadata = metadataOf(writing.source)) {
    const SvgSpot spot = writing.inserter.inside(metadata);
    writing.inserter.insert(spot, newBlock(writing, metadata, spot.lineBreak, spot.indent));
    return;
  }
  const SvgSpot spot = writing.inserter.inFront(root);
  const std::string inner = spot.lineBreak.empty() ? std::string() : spot.lineBreak + spot.indent;
  const std::string name = writing.prefixes.elementName(root, "metadata");
  SvgNewContent content;
  content.add("<" + name + ">" + inner);
  content.add(newBlock(writing, root, inner, spot.indent));
  content.add(spot.lineBreak + "</" + name + ">");
  writing.inserter.insert(spot, content);
}

void writeSwatches(SvgWriting& writing) {
  const std::string now = swatchesText(writing.document);
  if (now == writing.drawing.originalSwatchesText) return;
  const NodeIndex block = swatchesNode(writing.source);
  if (block != 0) {
    if (writing.canEdit(block)) replaceSwatches(writing, block);
  } else if (!now.empty()) {
    insertSwatches(writing);
  }
}

// The file with its edits; empty if an element out of an entity was in the way.
std::string written(SvgWriting& writing) {
  SvgArtWriter arts(writing);
  arts.cutLost();
  SvgLayerWriter(writing, arts).write();
  writeSwatches(writing);
  writing.inserter.finish();
  SvgNewContent declarations;
  declarations.addDeclarations(kRootScope);
  writing.plan.insert(writing.source.attributeInsertion(writing.source.root()), declarations);
  return writing.metEntity ? std::string() : writing.plan.apply(writing.prefixes);
}

}  // namespace

std::string writeSvg(const SvgDrawing& drawing) {
  SvgWriting writing(drawing, *drawing.source);
  std::string text = written(writing);
  if (!writing.metEntity) return text;
  const std::unique_ptr<SvgSource> expanded = drawing.source->withEntitiesExpanded();
  if (!expanded) return drawing.source->bytes();
  SvgWriting again(drawing, *expanded);
  return written(again);
}

}  // namespace host
