#include "MessageDrawer.h"

#include "Host.h"
#include "HostObjects.h"

namespace host {

MessageDrawer::MessageDrawer(Host& host, AnnotationCanvas& canvas)
    : host_(host), handle_(host.objects().drawers.make({&canvas, {}})) {}

MessageDrawer::~MessageDrawer() {
  host_.objects().drawers.dispose(handle_);
}

}  // namespace host
