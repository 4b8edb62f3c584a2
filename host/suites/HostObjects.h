// Objects that plug-ins make, own and dispose of: strings, paths, copies of artboard lists.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "AIDataFilter.h"
#include "AITypes.h"
#include "AnnotationCanvas.h"
#include "DocumentState.h"
#include "FlyoutMenu.h"
#include "Handles.h"
#include "HostString.h"

namespace host {

template <typename Handle, HandleKind kind, typename Value>
class OwnedObjects {
 public:
  // Null when no more ids are to be had.
  Handle make(Value value) {
    const Handle handle = makeHandle<Handle>(kind, 0, nextId());
    if (handle != nullptr) objects_.emplace(last_, std::move(value));
    return handle;
  }

  // Null for a handle that is null, stale or of another kind. The object stays where it is.
  Value* find(Handle handle) {
    const auto found = objects_.find(idOfHandle(handle, kind, 0));
    return found == objects_.end() ? nullptr : &found->second;
  }

  bool dispose(Handle handle) { return objects_.erase(idOfHandle(handle, kind, 0)) == 1; }

  std::size_t size() const { return objects_.size(); }

 private:
  static ObjectId nextId() { return last_ == ~ObjectId{0} ? 0 : ++last_; }

  // Goes on from one host to the next, so that what outlives a host names nothing in its successor.
  static inline ObjectId last_ = 0;
  std::unordered_map<ObjectId, Value> objects_;
};

struct ArtboardListCopy {
  std::vector<Artboard> artboards;
  std::size_t active = 0;
};

struct FilePathText {
  std::string text;  // absolute, UTF-8; may be empty
};

struct CursorResources {
  SPPluginRef plugin;
};

// What an annotator draws with next.
struct AnnotationDrawer {
  AnnotationCanvas* canvas;  // never null
  AnnotationPen pen;
};

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

struct DataFilter {
  std::string path;                            // absolute
  std::unique_ptr<std::FILE, CloseFile> file;  // null until the filter is linked
};

struct HostObjects {
  OwnedObjects<AIUnicodeStringHandle, HandleKind::UnicodeString, HostString> strings;
  OwnedObjects<AIFilePathHandle, HandleKind::FilePath, FilePathText> filePaths;
  OwnedObjects<AIArtboardListHandle, HandleKind::ArtboardList, ArtboardListCopy> artboardLists;
  OwnedObjects<AIArtboardPropertiesHandle, HandleKind::ArtboardProperties, Artboard> artboardProperties;
  OwnedObjects<AIResourceManagerHandle, HandleKind::ResourceManager, CursorResources> cursorResources;
  OwnedObjects<AIDataFilterHandle, HandleKind::DataFilter, DataFilter> dataFilters;
  OwnedObjects<AIAnnotatorDrawer*, HandleKind::AnnotatorDrawer, AnnotationDrawer> drawers;
  OwnedObjects<AIPanelFlyoutMenuRef, HandleKind::PanelFlyoutMenu, FlyoutMenu> flyoutMenus;
  std::weak_ptr<PathGeometry> lastPath;  // for PathEdit
};

}  // namespace host
