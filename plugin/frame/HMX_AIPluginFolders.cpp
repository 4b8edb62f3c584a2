// The host's folders for plug-ins.
#include "AIError.h"
#include "AIFolders.h"
#include "FilePathText.h"
#include "HMX_AIPlugin.h"

namespace {

AIErr CopyFolderPath(AIFolderType type, char* path, std::size_t size) {
  try {
    const ai::FilePath folder;
    const AIErr error = sAIFolders->FindFolder(type, folder.handle());
    return error != kNoErr ? error : CopyFullPath(folder, path, size);
  } catch (const ai::Error& error) {
    return error.code;
  }
}

}  // namespace

AIErr HMX_AIPlugin::GetPluginsFolderPath(char* path, std::size_t size) {
  return CopyFolderPath(kAIPluginsFolderType, path, size);
}

AIErr HMX_AIPlugin::GetPluginsFolder(ai::FilePath& folder) {
  return sAIFolders->FindFolder(kAIPluginsFolderType, folder.handle());
}

AIErr HMX_AIPlugin::GetFolder24Path(char* path, std::size_t size) {
  return CopyFolderPath(kAIUserWritablePluginsType, path, size);
}

AIErr HMX_AIPlugin::GetFolder24(ai::FilePath& folder) {
  return sAIFolders->FindFolder(kAIUserWritablePluginsType, folder.handle());
}
