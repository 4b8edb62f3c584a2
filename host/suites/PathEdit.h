// A path's geometry while it is being changed.
#pragma once

#include <memory>

#include "Document.h"

namespace host {

// Takes the geometry of a path out of the document and puts it back when it ends. It is the object itself
// if nothing else holds it, as when a path grows segment by segment; else a copy.
class PathEdit {
 public:
  // `last` is what the last edit put back, whichever path that was; the caller keeps it between edits.
  PathEdit(Document& document, ArtId path, std::weak_ptr<PathGeometry>& last);
  PathEdit(const PathEdit&) = delete;
  PathEdit& operator=(const PathEdit&) = delete;
  ~PathEdit();

  PathGeometry* operator->() const { return geometry_.get(); }

 private:
  Document& document_;
  ArtId path_;
  std::weak_ptr<PathGeometry>& last_;
  std::shared_ptr<PathGeometry> geometry_;
};

}  // namespace host
