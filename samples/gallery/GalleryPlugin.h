// The plug-in: two menu items that show the gallery.
#pragma once

#include <memory>
#include <string>

#include "AITypes.h"

class QObject;

namespace gallery {

class GalleryPalette;

// The string preference "Gallery"/"Show" shows it at once when the host comes up: "modal", "palette" or
// "both".
class GalleryPlugin {
 public:
  explicit GalleryPlugin(SPPluginRef plugin);
  GalleryPlugin(const GalleryPlugin&) = delete;
  GalleryPlugin& operator=(const GalleryPlugin&) = delete;
  ~GalleryPlugin();

  // Acquires the suites and registers. Otherwise the code of what the host refused.
  AIErr Start(const SPBasicSuite* basic);
  AIErr Handle(const std::string& caller, const std::string& selector, const void* message);

 private:
  AIErr FindTexts();
  AIErr AddMenuItem(const char* text, AIMenuItemHandle& item);
  AIErr Listen(const char* type);
  AIErr HandleMenu(const std::string& selector, AIMenuItemHandle item);
  void HandleNotifier(const std::string& type);
  void ShowAtOnce();

  const SPPluginRef self;
  AIMenuItemHandle dialogItem = nullptr;
  AIMenuItemHandle paletteItem = nullptr;
  std::unique_ptr<GalleryPalette> palette;  // while the application runs
  std::unique_ptr<QObject> later;           // what is still to be done ends with it
};

}  // namespace gallery
