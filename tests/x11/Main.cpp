// The tests run as one program on an X server of their own.
#include <gtest/gtest.h>

#include "GuardedApplication.h"
#include "ScratchFolder.h"
#include "VirtualServer.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
  const ScratchFolder runtime;
  qputenv("XDG_RUNTIME_DIR", runtime.path.c_str());
  const VirtualServer server;
  qputenv("DISPLAY", server.display().c_str());
  qputenv("QT_QPA_PLATFORM", "xcb");
  const host::GuardedApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
