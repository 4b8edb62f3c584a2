// Suites over strings, preferences, colours, files and alerts.
#include <cmath>
#include <filesystem>

#include "AIColorConversion.h"
#include "AIDataFilter.h"
#include "AIPreference.h"
#include "AIUser.h"
#include "HostFixture.h"
#include "ScratchFolder.h"

namespace {

class ServiceSuitesTest : public HostFixture {};

TEST_F(ServiceSuitesTest, StringsAreValidUtf8ThatStaysInItsPlace) {
  const AIUnicodeStringHandle string = text(std::string("a\0\xFF\xF0\x9F\x98\x80", 7));
  const char* bytes = nullptr;
  ASSERT_EQ(strings.GetBytes(string, kAIPlatformCharacterEncoding, &bytes, nullptr), kNoErr);
  for (int i = 0; i < 1000; ++i) text("another");
  const std::string kept("a\0\xEF\xBF\xBD\xF0\x9F\x98\x80", 9);
  EXPECT_EQ(std::string(bytes, kept.size()), kept);
  EXPECT_EQ(read(string), kept);
  std::size_t units = 0;
  EXPECT_EQ(strings.GetLength(string, &units), kNoErr);
  EXPECT_EQ(units, 5U);
  AIUnicodeStringHandle none = nullptr;
  EXPECT_EQ(strings.New("a", 1, static_cast<AICharacterEncoding>(2), &none), kBadParameterErr);
  EXPECT_EQ(strings.New(nullptr, 1, kAIUTF8CharacterEncoding, &none), kBadParameterErr);
}

TEST_F(ServiceSuitesTest, PreferenceStringsAreCutBeforeACharacter) {
  const auto& keys = ACQUIRE(AIPreferenceSuite);
  ASSERT_EQ(keys.PutStringPreference("P", "s", "ab\xE5\x88\x87"), kNoErr);
  for (const auto& [size, expected] : {std::pair(1, ""), {5, "ab"}, {6, "ab\xE5\x88\x87"}}) {
    char buffer[] = "######";
    ASSERT_EQ(keys.GetStringPreference("P", "none", buffer, size), kNoErr);
    EXPECT_STREQ(buffer, "######") << "the default";
    ASSERT_EQ(keys.GetStringPreference("P", "s", buffer, size), kNoErr);
    EXPECT_STREQ(buffer, expected) << size;
    EXPECT_EQ(buffer[size], size < 6 ? '#' : 0) << size;
    EXPECT_EQ(keys.GetStringPreference("P", "s", buffer, 0), kBadParameterErr);
  }
}

TEST_F(ServiceSuitesTest, ColoursAreFiniteAndOfTheFourSpaces) {
  const auto& colors = ACQUIRE(AIColorConversionSuite);
  const float good[4] = {}, nan[] = {0, NAN, 0}, infinite[] = {0, 0, -INFINITY};
  float result[4] = {-1, -1, -1, -1};
  AIBoolean inGamut = 7;
  const auto convert = [&](int source, const float* sample, int destination, float* to, int options = 0) {
    return colors.ConvertSample(static_cast<AIColorSpace>(source), sample,
                                static_cast<AIColorSpace>(destination), to,
                                static_cast<AIConversionOptions>(options), &inGamut);
  };
  for (const int space : {-1, 0, 3, 5, 8}) {
    EXPECT_EQ(convert(space, good, kRGBSpace, result), kBadParameterErr) << space;
    EXPECT_EQ(convert(kRGBSpace, good, space, result), kBadParameterErr) << space;
  }
  EXPECT_TRUE(
      each(kBadParameterErr, convert(kRGBSpace, nan, kCMYKSpace, result),
           convert(kRGBSpace, infinite, kCMYKSpace, result), convert(kRGBSpace, nullptr, kRGBSpace, result),
           convert(kRGBSpace, good, kRGBSpace, nullptr), convert(kRGBSpace, good, kRGBSpace, result, 1)));
  EXPECT_EQ(result[0], -1);
  EXPECT_EQ(inGamut, 7);
}

TEST_F(ServiceSuitesTest, AlertsReachTheUser) {
  const auto& user = ACQUIRE(AIUserSuite);
  EXPECT_EQ(user.MessageAlert(text("done")), kNoErr) << "nobody shows it";
  host.showAlert = [](const host::Alert& alert) {
    if (alert.text == "lost") throw std::bad_alloc();
    throw std::runtime_error("no display");
  };
  EXPECT_EQ(user.ErrorAlert(text("no room")), kSPExceptionError);
  EXPECT_EQ(user.MessageAlert(text("lost")), kOutOfMemoryErr);
  EXPECT_EQ(host.alerts()[0].kind, host::AlertKind::Message);
  EXPECT_EQ(host.alerts()[1].kind, host::AlertKind::Error);
}

TEST_F(ServiceSuitesTest, UnlinkingClosesTheFileAndLeavesAStaleHandle) {
  const ScratchFolder scratch;
  const auto& filters = ACQUIRE(AIDataFilterSuite);
  const auto openFiles = [] {
    const std::filesystem::directory_iterator all("/proc/self/fd"), end;
    return std::distance(all, end);
  };
  const auto before = openFiles();
  AIDataFilterHandle stale = nullptr;
  ASSERT_EQ(filters.NewFileDataFilter(scratch.write("data", "abc").c_str(), kAIReadFilterMode, &stale),
            kNoErr);
  ASSERT_EQ(filters.LinkDataFilter(stale), kNoErr);
  EXPECT_EQ(openFiles(), before + 1);
  ASSERT_EQ(filters.UnlinkDataFilter(stale), kNoErr);
  EXPECT_EQ(openFiles(), before);
  for (const AIDataFilterHandle handle : {stale, reinterpret_cast<AIDataFilterHandle>(text("abc"))}) {
    char byte = '?';
    std::size_t count = 1;
    EXPECT_TRUE(each(kBadParameterErr, filters.LinkDataFilter(handle),
                     filters.ReadDataFilter(handle, &byte, &count), filters.UnlinkDataFilter(handle)));
    EXPECT_EQ(count, 0U);
  }
}

}  // namespace
