// What is known of pictures that were asked for: their place in Qt's pixmap cache, or that there is none.
#pragma once

#include <QPixmap>
#include <QPixmapCache>
#include <map>

namespace qRVADM {

template <typename Key>
class PixmapCache {
 public:
  static constexpr int kLargestKept = 128 * 128;  // pixels; Qt's cache is shared by all of the process

  // Is the picture known? Then `pixmap` is it, or null if it is missing. One that is not known is to be
  // loaded, for the first time or since Qt has dropped it.
  bool Find(const Key& key, QPixmap* pixmap) {
    const auto entry = entries.find(key);
    if (entry == entries.end()) return false;
    if (entry->second == QPixmapCache::Key()) {  // a key that Qt has dropped is not valid either
      *pixmap = QPixmap();
      return true;
    }
    if (QPixmapCache::find(entry->second, pixmap)) return true;
    entries.erase(entry);
    return false;
  }

  void PutMissing(const Key& key) { entries[key] = QPixmapCache::Key(); }

  void Put(const Key& key, const QPixmap& pixmap) {
    if (qint64{pixmap.width()} * pixmap.height() > kLargestKept) return;
    const QPixmapCache::Key kept = QPixmapCache::insert(pixmap);
    if (kept.isValid()) entries[key] = kept;  // Qt may have no room for it
  }

 private:
  std::map<Key, QPixmapCache::Key> entries;
};

}  // namespace qRVADM
