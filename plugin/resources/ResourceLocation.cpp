#include "ResourceLocation.h"

#include <string>

#include "AIError.h"
#include "CopyUTF8.h"
#include "FilePathText.h"
#include "SPPlugins.h"

namespace {

constexpr std::size_t kBundlePathSize = 256;

AIErr CopyBundlePath(SPPluginRef plugin, char (&path)[kBundlePathSize]) {
  SPFileRef file = nullptr;
  if (const AIErr error = sSPPlugins->GetPluginFileSpecification(plugin, &file); error != kNoErr)
    return error;
  try {
    return CopyFullPath(ai::FilePath(file), path, sizeof path);
  } catch (const ai::Error& error) {
    return error.code;
  }
}

}  // namespace

AIErr LocateResources(SPPluginRef plugin, char (&resourcePath)[kResourcePathSize]) {
  char bundle[kBundlePathSize] = "";
  if (const AIErr error = CopyBundlePath(plugin, bundle); error != kNoErr) return error;
  std::string path = bundle;
  if (!path.empty() && path.back() != '/') path += '/';
  path += "Contents/Resources";
  CopyUTF8(resourcePath, path.c_str(), sizeof resourcePath);
  return kNoErr;
}
