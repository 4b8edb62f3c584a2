// Annotators paint over a view without touching the document.
#pragma once

#include "AITypes.h"

constexpr char kAIAnnotatorSuite[] = "AI Annotator Suite";
constexpr std::int32_t kAIAnnotatorSuiteVersion = 1006;

// View pixels, y down; the corners may be in any order. What it covers is at least one pixel wide and high.
struct AIRect {
  std::int32_t left, top, right, bottom;
};

struct AIAnnotatorSuite {
  // Registered for the host's life, asleep at first. Names need not be unique.
  AIErr (*AddAnnotator)(SPPluginRef plugin, const char* name, AIAnnotatorHandle* annotator);
  AIErr (*SetAnnotatorActive)(AIAnnotatorHandle annotator, AIBoolean active);
  // Has a part of a view painted anew, soon after the present message. A null view is the current one;
  // kNoDocumentErr without one.
  AIErr (*InvalAnnotationRect)(AIDocumentViewHandle view, const AIRect* rect);
};

extern const AIAnnotatorSuite* sAIAnnotator;

constexpr char kCallerAIAnnotation[] = "AI Annotation";
constexpr char kSelectorAIDrawAnnotation[] = "AI Draw";
constexpr char kSelectorAIInvalAnnotation[] = "AI Invalidate";

// Draw is sent to all annotators that are awake while a view is painted; nothing may change the document
// there. Invalidate asks for what InvalAnnotationRect does, for all that the annotator has drawn.
struct AIAnnotatorMessage {
  SPMessageData d;
  AIAnnotatorHandle annotator;
  AIDocumentViewHandle view;
  AIAnnotatorDrawer* drawer;  // valid for the call; null in kSelectorAIInvalAnnotation
};
