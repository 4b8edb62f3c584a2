#include "AIAnnotator.h"

#include "AnnotationCanvas.h"
#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

AIErr addAnnotator(Host& host, SPPluginRef plugin, const char* name, AIAnnotatorHandle* annotator) {
  if (host.plugins().find(plugin) == nullptr || name == nullptr || annotator == nullptr) {
    return kBadParameterErr;
  }
  AnnotatorRecord record;
  record.plugin = plugin;
  record.name = name;
  *annotator = host.annotators().add(std::move(record)).handle;
  return kNoErr;
}

AIErr setAnnotatorActive(Host& host, AIAnnotatorHandle annotator, AIBoolean active) {
  AnnotatorRecord* record = host.annotators().find(annotator);
  if (record == nullptr) return kBadParameterErr;
  record->active = active != 0;
  return kNoErr;
}

AIErr invalAnnotationRect(Host& host, AIDocumentViewHandle view, const AIRect* rect) {
  if (rect == nullptr) return kBadParameterErr;
  const OpenDocument* open = findView(host, view);
  if (open == nullptr) return view == nullptr ? kNoDocumentErr : kBadParameterErr;
  if (host.onInvalidate) host.onInvalidate(*open, covering(*rect));
  return kNoErr;
}

}  // namespace

SuiteOffer annotatorSuite() {
  SuiteEntries entries(kAIAnnotatorSuite);
  static const AIAnnotatorSuite table{
      entries.add<addAnnotator>("AddAnnotator"),
      entries.add<setAnnotatorActive>("SetAnnotatorActive"),
      entries.add<invalAnnotationRect>("InvalAnnotationRect"),
  };
  return entries.offer(kAIAnnotatorSuiteVersion, &table);
}

}  // namespace host
