#include "IconPlugin.h"

namespace qRVADM {
namespace {

SPPluginRef sIconPlugin = nullptr;

}  // namespace

void SetIconPlugin(SPPluginRef plugin) {
  sIconPlugin = plugin;
}

SPPluginRef IconPlugin() {
  return sIconPlugin;
}

}  // namespace qRVADM
