// How the host's objects look from outside: opaque handles that name an object without being its address.
//
// A handle packs what it names (kind), whose it is (the document's serial, never used twice; 0 is the
// host itself) and which one (an id, never used twice in one document). So a null, stale or foreign
// handle is told by looking it up, and nothing is ever dereferenced.
#pragma once

#include <cstdint>

namespace host {

enum class HandleKind : std::uint8_t {
  Art = 1,
  Layer,
  Document,
  View,
  Hit,
  Swatch,
  SwatchGroup,
  CustomColor,
  PaintServer,
  MenuItem,
  MenuGroup,
  Notifier,
  Tool,
  Annotator,
  Plugin,
  PluginAccess,
  File,
  UnicodeString,
  FilePath,
  ArtboardList,
  ArtboardProperties,
  ResourceManager,
  DataFilter,
  AnnotatorDrawer,
  AppContext,
  Panel,
  PanelFlyoutMenu
};

using ObjectId = std::uint32_t;  // 0 names nothing

template <typename Handle>
Handle makeHandle(HandleKind kind, std::uint32_t serial, ObjectId id) {
  if (id == 0) return nullptr;
  const std::uint64_t bits =
      (std::uint64_t{static_cast<std::uint8_t>(kind)} << 56) | (std::uint64_t{serial & 0xFFFFFFU} << 32) | id;
  return reinterpret_cast<Handle>(static_cast<std::uintptr_t>(bits));
}

// The id behind a handle; 0 if it is null, of another kind or of another owner.
template <typename Handle>
ObjectId idOfHandle(Handle handle, HandleKind kind, std::uint32_t serial) {
  const auto bits = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(handle));
  const bool same = (bits >> 56) == static_cast<std::uint8_t>(kind) && ((bits >> 32) & 0xFFFFFFU) == serial;
  return same ? static_cast<ObjectId>(bits) : 0;
}

}  // namespace host
