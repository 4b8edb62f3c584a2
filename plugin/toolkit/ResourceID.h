// How resource ids tell what lies behind them. Code names a picture by one id; its light, dark and double
// resolution versions lie at fixed distances from it.
#pragma once

namespace qRVADM {

constexpr int kLightVersion = 1000;
constexpr int kDarkVersion = 2000;
constexpr int kDoubleResolution = 4000;  // of PNG pictures, on top of the version

// From 24000 on pictures are SVG, below they are PNG.
constexpr bool IsSVG(int id) {
  return id >= 24000;
}

// Pictures of these ids come in a light and a dark version.
constexpr bool HasVersions(int id) {
  return (id >= 16000 && id <= 16999) || (id >= 24000 && id <= 24999);
}

// Pictures that the manager library may have for all plug-ins together.
constexpr bool IsShared(int id) {
  return (id >= 16000 && id <= 16099) || (id >= 16800 && id <= 16899);
}

constexpr int VersionOf(int id, bool dark) {
  return HasVersions(id) ? id + (dark ? kDarkVersion : kLightVersion) : id;
}

}  // namespace qRVADM
