// The window as the command line opens it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>

#include "HostProcess.h"

namespace host {
namespace {

using testing::HasSubstr;

constexpr char kOffscreen[] = "QT_QPA_PLATFORM=offscreen";
const std::string kPoster = std::string(CORVANE_EXAMPLES) + "/full-bleed-poster.svg";

TEST(WindowCommand, WithoutADisplayItSaysSo) {
  for (const char* before :
       {"unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM;",
        "unset QT_QPA_PLATFORM WAYLAND_DISPLAY; DISPLAY=:4711", "QT_QPA_PLATFORM=nothing"}) {
    const ProcessResult run = runHost({kPoster}, {}, before);
    EXPECT_EQ(run.code, 1) << before;
    EXPECT_EQ(
        run.err,
        "corvane-host: there is no display to open a window on; the commands marks, export and info work "
        "without one\n");
  }
}

TEST(WindowCommand, ScreenshotsAreAsSharpAsTheDisplay) {
  const ScratchFolder scratch;
  const std::string once = scratch.file("once.png");
  const std::string twice = scratch.file("twice.png");
  EXPECT_EQ(runHost({kPoster, "--screenshot", once}, {}, kOffscreen).code, 0);
  EXPECT_EQ(
      runHost({kPoster, "--screenshot", twice}, {}, std::string(kOffscreen) + " QT_SCALE_FACTOR=2").code, 0);
  const QImage small(QString::fromStdString(once));
  const QImage large(QString::fromStdString(twice));
  ASSERT_FALSE(small.isNull());
  EXPECT_EQ(large.size(), small.size() * 2);
  EXPECT_NE(large.scaled(small.size()).scaled(large.size()), large);
}

TEST(WindowCommand, LooksAsItWasChosenLastOrAsItIsTold) {
  const ScratchFolder scratch;
  struct Look {
    std::vector<std::string> options;
    bool isDark;
  };
  const std::vector<std::string> stored{"--pref", "corvane-host/Theme=dark"};
  for (const Look& look :
       {Look{{}, false}, Look{stored, true}, Look{{stored[0], stored[1], "--theme", "light"}, false}}) {
    std::vector<std::string> arguments = look.options;
    arguments.insert(arguments.end(), {"--screenshot", scratch.file("look.png")});
    EXPECT_EQ(runHost(arguments, {}, kOffscreen).code, 0);
    const QImage picture(QString::fromStdString(scratch.file("look.png")));
    EXPECT_EQ(picture.pixelColor(picture.width() / 2, 3).lightness() < 128, look.isDark);
  }
}

TEST(WindowCommand, ScreenshotTellsWhatFailedAndStoresNothing) {
  const ScratchFolder scratch;
  const ProcessResult missing =
      runHost({scratch.file("none.svg"), "--screenshot", scratch.file("a.png")}, {}, kOffscreen);
  EXPECT_EQ(missing.code, 1);
  EXPECT_THAT(missing.err,
              HasSubstr("cannot open " + scratch.file("none.svg") + ": there is no such file\n"));
  const ProcessResult nowhere = runHost({kPoster, "--screenshot", scratch.file("no/a.png")}, {}, kOffscreen);
  EXPECT_EQ(nowhere.code, 1);
  EXPECT_THAT(nowhere.err, HasSubstr("cannot save " + scratch.file("no/a.png")));
  const ProcessResult noPlugin = runHost(
      {kPoster, "--plugin", scratch.file("x.bundle"), "--screenshot", scratch.file("b.png")}, {}, kOffscreen);
  EXPECT_EQ(noPlugin.code, 1);
  EXPECT_THAT(noPlugin.err, HasSubstr("there is no plug-in at "));
  EXPECT_TRUE(scratch.has("b.png")) << "the window works without the plug-in";
}

}  // namespace
}  // namespace host
