#include "AnnotatorMessages.h"

#include "AIAnnotator.h"
#include "Host.h"
#include "MessageDrawer.h"
#include "Session.h"

namespace host {
namespace {

// An annotator may be registered while another draws: the registry is gone through by number.
void sendToAll(Host& host, Session& session, const char* selector, const OpenDocument& open,
               AIAnnotatorDrawer* drawer) {
  // NOLINTNEXTLINE(modernize-loop-convert)
  for (std::size_t i = 0; i < host.annotators().size(); ++i) {
    const AnnotatorRecord& annotator = host.annotators()[i];
    if (!annotator.active) continue;
    AIAnnotatorMessage message{};
    message.annotator = annotator.handle;
    message.view = open.viewHandle();
    message.drawer = drawer;
    session.send(annotator.plugin, kCallerAIAnnotation, selector, message.d);
  }
}

}  // namespace

void drawAnnotations(Host& host, Session& session, const OpenDocument& open, AnnotationCanvas& canvas) {
  const MessageDrawer drawer(host, canvas);
  sendToAll(host, session, kSelectorAIDrawAnnotation, open, drawer.handle());
}

void invalidateAnnotations(Host& host, Session& session, const OpenDocument& open) {
  sendToAll(host, session, kSelectorAIInvalAnnotation, open, nullptr);
}

}  // namespace host
