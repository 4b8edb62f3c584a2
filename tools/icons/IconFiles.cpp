#include "IconFiles.h"

#include <string>

#include "Files.h"
#include "IconVersion.h"
#include "Raster.h"

namespace icons {
namespace {

void writePictures(const DrawnIcon& drawn, const IconVersion& version, const std::filesystem::path& folder) {
  const std::string svg = drawn.source.inInk(version.theme->ink);
  writeFile(folder / version.fileName, encodePng(drawSvg(svg, drawn.icon.size).get()));
  writeFile(folder / doubleNameOf(version.fileName), encodePng(drawSvg(svg, drawn.icon.size * 2).get()));
}

}  // namespace

void writeIconFiles(const std::vector<DrawnIcon>& set, const std::filesystem::path& resources) {
  std::string table;
  for (const DrawnIcon& drawn : set) {
    const bool isSvg = isSvgId(drawn.icon.id);
    for (const IconVersion& version : versionsOf(drawn.icon)) {
      table += std::to_string(version.id) + (isSvg ? ".SVG " : ".PNG ") + version.fileName + "\n";
      if (isSvg) {
        writeFile(resources / "svg" / version.fileName, drawn.source.inInk(version.theme->ink));
      } else {
        writePictures(drawn, version, resources / "png");
      }
    }
  }
  writeFile(resources / "txt" / "IDToFile.txt", table);
}

}  // namespace icons
