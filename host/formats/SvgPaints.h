// From styles to paints of the document.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "Document.h"
#include "SvgCascade.h"
#include "SvgPaintServers.h"
#include "SvgStylePool.h"

namespace host {

class SvgPaints {
 public:
  // `unitsPerPixel`: document units in a pixel of the page, for strokes that don't scale.
  SvgPaints(const SvgSource& source, const SvgCascade& cascade, SvgRemarks& remarks, Document& document,
            double unitsPerPixel);

  // How the element's own outlines look; `documentFromUser` scales the stroke. Equal styles are shared.
  std::shared_ptr<const AIPathStyle> pathStyle(NodeIndex element, const SvgStyle& style,
                                               const AIRealMatrix& documentFromUser);

  // Says so if a group names a custom colour, which is not handed down as plain paints are: it belongs to the
  // outlines that it is written on.
  void remarkGroup(NodeIndex group);

 private:
  // One of the two paints of a style and what goes with it.
  struct Side {
    std::string_view name;
    std::string_view hostAttribute;
    const SvgPaintValue& paint;
    double opacity;
  };
  // What a reference leads to.
  struct Server {
    SvgPaintServer look;
    AIColor color;  // of gradients and patterns
  };

  AIColor colour(NodeIndex element, const Side& side, const SvgStyle& style);
  AIColor plainColour(NodeIndex element, const Side& side, const SvgPaintValue& paint, const SvgStyle& style);
  AIColor serverColour(NodeIndex element, const Side& side, std::string_view reference,
                       const SvgStyle& style);
  const Server& server(std::string_view reference);
  ObjectId serverId(std::string_view reference, const SvgColour& fallback);
  AIColor withHostPaint(NodeIndex element, const Side& side, const AIColor& color);
  void setStroke(const SvgStyle& style, const AIRealMatrix& documentFromUser, AIStrokeStyle& stroke) const;

  const SvgSource& source_;
  const SvgCascade& cascade_;
  SvgRemarks& remarks_;
  Document& document_;
  double unitsPerPixel_;
  SvgStylePool pool_;
  std::unordered_map<std::string, ObjectId> serverIds_;   // by reference
  std::unordered_map<std::string_view, Server> servers_;  // by reference
};

}  // namespace host
