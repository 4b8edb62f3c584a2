#include "PluginBundle.h"

#include <dlfcn.h>

#include <system_error>
#include <utility>

namespace host {
namespace {

std::string loaderMessage() {
  const char* message = dlerror();
  return message != nullptr ? message : "unknown reason";
}

}  // namespace

PluginBundle::PluginBundle(std::filesystem::path place, SPPluginMain function)
    : folder_(std::move(place)), entry_(function) {}

std::string PluginBundle::name() const {
  return folder_.stem().string();
}

std::variant<PluginBundle, std::string> PluginBundle::load(const std::filesystem::path& folder) {
  std::error_code ignored;
  std::filesystem::path place = std::filesystem::absolute(folder, ignored).lexically_normal();
  if (!place.has_filename()) place = place.parent_path();
  if (!std::filesystem::is_directory(place, ignored)) {
    return "there is no plug-in at " + place.string();
  }
  const std::filesystem::path library = place / "Contents" / "Linux" / (place.stem().string() + ".so");
  if (!std::filesystem::exists(library, ignored)) {
    return "the plug-in " + place.string() + " has no code for this system: " + library.string() +
           " is missing";
  }
  void* image = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  if (image == nullptr) return "the plug-in's code could not be loaded: " + loaderMessage();
  void* symbol = dlsym(image, kSPPluginMainName);
  if (symbol == nullptr) {
    dlclose(image);
    return "the plug-in's code " + library.string() + " has no entry " + kSPPluginMainName;
  }
  return PluginBundle(std::move(place), reinterpret_cast<SPPluginMain>(symbol));
}

}  // namespace host
