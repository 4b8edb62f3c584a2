#include "AIFolders.h"

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

std::string folderOf(const Folders& folders, std::int32_t type) {
  if (type == kAIPluginsFolderType) return folders.plugins;
  if (type == kAIUserWritablePluginsType) return folders.userPlugins;
  return {};
}

AIErr findFolder(Host& host, std::int32_t type, AIFilePathHandle folder) {
  FilePathText* path = host.objects().filePaths.find(folder);
  if (path == nullptr) return kBadParameterErr;
  std::string found = folderOf(host.folders(), type);
  if (found.empty()) return kNoSuchItemErr;
  path->text = std::move(found);
  return kNoErr;
}

}  // namespace

SuiteOffer foldersSuite() {
  SuiteEntries entries(kAIFoldersSuite);
  static const AIFoldersSuite table{entries.add<findFolder>("FindFolder")};
  return entries.offer(kAIFoldersSuiteVersion, &table);
}

}  // namespace host
