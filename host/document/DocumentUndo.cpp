// Steps, and how they are undone and redone.
#include <utility>

#include "Document.h"

namespace host {

void Document::startRecording() {
  art_.setRecording(true);
  layers_.setRecording(true);
  swatches_.setRecording(true);
  swatchGroups_.setRecording(true);
  customColors_.setRecording(true);
  state_.setRecording(true);
}

void Document::touch() {
  ++revision_;
  if (!selectionBefore_) selectionBefore_ = selection_.snapshot();
}

void Document::closeOpenStep(std::string name) {
  DocumentStep step;
  step.name = std::move(name);
  step.art = art_.takeChanges();
  step.layers = layers_.takeChanges();
  step.swatches = swatches_.takeChanges();
  step.swatchGroups = swatchGroups_.takeChanges();
  step.customColors = customColors_.takeChanges();
  step.state = state_.takeChanges();
  step.selectionBefore = std::exchange(selectionBefore_, nullptr);
  if (step.empty()) return;
  step.selectionAfter = selection_.snapshot();
  if (!step.selectionBefore) step.selectionBefore = step.selectionAfter;
  step.mark = ++stepsMade_;
  undone_.clear();
  done_.push_back(std::move(step));
}

void Document::beginStep(std::string name) {
  if (stepDepth_++ > 0) return;
  closeOpenStep("Change");
  stepName_ = std::move(name);
  selectionBefore_ = selection_.snapshot();
}

void Document::endStep() {
  if (stepDepth_ == 0 || --stepDepth_ > 0) return;
  closeOpenStep(std::move(stepName_));
}

void Document::exchange(DocumentStep& step) {
  touch();
  art_.exchange(step.art);
  layers_.exchange(step.layers);
  swatches_.exchange(step.swatches);
  swatchGroups_.exchange(step.swatchGroups);
  customColors_.exchange(step.customColors);
  state_.exchange(step.state);
}

bool Document::undo() {
  if (stepDepth_ > 0) return false;
  closeOpenStep("Change");
  if (done_.empty()) return false;
  DocumentStep step = std::move(done_.back());
  done_.pop_back();
  exchange(step);
  selection_.restore(step.selectionBefore);
  undone_.push_back(std::move(step));
  return true;
}

bool Document::redo() {
  if (stepDepth_ > 0) return false;
  closeOpenStep("Change");
  if (undone_.empty()) return false;
  DocumentStep step = std::move(undone_.back());
  undone_.pop_back();
  exchange(step);
  selection_.restore(step.selectionAfter);
  done_.push_back(std::move(step));
  return true;
}

std::string Document::undoName() const {
  return done_.empty() ? std::string() : done_.back().name;
}

std::string Document::redoName() const {
  return undone_.empty() ? std::string() : undone_.back().name;
}

std::size_t Document::undoCount() const {
  return done_.size();
}

std::uint64_t Document::stateMark() const {
  return done_.empty() ? 0 : done_.back().mark;
}

}  // namespace host
