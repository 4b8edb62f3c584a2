// The document: layers, art, swatches and artboards, with undo.
//
// Coordinates are document units, y up, origin at the lower left corner of the first artboard. Every
// change goes through an operation here, and belongs to the open step. The document knows nothing of
// the file format it came from but the SourceIds its reader left in the records.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "AIDocument.h"
#include "DocumentState.h"
#include "DocumentStep.h"
#include "ObjectTable.h"
#include "Selection.h"

namespace host {

class Document {
 public:
  Document();
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;
  ~Document();

  std::uint32_t serial() const { return serial_; }  // no two documents of a process share one
  double scale() const { return scale_; }           // points in a document unit
  void setScale(double pointsPerUnit) { scale_ = pointsPerUnit; }
  AIRulerUnits rulerUnits() const { return rulerUnits_; }
  void setRulerUnits(AIRulerUnits units) { rulerUnits_ = units; }

  // --- reading ---
  const Art* art(ArtId id) const { return art_.find(id); }  // null if there is none or it was deleted
  const Layer* layer(LayerId id) const { return layers_.find(id); }
  const Swatch* swatch(SwatchId id) const { return swatches_.find(id); }
  const SwatchGroup* swatchGroup(SwatchGroupId id) const { return swatchGroups_.find(id); }
  const CustomColor* customColor(CustomColorId id) const { return customColors_.find(id); }
  const PaintServer* paintServer(ObjectId id) const;
  const DocumentState& state() const { return state_[1]; }
  std::size_t artSlots() const { return art_.size(); }  // ids run from 1 to this; some may be dead

  // Every record there ever was, dead ones too, for comparing with the file.
  const Art& artRecord(ArtId id) const { return art_[id]; }
  const Layer& layerRecord(LayerId id) const { return layers_[id]; }
  std::size_t layerSlots() const { return layers_.size(); }

  LayerId layerOfArt(ArtId id) const;
  // Neither locked nor hidden: the layer, the art itself and every group it lies in.
  bool isEditable(ArtId id) const;
  bool isWithin(ArtId art, ArtId ancestor) const;  // also for art == ancestor
  // The style that paints this path or compound path; null for other art.
  const AIPathStyle* styleOf(ArtId id) const;
  CustomColorId customColorByName(std::string_view name) const;  // 0 if there is none
  // Any change of art, layers or artboards makes it another; a change of the selection does not.
  std::uint64_t revision() const { return revision_; }

  // --- what is selected ---
  // Selecting is no edit: it makes no step and no other stateMark(). Undo brings back what was selected as
  // the step began, redo what was as it ended.
  std::uint64_t selectionRevision() const { return selection_.revision(); }
  // In no order: never groups, nor paths inside a compound path, nor what is dead.
  std::vector<ArtId> selection() const { return selection_.members(); }
  std::size_t selectedCount() const { return selection_.members().size(); }
  bool isSelected(ArtId id) const { return selection_.has(id); }
  // Is the art selected, or something inside it, or the compound path that it is a part of?
  bool holdsSelected(ArtId id) const;
  // A group stands for all it holds, a path inside a compound path for the whole. Locked and hidden art is
  // for the caller to leave out.
  void setSelected(ArtId id, bool selected);
  void deselectAll() { selection_.clear(); }

  // --- changing art ---
  // A null `reference` goes with kPlaceAboveAll and kPlaceBelowAll, which mean the current layer. The new
  // art is empty; a path or compound path gets an unpainted style. Nullopt if `reference` can't hold it.
  std::optional<ArtId> newArt(AIArtType type, AIPaintOrder order, ArtId reference);
  bool moveArt(ArtId id, AIPaintOrder order, ArtId reference);  // false if it can't go there
  void deleteArt(ArtId id);                                     // with all it holds; not for root groups
  void setPath(ArtId id, std::shared_ptr<const PathGeometry> path);
  void setStyle(ArtId id, std::shared_ptr<const AIPathStyle> style);  // also through a path in a compound
  void setName(ArtId id, std::string name);
  // For readers: fills what the record of a fresh art holds beside its place in the tree.
  void initialiseArt(ArtId id, const Art& content);

  // --- changing layers ---
  LayerId insertLayer(LayerId reference, AIPaintOrder order);
  void deleteLayer(LayerId id);  // with its art
  Layer& editLayer(LayerId id);  // the reference ends with the next change; leave `root` alone
  DocumentState& editState();
  // Choices of the user, which are no edits either. Undo of a step that changed the list that one is chosen
  // from brings back the choice there was.
  void setCurrentLayer(LayerId id) { state_.amend(1).currentLayer = id; }
  void setActiveArtboard(std::size_t index) { state_.amend(1).activeArtboard = index; }

  // --- colours ---
  CustomColorId addCustomColor(std::string name, const AICustomColor& definition);
  SwatchGroupId addSwatchGroup(std::int32_t position);  // -1: at the end
  SwatchGroup& editSwatchGroup(SwatchGroupId id) { return swatchGroups_.edit(id); }
  SwatchId addSwatch(SwatchGroupId group, const AIColor& color, std::string name);
  Swatch& editSwatch(SwatchId id) { return swatches_.edit(id); }
  ObjectId addPaintServer(PaintServer server);  // not undone: a server nobody uses does no harm

  // --- undo ---
  // Steps nest; the outermost names it. A step in which nothing changed leaves no trace. Changes outside
  // any step become a step of their own when the next one begins.
  void beginStep(std::string name);
  void endStep();
  bool undo();  // false if there is nothing to undo, or a step is open
  bool redo();
  std::string undoName() const;  // empty if there is nothing to undo
  std::string redoName() const;
  std::size_t undoCount() const;
  // Names what the document holds: different after any step, and the same again when it was undone.
  std::uint64_t stateMark() const;
  // From here on changes are kept for undo. A reader fills the document before.
  void startRecording();

 private:
  // Which art, by id, has selected art inside, as it stood at these revisions.
  struct Holders {
    std::uint64_t revision = 0;
    std::uint64_t selectionRevision = 0;
    std::vector<bool> holds;
  };

  void link(ArtId id, ArtId parent, ArtId above);
  void unlink(ArtId id);
  void killSubtree(ArtId id);
  void touch();  // before any change of art, layers or artboards
  void setLeavesSelected(ArtId top, bool selected);
  const std::vector<bool>& selectionHolders() const;
  void closeOpenStep(std::string name);
  void exchange(DocumentStep& step);

  std::uint32_t serial_;
  double scale_ = 1.0;
  AIRulerUnits rulerUnits_ = kPointRuler;
  std::uint64_t revision_ = 1;
  ObjectTable<Art> art_;
  ObjectTable<Layer> layers_;
  ObjectTable<Swatch> swatches_;
  ObjectTable<SwatchGroup> swatchGroups_;
  ObjectTable<CustomColor> customColors_;
  ObjectTable<DocumentState> state_;
  std::vector<PaintServer> paintServers_;
  std::vector<DocumentStep> done_;
  std::vector<DocumentStep> undone_;
  std::uint64_t stepsMade_ = 0;
  std::string stepName_;
  int stepDepth_ = 0;
  Selection selection_;
  Selection::Snapshot selectionBefore_;  // as the open step began; null if that was just now
  mutable Holders holders_;
};

}  // namespace host
