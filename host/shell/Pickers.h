// The host's dialogs for colours and paints, as its plug-ins ask for them.
#pragma once

#include "AIColor.h"

class QWidget;

namespace host {

class Host;

// From construction to destruction the host asks its user, and its interface has the scale of the window.
class Pickers {
 public:
  // Both must outlive this.
  Pickers(Host& host, const QWidget& window);
  Pickers(const Pickers&) = delete;
  Pickers& operator=(const Pickers&) = delete;
  ~Pickers();

 private:
  bool pickPaint(AISwatchRef first, AIColor& paint);

  Host& host_;
};

}  // namespace host
