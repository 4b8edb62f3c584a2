#include "AIFilePath.h"

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

AIErr newPath(Host& host, AIFilePathHandle* path) {
  if (path == nullptr) return kBadParameterErr;
  *path = host.objects().filePaths.make({});
  return *path == nullptr ? kOutOfMemoryErr : kNoErr;
}

AIErr disposePath(Host& host, AIFilePathHandle path) {
  return host.objects().filePaths.dispose(path) ? kNoErr : kBadParameterErr;
}

AIErr setFromFileReference(Host& host, AIFilePathHandle path, SPFileRef file) {
  FilePathText* found = host.objects().filePaths.find(path);
  if (found == nullptr || file == nullptr) return kBadParameterErr;
  for (const PluginRecord& plugin : host.plugins()) {
    if (plugin.file() != file) continue;
    found->text = plugin.bundle;
    return kNoErr;
  }
  return kBadParameterErr;
}

AIErr getFullPath(Host& host, AIFilePathHandle path, AIUnicodeStringHandle text) {
  const FilePathText* found = host.objects().filePaths.find(path);
  return found == nullptr ? kBadParameterErr : writeString(host, text, found->text);
}

}  // namespace

SuiteOffer filePathSuite() {
  SuiteEntries entries(kAIFilePathSuite);
  static const AIFilePathSuite table{
      entries.add<newPath>("New"),
      entries.add<disposePath>("Dispose"),
      entries.add<setFromFileReference>("SetFromFileReference"),
      entries.add<getFullPath>("GetFullPath"),
  };
  return entries.offer(kAIFilePathSuiteVersion, &table);
}

}  // namespace host
