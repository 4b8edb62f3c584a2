// The drawer that goes with a message to an annotator.
#pragma once

#include "AITypes.h"

namespace host {

class AnnotationCanvas;
class Host;

// Draws on `canvas` from construction to destruction; what a plug-in keeps of it names nothing afterwards.
class MessageDrawer {
 public:
  MessageDrawer(Host& host, AnnotationCanvas& canvas);
  MessageDrawer(const MessageDrawer&) = delete;
  MessageDrawer& operator=(const MessageDrawer&) = delete;
  ~MessageDrawer();

  AIAnnotatorDrawer* handle() const { return handle_; }

 private:
  Host& host_;
  AIAnnotatorDrawer* const handle_;
};

}  // namespace host
