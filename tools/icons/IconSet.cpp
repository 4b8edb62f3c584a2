#include "IconSet.h"

#include <utility>

#include "Fault.h"
#include "Files.h"
#include "Raster.h"
#include "Theme.h"

namespace icons {
namespace {

IconSource readSource(const Icon& icon, const std::filesystem::path& file) {
  std::string svg = readFile(file);
  try {
    IconSource source(std::move(svg), icon.themed);
    const std::string drawing = source.inInk(kLight.ink);
    checkPixelGrid(drawing, icon.size);
    drawSvg(drawing, icon.size);  // so that a fault in drawing is told with the file it comes from
    return source;
  } catch (const Fault& fault) {
    throw Fault(file.string() + ": " + fault.what());
  }
}

DrawnIcon drawnIcon(Icon icon, const std::filesystem::path& list) {
  const std::filesystem::path file = list.parent_path() / (icon.name + ".svg");
  if (!std::filesystem::is_regular_file(file)) {
    throw Fault(list.string() + ":" + std::to_string(icon.line) + ": there is no source " + file.string());
  }
  IconSource source = readSource(icon, file);
  return {std::move(icon), std::move(source)};
}

}  // namespace

std::vector<DrawnIcon> readIconSet(const std::filesystem::path& list) {
  std::vector<DrawnIcon> set;
  for (Icon& icon : parseIconList(readFile(list), list.string())) {
    set.push_back(drawnIcon(std::move(icon), list));
  }
  return set;
}

}  // namespace icons
