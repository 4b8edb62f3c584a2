#include "PdfLayers.h"

#include <algorithm>

#include "PdfInks.h"

namespace host {
namespace {

// The groups of ISO 19593-1; those without types here carry none.
struct StepGroup {
  const char* name;
  std::vector<const char*> types;
};

const std::vector<StepGroup>& stepGroups() {
  static const std::vector<StepGroup> groups = {
      {"Structural",
       {"Cutting",
        "PartialCutting",
        "ReversePartialCutting",
        "Creasing",
        "ReverseCreasing",
        "CuttingCreasing",
        "ReverseCuttingCreasing",
        "PartialCuttingCreasing",
        "ReversePartialCuttingCreasing",
        "Drilling",
        "Gluing",
        "FoilStamping",
        "ColdFoilStamping",
        "Embossing",
        "Debossing",
        "Perforating",
        "Bleed",
        "VarnishFree",
        "InkFree",
        "InkVarnishFree",
        "Folding",
        "Punching",
        "Stapling"}},
      {"Positions", {"Hologram", "Barcode", "ContentArea", "CodingMarking", "Imprinting"}},
      {"Dimensions", {}},
      {"Braille", {}},
      {"Legend", {}},
      {"White", {}},
      {"Varnish", {}}};
  return groups;
}

QPDFObjectHandle metadataOf(const std::string& step) {
  const std::size_t slash = step.find('/');
  auto metadata = QPDFObjectHandle::newDictionary();
  metadata.replaceKey("/GTS_ProcStepsGroup", pdfName(step.substr(0, slash)));
  if (slash != std::string::npos) {
    metadata.replaceKey("/GTS_ProcStepsType", pdfName(step.substr(slash + 1)));
  }
  return metadata;
}

QPDFObjectHandle groupOf(const Layer& layer, const std::map<std::string, std::string>& steps) {
  auto group = QPDFObjectHandle::newDictionary();
  group.replaceKey("/Type", QPDFObjectHandle::newName("/OCG"));
  group.replaceKey("/Name", QPDFObjectHandle::newUnicodeString(layer.title));
  const auto step = steps.find(layer.title);
  if (step != steps.end()) group.replaceKey("/GTS_Metadata", metadataOf(step->second));
  return group;
}

}  // namespace

PdfLayers::PdfLayers(QPDF& pdf, const Document& document, const std::map<std::string, std::string>& steps) {
  auto all = QPDFObjectHandle::newArray();
  auto on = QPDFObjectHandle::newArray();
  auto off = QPDFObjectHandle::newArray();
  auto locked = QPDFObjectHandle::newArray();
  for (const LayerId id : document.state().layers) {
    const Layer& layer = *document.layer(id);
    const QPDFObjectHandle group = pdf.makeIndirectObject(groupOf(layer, steps));
    groups_.emplace(id, group);
    all.appendItem(group);
    (layer.visible ? on : off).appendItem(group);
    if (!layer.editable) locked.appendItem(group);
  }
  auto choice = QPDFObjectHandle::newDictionary();
  choice.replaceKey("/Name", QPDFObjectHandle::newUnicodeString("Layers"));
  choice.replaceKey("/BaseState", QPDFObjectHandle::newName("/ON"));
  choice.replaceKey("/Order", all.shallowCopy());
  choice.replaceKey("/ON", on);
  choice.replaceKey("/OFF", off);
  choice.replaceKey("/Locked", locked);
  auto properties = QPDFObjectHandle::newDictionary();
  properties.replaceKey("/OCGs", all);
  properties.replaceKey("/D", choice);
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

std::vector<std::string> processingSteps() {
  std::vector<std::string> steps;
  for (const StepGroup& group : stepGroups()) {
    if (group.types.empty()) steps.emplace_back(group.name);
    for (const char* type : group.types) steps.push_back(std::string(group.name) + "/" + type);
  }
  return steps;
}

bool isProcessingStep(const std::string& step) {
  const std::vector<std::string> known = processingSteps();
  return std::find(known.begin(), known.end(), step) != known.end();
}

}  // namespace host
