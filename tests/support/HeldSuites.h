// Suites of the host, held as a plug-in holds them while it answers a message.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>

#include "HMX_AISuiteManager.h"
#include "Host.h"

class HeldSuites {
 public:
  HeldSuites(host::Host& host, std::initializer_list<const char*> names) {
    HMX_AISuiteManager& suites = HMX_AISuiteManager::Instance();
    suites.Reset();
    suites.SetBasicSuite(host.basic());
    for (const char* name : names) suites.Request(name);
    EXPECT_EQ(suites.Acquire(), kNoErr);
  }
  HeldSuites(const HeldSuites&) = delete;
  ~HeldSuites() { HMX_AISuiteManager::Instance().Release(); }
};
