// The parts of a page that librsvg draws: as vectors, with text as text and images as they came.
#pragma once

#include <cstddef>
#include <map>
#include <qpdf/QPDF.hh>
#include <set>
#include <string>
#include <vector>

#include "PdfExport.h"
#include "PdfPlan.h"
#include "SvgDrawing.h"

namespace host {

class PdfPictures {
 public:
  // The drawing must outlive this.
  explicit PdfPictures(const SvgDrawing& drawing) : drawing_(drawing) {}

  // Asks for the elements, from the bottom up, as they show on an artboard; the number of the picture. One
  // that is asked for behind the other on the same page can join it: `add` to a picture instead. An element
  // is asked for either whole or, the same on all pages, for its rest, which has no opacity of its own.
  std::size_t request(std::size_t artboard, NodeIndex element, PdfRest rest = PdfRest::None);
  void add(std::size_t picture, NodeIndex element, PdfRest rest = PdfRest::None);
  // The element's opacity is seen to by the page: what lies in it is drawn as if it had none.
  void leaveOpacityOf(NodeIndex element) { unfaded_.insert(element); }

  // Draws all that was asked for: form objects by number, each as large as its page, origin at its lower left
  // corner, in points. Empty, or a clause on why not.
  std::string drawInto(QPDF& pdf, const std::filesystem::path& file,
                       std::vector<QPDFObjectHandle>& forms) const;

 private:
  struct Request {
    std::size_t artboard;
    std::vector<NodeIndex> elements;
  };

  const SvgDrawing& drawing_;
  std::vector<Request> requests_;
  std::map<NodeIndex, PdfRest> elements_;  // of all requests
  std::set<NodeIndex> unfaded_;
};

}  // namespace host
