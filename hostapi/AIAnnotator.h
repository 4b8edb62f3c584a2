// Annotators paint over a view without touching the document.
#pragma once

#include "AITypes.h"

constexpr char kAIAnnotatorSuite[] = "AI Annotator Suite";
constexpr std::int32_t kAIAnnotatorSuiteVersion = 1006;

struct AIAnnotatorSuite {
  // Registered for the host's life, asleep at first. Names need not be unique.
  AIErr (*AddAnnotator)(SPPluginRef plugin, const char* name, AIAnnotatorHandle* annotator);
  AIErr (*SetAnnotatorActive)(AIAnnotatorHandle annotator, AIBoolean active);
};

extern const AIAnnotatorSuite* sAIAnnotator;

constexpr char kCallerAIAnnotation[] = "AI Annotation";
constexpr char kSelectorAIDrawAnnotation[] = "AI Draw";
constexpr char kSelectorAIInvalAnnotation[] = "AI Invalidate";

struct AIAnnotatorMessage {
  SPMessageData d;
  AIAnnotatorHandle annotator;
  AIDocumentViewHandle view;
  AIAnnotatorDrawer* drawer;  // valid for the call
};
