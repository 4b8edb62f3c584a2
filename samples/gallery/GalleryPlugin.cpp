#include "GalleryPlugin.h"

#include <QTimer>

#include "AIMenu.h"
#include "AINotifier.h"
#include "AIPreference.h"
#include "AppContext.h"
#include "GalleryDialog.h"
#include "GalleryPalette.h"
#include "IAIUnicodeString.h"
#include "Localize.h"
#include "QtManager.h"
#include "ResourceLocation.h"
#include "Suites.h"
#include "TextKey.h"
#include "TextModules.h"
#include "ToolkitPlugin.h"

namespace gallery {
namespace {

constexpr const char* kDialogItem = TextKey("Gallery of Items...");
constexpr const char* kPaletteItem = TextKey("Gallery Palette");
constexpr char kMenuGroup[] = "Tool Palettes";
constexpr char kPrefix[] = "Gallery";
constexpr char kShowPreference[] = "Show";

void RunDialog() {
  GalleryDialog dialog;
  dialog.Run(TextKey("Gallery of Items"), true);
}

std::string WhatToShow() {
  char value[16] = "";
  sAIPreference->GetStringPreference(kPrefix, kShowPreference, value, sizeof value);
  return value;
}

}  // namespace

GalleryPlugin::GalleryPlugin(SPPluginRef plugin) : self(plugin) {}

GalleryPlugin::~GalleryPlugin() {
  palette.reset();
  FreeTextState();
  ReleaseSuites();
}

AIErr GalleryPlugin::Start(const SPBasicSuite* basic) {
  if (const AIErr error = AcquireSuites(basic); error != kNoErr) return error;
  RVADMQtManager::QtManager::SetSPBasicSuite(basic);
  qRVADM::SetToolkitPlugin(self);
  if (const AIErr error = FindTexts(); error != kNoErr) return error;
  for (const char* type : {kAIApplicationStartedNotifier, kAIOwlAppInitDispatchedNotifier,
                           kAIUIBrightnessChangedNotifier, kAIApplicationShutdownNotifier}) {
    if (const AIErr error = Listen(type); error != kNoErr) return error;
  }
  if (const AIErr error = AddMenuItem(kDialogItem, dialogItem); error != kNoErr) return error;
  return AddMenuItem(kPaletteItem, paletteItem);
}

// Read at once: the place of the texts lies in the environment, which other plug-ins change too.
AIErr GalleryPlugin::FindTexts() {
  char path[kResourcePathSize] = "";
  const AIErr error = LocateResources(self, path);
  if (error == kNoErr) EnsureTextInitialised();
  return error;
}

AIErr GalleryPlugin::AddMenuItem(const char* text, AIMenuItemHandle& item) {
  const ai::UnicodeString shown(Localize(text));
  const AIPlatformAddMenuItemDataUS data = {kMenuGroup, shown.handle()};
  return sAIMenu->AddMenuItem(self, text, &data, kMenuItemWantsUpdateOption, &item);
}

AIErr GalleryPlugin::Listen(const char* type) {
  AINotifierHandle notifier = nullptr;
  return sAINotifier->AddNotifier(self, "Gallery", type, &notifier);
}

AIErr GalleryPlugin::Handle(const std::string& caller, const std::string& selector, const void* message) {
  if (caller == kCallerAIMenu) {
    return HandleMenu(selector, static_cast<const AIMenuMessage*>(message)->menuItem);
  }
  if (caller == kAINotifierCaller) HandleNotifier(selector);
  return kNoErr;
}

AIErr GalleryPlugin::HandleMenu(const std::string& selector, AIMenuItemHandle item) {
  if (selector == kSelectorAIUpdateMenuItem && item == paletteItem) {
    return sAIMenu->CheckItem(paletteItem, palette != nullptr && palette->IsShown());
  }
  if (selector != kSelectorAIGoMenuItem) return kNoErr;
  if (item == dialogItem) RunDialog();
  if (item == paletteItem && palette != nullptr) palette->Show(!palette->IsShown());
  return kNoErr;
}

void GalleryPlugin::HandleNotifier(const std::string& type) {
  if (type == kAIApplicationStartedNotifier) {
    palette = std::make_unique<GalleryPalette>();
    later = std::make_unique<QObject>();
  } else if (type == kAIOwlAppInitDispatchedNotifier) {
    ShowAtOnce();
  } else if (type == kAIUIBrightnessChangedNotifier) {
    RVADMQtManager::QtManager::UpdateUIColorScheme();
  } else if (type == kAIApplicationShutdownNotifier) {
    later.reset();
    palette.reset();
  }
}

void GalleryPlugin::ShowAtOnce() {
  const std::string show = WhatToShow();
  if (palette != nullptr && (show == "palette" || show == "both")) palette->ShowWithFocus();
  if (show == "modal" || show == "both") {
    // Behind the messages of the start, when the host's window stands.
    QTimer::singleShot(0, later.get(), [] {
      const qRVADM::AppContext context;
      RunDialog();
    });
  }
}

}  // namespace gallery
