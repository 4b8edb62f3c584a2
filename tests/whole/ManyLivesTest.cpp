// Start-up and shutdown over and over in one process, as a long-lived host would have it.
#include <gtest/gtest.h>
#include <malloc.h>

#include <cstdlib>

#include "Sanitized.h"
#include "World.h"

#ifdef CORVANE_ADDRESS_SANITIZER
#include <sanitizer/allocator_interface.h>
#endif

namespace host {
namespace {

#ifdef CORVANE_ADDRESS_SANITIZER
std::size_t bytesInUse() {
  return __sanitizer_get_current_allocated_bytes();
}
#else
// To be asked where the allocator keeps nothing freed at hand (GLIBC_TUNABLES), since that counts as in use.
std::size_t bytesInUse() {
  return mallinfo2().uordblks;
}
#endif
constexpr int kLives = 1000;
constexpr int kFirstLives = 100;  // what is kept for the whole process is there by then

// Start-up, a drawing that gets its marks, and shutdown; the suites that are still held then.
std::int32_t live() {
  World world(squareOnPage());
  EXPECT_EQ(world.complaint, "");
  EXPECT_EQ(world.session.chooseMenuItem(kMarksKey), kSPNoError);
  world.session.closeDocument(*world.drawing.document);
  world.session.shutdown();
  return world.host.holds();
}

TEST(ManyLives, TakeNoMoreThanAFew) {
  if (std::getenv("GLIBC_TUNABLES") == nullptr)
    GTEST_SKIP() << "to be run by ctest, which sets GLIBC_TUNABLES";
  std::int32_t holds = 0;
  for (int life = 0; life < kFirstLives; ++life) holds = live();
  const std::size_t bytes = bytesInUse();
  for (int life = kFirstLives; life < kLives; ++life) ASSERT_EQ(live(), holds) << "in life " << life;
  EXPECT_LT(bytesInUse(), bytes + 4096) << "from " << bytes << " after " << kFirstLives << " lives";
}

}  // namespace
}  // namespace host
