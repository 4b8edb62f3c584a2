#include "OffscreenApplication.h"

#include <gtest/gtest.h>

#include <QIcon>
#include <cstdlib>

namespace host {
namespace {

// Its own process: Qt makes what it keeps of icons later than the application, which needs that as it ends.
TEST(OffscreenApplication, EndsBeforeWhatQtKeeps) {
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  const auto live = [] {
    ensureApplication();
    QIcon::fromTheme("document-open");
    std::exit(0);
  };
  EXPECT_EXIT(live(), testing::ExitedWithCode(0), "^$");
}

}  // namespace
}  // namespace host
