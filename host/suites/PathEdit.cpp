#include "PathEdit.h"

namespace host {
namespace {

std::shared_ptr<const PathGeometry> placeholder() {
  static const auto empty = std::make_shared<const PathGeometry>();
  return empty;
}

}  // namespace

PathEdit::PathEdit(Document& document, ArtId path, std::weak_ptr<PathGeometry>& last)
    : document_(document), path_(path), last_(last), geometry_(last.lock()) {
  const std::shared_ptr<const PathGeometry>& current = document.art(path)->path;
  if (geometry_ == current) {
    document.setPath(path, placeholder());  // undo holds the geometry now, if it has to
    if (geometry_.use_count() == 1) return;
    document.setPath(path, geometry_);
  }
  geometry_ = std::make_shared<PathGeometry>(*document.art(path)->path);
}

PathEdit::~PathEdit() {
  last_ = geometry_;
  document_.setPath(path_, std::move(geometry_));
}

}  // namespace host
