// The content of a page: an artboard with all art, layer by layer.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "PdfChoice.h"
#include "PdfGroups.h"
#include "PdfInks.h"
#include "PdfLayers.h"
#include "PdfPictures.h"
#include "PdfPlan.h"
#include "PdfStates.h"

namespace host {

// What all pages share.
struct PdfParts {
  const SvgDrawing& drawing;
  const PdfChoice& choice;
  const PdfPlan& plan;
  PdfLayers& layers;
  PdfInks& inks;
  PdfStates& states;
  PdfPictures& pictures;
  PdfGroups& groups;
};

// Where an artboard's page shows a point of the document, in units of the page: a point, or `userUnit`
// points.
AIRealMatrix pageFromDocument(const Document& document, std::size_t artboard, double userUnit);

// Its upper right corner, in units of the page; the lower left one is the origin.
AIRealPoint pageSize(const Document& document, std::size_t artboard, double userUnit);

class PdfPage {
 public:
  PdfPage(PdfParts& parts, std::size_t artboard, double userUnit);

  // The operators. Pictures and groups are asked for on the way and stand in it as "/P1 Do".
  std::string content();

 private:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  // What is being written: the page, or a group that fades as one.
  struct Stream {
    std::string text;
    std::set<std::string> objects;  // resource names of what it paints as a whole
    PdfState state;
    bool hasState = false;
    std::size_t lastPicture = kNone;  // at the end of the text, to be joined by the next
    PdfState lastState;               // of that picture
  };

  std::string paper() const;
  void addLayer(LayerId id);
  void addTree(ArtId root);
  bool enter(ArtId id);  // true if its children are to be gone through; then leave() follows
  void leave(ArtId id);
  void addLeaf(ArtId id);
  void addCompound(ArtId id);
  void addPicture(NodeIndex element, const PdfState& state, PdfRest rest = PdfRest::None);
  void addPath(ArtId id, const std::vector<const PathGeometry*>& paths);
  void addInked(ArtId id, const std::vector<const PathGeometry*>& paths, const AIPathStyle& style);
  void addBody(ArtId id, const Body& body);
  std::size_t clip(const Clip* clip);  // how many states were pushed
  void pop(std::size_t states);
  void beginGroup();
  void endGroup(ArtId id);
  // For what is drawn as a whole.
  PdfState wholeState(ArtId id, double opacity) const;
  void choose(const PdfState& state);
  bool isOnPage(ArtId id) const;

  PdfParts& parts_;
  const Document& document_;
  const std::size_t artboard_;
  const AIRealMatrix matrix_;
  const double scale_;  // page units in a document unit
  const AIRealPoint size_;
  LayerId layer_ = 0;
  bool mixesPaper_ = false;  // with what lies on it
  Stream out_;
  std::vector<Stream> round_;  // what the group being written lies in
};

}  // namespace host
