#include "PdfLayers.h"

#include "PdfChoice.h"
#include "PdfInks.h"

namespace host {
namespace {

QPDFObjectHandle metadataOf(const std::string& step) {
  const std::size_t slash = step.find('/');
  auto metadata = QPDFObjectHandle::newDictionary();
  metadata.replaceKey("/GTS_ProcStepsGroup", pdfName(step.substr(0, slash)));
  if (slash != std::string::npos) {
    metadata.replaceKey("/GTS_ProcStepsType", pdfName(step.substr(slash + 1)));
  }
  return metadata;
}

QPDFObjectHandle groupOf(const Layer& layer, const std::string& step) {
  auto group = QPDFObjectHandle::newDictionary();
  group.replaceKey("/Type", QPDFObjectHandle::newName("/OCG"));
  group.replaceKey("/Name", QPDFObjectHandle::newUnicodeString(layer.title));
  if (!step.empty()) group.replaceKey("/GTS_Metadata", metadataOf(step));
  return group;
}

}  // namespace

PdfLayers::PdfLayers(QPDF& pdf, const Document& document, const PdfChoice& choice) {
  auto all = QPDFObjectHandle::newArray();
  auto on = QPDFObjectHandle::newArray();
  auto off = QPDFObjectHandle::newArray();
  auto locked = QPDFObjectHandle::newArray();
  for (const LayerId id : choice.layers()) {
    const Layer& layer = *document.layer(id);
    const QPDFObjectHandle group = pdf.makeIndirectObject(groupOf(layer, choice.stepOf(id)));
    groups_.emplace(id, group);
    all.appendItem(group);
    (layer.visible ? on : off).appendItem(group);
    if (!layer.editable) locked.appendItem(group);
  }
  auto defaults = QPDFObjectHandle::newDictionary();
  defaults.replaceKey("/Name", QPDFObjectHandle::newUnicodeString("Layers"));
  defaults.replaceKey("/BaseState", QPDFObjectHandle::newName("/ON"));
  defaults.replaceKey("/Order", all.shallowCopy());
  defaults.replaceKey("/ON", on);
  defaults.replaceKey("/OFF", off);
  defaults.replaceKey("/Locked", locked);
  auto properties = QPDFObjectHandle::newDictionary();
  properties.replaceKey("/OCGs", all);
  properties.replaceKey("/D", defaults);
  pdf.getRoot().replaceKey("/OCProperties", properties);
}

std::string PdfLayers::begin(LayerId layer) const {
  return "/OC " + pdfResource("L", layer) + " BDC\n";
}

QPDFObjectHandle PdfLayers::resources() const {
  auto dictionary = QPDFObjectHandle::newDictionary();
  for (const auto& [id, group] : groups_) dictionary.replaceKey(pdfResource("L", id), group);
  return dictionary;
}

}  // namespace host
