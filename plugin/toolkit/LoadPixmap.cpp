#include "LoadPixmap.h"

#include <QByteArray>
#include <cmath>
#include <memory>
#include <utility>

#include "BrightnessMode.h"
#include "DecodePNG.h"
#include "LoadResource.h"
#include "MallocBytes.h"
#include "PixmapCache.h"
#include "QtManager.h"
#include "RenderSVG.h"
#include "ResourceID.h"
#include "ToolkitPlugin.h"

namespace qRVADM {
namespace {

constexpr int kDarkVariant = 1;  // of the manager library's pictures
constexpr int kDoubleVariant = 2;

struct PictureBytes {
  MallocBytes data;
  int size = 0;

  explicit operator bool() const { return size > 0; }
  QByteArray View() const { return QByteArray::fromRawData(data.get(), size); }  // no longer than this
};

// Keyed by version. Left standing at the end of the process: Qt's own cache may be gone by then.
PixmapCache<int>& PNGCache() {
  static auto* const cache = std::make_unique<PixmapCache<int>>().release();
  return *cache;
}

// Keyed by version and device pixel ratio.
PixmapCache<std::pair<int, double>>& SVGCache() {
  static auto* const cache = std::make_unique<PixmapCache<std::pair<int, double>>>().release();
  return *cache;
}

PictureBytes Load(int id) {
  char* data = nullptr;
  const int size = LoadResource(ToolkitPlugin(), id, &data);
  return {MallocBytes(data), size};
}

PictureBytes LoadShared(int id, bool dark, double& ratio) {
  int variant = (dark ? kDarkVariant : 0) + (ratio > 1.0 ? kDoubleVariant : 0);
  char* data = nullptr;
  const int size = RVADMQtManager::SharedResources::GetBuiltinResource(id, variant, data);
  PictureBytes bytes{MallocBytes(data), size};
  if (bytes && (variant & kDoubleVariant) == 0) ratio = 1.0;
  return bytes;
}

// Sets the ratio to that of what was found.
PictureBytes LoadBest(int id, int version, double& ratio) {
  PictureBytes bytes = Load(version);
  if (bytes || version == id) return bytes;
  if (ratio > 1.0) bytes = Load(id + kDoubleResolution);
  if (bytes) return bytes;
  bytes = Load(id);
  if (bytes) ratio = 1.0;
  return bytes;
}

template <typename Key>
QPixmap Keep(PixmapCache<Key>& cache, const Key& key, QPixmap pixmap, double ratio) {
  if (pixmap.isNull()) {
    cache.PutMissing(key);
  } else {
    pixmap.setDevicePixelRatio(ratio);
    cache.Put(key, pixmap);
  }
  return pixmap;
}

QPixmap LoadPNG(int id, bool dark, double ratio) {
  const int version = VersionOf(id, dark) + (ratio > 1.0 ? kDoubleResolution : 0);
  QPixmap known;
  if (PNGCache().Find(version, &known)) return known;
  PictureBytes bytes;
  if (IsShared(id)) bytes = LoadShared(id, dark, ratio);
  if (!bytes) bytes = LoadBest(id, version, ratio);
  return Keep(PNGCache(), version, bytes ? DecodePNG(bytes.View()) : QPixmap(), ratio);
}

QPixmap LoadSVG(int id, bool dark, double ratio) {
  const int version = VersionOf(id, dark);
  const std::pair<int, double> key(version, ratio);
  QPixmap known;
  if (SVGCache().Find(key, &known)) return known;
  PictureBytes bytes = Load(version);
  if (!bytes && version != id) bytes = Load(id);
  return Keep(SVGCache(), key, bytes ? RenderSVG(bytes.View(), ratio) : QPixmap(), ratio);
}

}  // namespace

QPixmap LoadPixmap(int id, int brightnessMode, double ratio) {
  if (!std::isfinite(ratio) || ratio <= 0) return {};
  const bool dark = HasVersions(id) && IsDark(brightnessMode);
  return IsSVG(id) ? LoadSVG(id, dark, ratio) : LoadPNG(id, dark, ratio);
}

}  // namespace qRVADM
