// The layers of a document as optional content groups.
#pragma once

#include <map>
#include <qpdf/QPDF.hh>
#include <string>
#include <vector>

#include "Document.h"

namespace host {

class PdfLayers {
 public:
  // Puts the groups into the catalog, in the document's order and state. `steps`: see PdfOptions.
  PdfLayers(QPDF& pdf, const Document& document, const std::map<std::string, std::string>& steps);

  // The operator that begins the content of a layer; "EMC" ends it.
  std::string begin(LayerId layer) const;
  // /Properties of a page's resources.
  QPDFObjectHandle resources() const;

 private:
  std::map<LayerId, QPDFObjectHandle> groups_;
};

// Does a step say a known group and, where the group wants one, a known type: "Structural/Cutting", "Legend"?
bool isProcessingStep(const std::string& step);
// All that are known.
std::vector<std::string> processingSteps();

}  // namespace host
