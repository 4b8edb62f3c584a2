#include <cairo.h>
#include <gmock/gmock.h>

#include <cstring>
#include <map>

#include "Files.h"
#include "IconList.h"
#include "Raster.h"
#include "RunOn.h"

namespace icons {
namespace {

constexpr char kInkSquare[] =
    R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16"><path d="M4 4h8v8H4z" fill="currentColor"/></svg>)";

struct Picture {
  int width, height;
  std::uint32_t middle, corner;  // alpha, red, green, blue from the highest byte down
};

Picture pictureIn(const std::filesystem::path& file) {
  const SurfacePointer surface(cairo_image_surface_create_from_png(file.c_str()));
  EXPECT_EQ(cairo_surface_status(surface.get()), CAIRO_STATUS_SUCCESS) << file;
  const int width = cairo_image_surface_get_width(surface.get());
  const int height = cairo_image_surface_get_height(surface.get());
  const unsigned char* bytes = cairo_image_surface_get_data(surface.get());
  if (bytes == nullptr) return {0, 0, 0, 0};
  const int stride = cairo_image_surface_get_stride(surface.get());
  const auto at = [&](int x, int y) {
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, bytes + std::ptrdiff_t{y} * stride + std::ptrdiff_t{x} * 4, sizeof pixel);
    return pixel;
  };
  return {width, height, at(width / 2, height / 2), at(0, 0)};
}

TEST(IconFiles, EachVersionIsDrawnInItsInkAndListedByItsId) {
  const ScratchFolder scratch;
  scratch.write("square.svg", kInkSquare);
  scratch.write("mark.svg", kInkSquare);
  scratch.write("icons.txt", "16041 square.svg 16 themed\r\n\n  # a remark\n25000 mark.svg 16 plain");
  const Outcome outcome = runOn(scratch);
  ASSERT_EQ(outcome.code, 0) << outcome.errors;

  EXPECT_EQ(
      scratch.read("out/txt/IDToFile.txt"),
      "16041.PNG square.png\n17041.PNG square-light.png\n18041.PNG square-dark.png\n25000.SVG mark.svg\n");
  const std::map<std::string, std::uint32_t> inks = {
      {"square", 0xff3b3b3b}, {"square-light", 0xff3b3b3b}, {"square-dark", 0xffd6d6d6}};
  for (const auto& [name, ink] : inks) {
    SCOPED_TRACE(name);
    const Picture single = pictureIn(scratch.path / "out/png" / (name + ".png"));
    const Picture twice = pictureIn(scratch.path / "out/png" / (name + "@2x.png"));
    EXPECT_EQ(single.width, 16);
    EXPECT_EQ(single.height, 16);
    EXPECT_EQ(twice.width, 32);
    EXPECT_EQ(single.middle, ink);
    EXPECT_EQ(twice.middle, ink);
    EXPECT_EQ(single.corner, 0U);
  }
  EXPECT_THAT(scratch.read("out/svg/mark.svg"), testing::HasSubstr("fill=\"#3b3b3b\""));
}

// What code of the plug-in asks for by number.
TEST(ShippedIcons, CoverTheIdsInUse) {
  const std::filesystem::path list = std::filesystem::path(CORVANE_SOURCE) / "plugin/icons/icons.txt";
  std::map<int, bool> themed;
  for (const Icon& icon : parseIconList(readFile(list), "icons.txt")) themed[icon.id] = icon.themed;
  const std::map<int, bool> expected = {{16041, true},  {16055, true},  {16100, true}, {16101, false},
                                        {16102, false}, {16201, true},  {16203, true}, {16221, false},
                                        {16223, false}, {16224, false}, {16225, true}};
  EXPECT_EQ(themed, expected);
}

}  // namespace
}  // namespace icons
