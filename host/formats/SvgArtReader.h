// The walk through a file's elements that makes the document's art.
#pragma once

#include <optional>
#include <string>

#include "SvgBodies.h"
#include "SvgClips.h"
#include "SvgLayerPlan.h"
#include "SvgOutline.h"
#include "SvgReading.h"
#include "SvgTexts.h"

namespace host {

class SvgArtReader {
 public:
  explicit SvgArtReader(SvgReading& reading);

  // All layers with their art. The last one, which is the top one, becomes the current layer.
  void readLayers();

 private:
  void readLayer(const SvgLayerPlan& plan);
  std::optional<std::string> stepOfLayer(NodeIndex element);
  SvgContext contextInside(NodeIndex element, const SvgDeclaredValues& declared, const SvgContext& outer);
  void readChildren(NodeIndex element, const SvgContext& context, ArtId parent);
  // `chosen` is false for a child of a <switch> that is not the one to show.
  void readElement(NodeIndex element, const SvgContext& outer, ArtId parent, bool chosen = true);
  void readContainer(NodeIndex element, SvgElementKind kind, const SvgContext& outer, ArtId parent,
                     bool chosen);
  void readSwitch(NodeIndex element, const SvgContext& context, ArtId parent);
  ClipPointer readNested(NodeIndex element, const SvgContext& context, ArtId parent);
  void readLeaf(NodeIndex element, SvgElementKind kind, const SvgContext& outer, ArtId parent, bool chosen);
  void readShape(NodeIndex element, const SvgDeclaredValues& declared, const SvgContext& context, Art art,
                 ArtId parent);
  void readBody(NodeIndex element, SvgElementKind kind, const SvgDeclaredValues& declared,
                const SvgContext& context, Art art, ArtId parent);
  bool isEmptyPath(NodeIndex element) const;
  void addPaths(NodeIndex element, std::vector<PathGeometry> paths, Art art, ArtId parent);
  ArtId addArt(const Art& art, ArtId parent);
  Art artOf(NodeIndex element, AIArtType type, const SvgContext& context, bool chosen);
  // The clip of a group whose content lies in `group` already.
  ClipPointer clipOfGroup(NodeIndex element, const SvgContext& context, ArtId group);

  SvgReading& reading_;
  const SvgSource& source_;
  Document& document_;
  SvgTexts texts_;
  SvgClips clips_;
  SvgBodies bodies_;
  SvgOutline outline_;
};

}  // namespace host
