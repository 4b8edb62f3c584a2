#include "ToolkitPlugin.h"

namespace qRVADM {
namespace {

SPPluginRef sPlugin = nullptr;

}  // namespace

void SetToolkitPlugin(SPPluginRef plugin) {
  sPlugin = plugin;
}

SPPluginRef ToolkitPlugin() {
  return sPlugin;
}

}  // namespace qRVADM
