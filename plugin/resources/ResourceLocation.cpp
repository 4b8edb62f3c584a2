#include "ResourceLocation.h"

#include <cstdlib>
#include <string>
#include <string_view>

#include "AIError.h"
#include "CopyUTF8.h"
#include "FilePathText.h"
#include "Platform.h"
#include "SPPlugins.h"
#include "TextState.h"

namespace {

constexpr std::size_t kBundlePathSize = 256;
constexpr std::size_t kLanguageSize = 16;

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
  if (NormalizeFormC(bundle, sizeof bundle) == NormalFormResult::TooLong) return kNormalFormErr;
  std::string path = bundle;
  if (!path.empty() && path.back() != '/') path += '/';
  path += "Contents/Resources";
  CopyUTF8(resourcePath, path.c_str(), sizeof resourcePath);
  SetLocaleEnvironment(resourcePath);
  return kNoErr;
}

void SetLocaleEnvironment(const char* path) {
  setenv("LOCALE_PATH", path, 1);
  CopyUTF8(TheTextState().localePathCopy, path, kLocalePathSize);
  setenv("RVLANG", ChooseLanguage(), 1);
}

const char* ChooseLanguage() {
  char language[kLanguageSize];
  if (!CopyPreferredLanguage(language, sizeof language)) return "Bundle";
  const std::string_view tag = language;
  return tag == "pt" || tag == "pt-BR" ? "pt_BR" : "Bundle";
}
