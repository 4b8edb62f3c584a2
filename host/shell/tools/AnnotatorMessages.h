// Has the annotators of plug-ins paint over a view.
#pragma once

namespace host {

class AnnotationCanvas;
class Host;
class Session;
struct OpenDocument;

// To be called while the view is painted, over the drawing: all annotators that are awake draw on `canvas`,
// in the order of their registration.
void drawAnnotations(Host& host, Session& session, const OpenDocument& open, AnnotationCanvas& canvas);

// Has the annotators name, by Host::onInvalidate, the places of the view where they have drawn. To be called
// before the view scrolls, zooms or shows another document.
void invalidateAnnotations(Host& host, Session& session, const OpenDocument& open);

}  // namespace host
