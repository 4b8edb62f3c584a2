// The colours of a document in a PDF file.
#pragma once

#include <map>
#include <qpdf/QPDF.hh>
#include <string>

#include "Document.h"

namespace host {

// One Separation colour space for each plate that was asked for.
class PdfInks {
 public:
  // Both must outlive this.
  PdfInks(QPDF& pdf, const Document& document) : pdf_(pdf), document_(document) {}

  // The operators that choose a paint for strokes or for fills. A paint server, which has none, is black.
  std::string choose(const AIColor& color, bool forStroke);

  // /ColorSpace of the resources: all spaces that were chosen.
  QPDFObjectHandle resources() const;

 private:
  std::string chooseCustom(const AICustomColorStyle& paint, bool forStroke);
  std::string chooseLab(const AILabColorStyle& lab, bool forStroke);
  std::string spaceName(CustomColorId id);

  QPDF& pdf_;
  const Document& document_;
  std::map<CustomColorId, QPDFObjectHandle> spaces_;
  bool hasLab_ = false;
};

// A name of any bytes but 0; `name` is UTF-8.
QPDFObjectHandle pdfName(const std::string& name);

// "/CS1" and the like.
std::string pdfResource(const char* prefix, std::size_t number);

}  // namespace host
