// What plug-ins register with the application, apart from menus.
#pragma once

#include <string>
#include <vector>

#include "AITool.h"
#include "Registry.h"

namespace host {

struct PluginRecord {
  static constexpr HandleKind kKind = HandleKind::Plugin;
  SPPluginRef handle = nullptr;
  std::string name;    // UTF-8
  std::string bundle;  // absolute path of the bundle folder

  SPAccessRef access() const;
  SPFileRef file() const;  // stands for the bundle folder
};

struct NotifierRecord {
  static constexpr HandleKind kKind = HandleKind::Notifier;
  AINotifierHandle handle = nullptr;
  SPPluginRef plugin = nullptr;
  std::string name;
  std::string type;
  bool active = true;
};

struct AnnotatorRecord {
  static constexpr HandleKind kKind = HandleKind::Annotator;
  AIAnnotatorHandle handle = nullptr;
  SPPluginRef plugin = nullptr;
  std::string name;
  bool active = false;
};

struct ToolRecord {
  static constexpr HandleKind kKind = HandleKind::Tool;
  AIToolHandle handle = nullptr;
  SPPluginRef plugin = nullptr;  // null: the application's own
  std::string name;              // for good, in no language
  std::string title;             // UTF-8, for people
  std::string tooltip;           // UTF-8, for people
  int group = 0;                 // tools of one group share a place of the palette
  int toolset = 0;               // places of one tool set stand side by side
  std::int32_t lightIcon = 0;    // resource ids in the plug-in's bundle, for a light and a dark ground
  std::int32_t darkIcon = 0;
  bool tracksCursor = false;                      // is told how the pointer moves
  std::vector<AIToolInfoVariable> infoVariables;  // what the info display shows while it is selected
};

}  // namespace host
