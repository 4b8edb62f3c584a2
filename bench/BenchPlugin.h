// A plug-in in the host of the same process that holds the suites a bench needs.
#pragma once

#include <initializer_list>
#include <stdexcept>

#include "HMX_AIPlugin.h"
#include "HMX_AISuiteManager.h"
#include "Host.h"
#include "SPPlugins.h"
#include "ToolkitPlugin.h"

namespace bench {

// The toolkit's plug-in as long as it lives. `bundle`: absolute path of the folder its pictures lie in; it
// need not be there.
class BenchPlugin : public HMX_AIPlugin {
 public:
  BenchPlugin(host::Host& host, const char* bundle, std::initializer_list<const char*> suites)
      : HMX_AIPlugin(SPMessageData{kSPValidSPMessageData, host.addPlugin("bench", bundle).handle, nullptr,
                                   host.basic()}) {
    for (const char* suite : suites) RequestSuite(suite);
    if (suiteManager->Acquire() != kNoErr) throw std::runtime_error("no suites");
    qRVADM::SetToolkitPlugin(pluginRef);
  }
  ~BenchPlugin() override {
    qRVADM::SetToolkitPlugin(nullptr);
    suiteManager->Release();
  }
};

}  // namespace bench
