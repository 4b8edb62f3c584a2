// The layers of a document as optional content groups.
#pragma once

#include <map>
#include <qpdf/QPDF.hh>
#include <string>
#include <vector>

#include "Document.h"

namespace host {

class PdfChoice;

class PdfLayers {
 public:
  // Puts the groups of the chosen layers into the catalog, in the document's order and state.
  PdfLayers(QPDF& pdf, const Document& document, const PdfChoice& choice);

  // The operator that begins the content of a layer; "EMC" ends it.
  std::string begin(LayerId layer) const;
  // /Properties of a page's resources.
  QPDFObjectHandle resources() const;

 private:
  std::map<LayerId, QPDFObjectHandle> groups_;
};

}  // namespace host
