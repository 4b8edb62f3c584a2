// Paints over the view of a document without touching the document.
#pragma once

#include "AIAnnotator.h"

class HMX_AIPlugin;

namespace Vandrell::AIPluginWrappers {

class Annotator {
 public:
  // Registers with the host, enters the plug-in's annotators and wakes up. A refusal leaves it outside,
  // and is not reported. Whoever makes an annotator owns it; the plug-in is not owned.
  explicit Annotator(HMX_AIPlugin* owner);
  Annotator(const Annotator&) = delete;
  Annotator& operator=(const Annotator&) = delete;
  virtual ~Annotator();  // leaves the plug-in's annotators; the registration stays with the host

  // Both run inside the host's redraw: the document must not change there. kUnhandledMsgErr in the base.
  virtual AIErr Draw(const AIAnnotatorMessage& message);
  virtual AIErr Invalidate(const AIAnnotatorMessage& message);

  void Deactivate();  // for good: no message arrives any more
  AIAnnotatorHandle GetHandle() const { return annotator; }

  // Calls Draw or Invalidate; kUnhandledMsgErr for another selector.
  AIErr HandleMessage(const char* selector, const AIAnnotatorMessage& message);

  // Two opposite corners in document coordinates as left, top, right, bottom in whole pixels of the
  // current view. A refusal of the host leaves the rest of `rect` as it was.
  static AIErr ArtRectToViewRect(const AIRealPoint (&corners)[2], int (&rect)[4]);

 protected:
  HMX_AIPlugin* plugin;

 private:
  AIAnnotatorHandle annotator = nullptr;  // null while not registered
};

}  // namespace Vandrell::AIPluginWrappers
