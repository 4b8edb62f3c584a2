// Small pictures of paints.
#pragma once

#include <QColor>
#include <QIcon>
#include <QWidget>

namespace host {

// What a chip shows: a colour, or none, which is white with a red stroke.
struct ChipPaint {
  QColor colour;
  bool isNone = false;
  bool isSpot = false;  // a white corner with a dot
};

// In every state of the row that it stands in. `size` in device-independent pixels.
QIcon chipIcon(const ChipPaint& paint, const QSize& size);

class PaintChip : public QWidget {
 public:
  explicit PaintChip(const QSize& size);

  void show(const ChipPaint& paint);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  ChipPaint paint_;
};

}  // namespace host
