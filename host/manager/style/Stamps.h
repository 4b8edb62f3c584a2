// Small pictures of shapes that are painted again and again: rounded corners cost more to fill than to copy.
#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>
#include <functional>

class QPainter;

namespace host::look {

// Whether a copy lands on whole pixels of what the painter paints on.
bool takesStamps(const QPainter& painter);

// `key` tells everything that the drawing depends on but the size and the resolution. Kept by QPixmapCache.
QPixmap stamp(const QPainter& onto, const QString& key, const QSize& size,
              const std::function<void(QPainter&)>& draw);

}  // namespace host::look
