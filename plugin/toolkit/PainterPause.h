// Lets something else paint on a painter's device.
#pragma once

class QPaintDevice;
class QPainter;

namespace qRVADM {

// Ends the painter if it is active. Without a call of Resume it stays ended, so that what throws meanwhile
// leaves no active painter behind.
class PainterPause {
 public:
  explicit PainterPause(QPainter& painter);

  // Begins on the same device again, antialiased as before; the rest of the painter's state is lost. Nothing
  // if it was not active.
  void Resume();

 private:
  QPainter& painter;
  QPaintDevice* device;
  bool antialiasing;
};

}  // namespace qRVADM
