#include "IconVersion.h"

namespace icons {

bool isSvgId(int id) {
  return id >= 24000;
}

bool isThemedId(int id) {
  return (id >= 16000 && id < 17000) || (id >= 24000 && id < 25000);
}

std::vector<IconVersion> versionsOf(const Icon& icon) {
  const std::string extension = isSvgId(icon.id) ? ".svg" : ".png";
  std::vector<IconVersion> versions{{icon.id, icon.name + extension, &kLight}};
  if (!icon.themed) return versions;
  for (const Theme* theme : kThemes) {
    versions.push_back({icon.id + theme->idOffset, icon.name + "-" + theme->name + extension, theme});
  }
  return versions;
}

std::string doubleNameOf(const std::string& fileName) {
  std::string name = fileName;
  return name.insert(name.rfind('.'), "@2x");
}

}  // namespace icons
