#include "AlertLine.h"

#include <gtest/gtest.h>

namespace host {
namespace {

TEST(AlertLine, IsOneLineThatSaysItsKind) {
  EXPECT_EQ(alertLine({AlertKind::Message, "Done."}), "message: Done.");
  EXPECT_EQ(alertLine({AlertKind::Error, "\nNo room\r\n\r\nfor 3  marks.\n"}),
            "error: No room for 3  marks.");
  EXPECT_EQ(alertLine({AlertKind::Error, ""}), "error: ");
}

}  // namespace
}  // namespace host
