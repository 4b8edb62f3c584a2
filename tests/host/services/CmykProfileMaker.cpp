#include "CmykProfileMaker.h"

#include <lcms2.h>

#include <cmath>
#include <memory>

#include "ColourSample.h"
#include "PlainInk.h"

namespace host {
namespace {

using Profile = std::unique_ptr<void, void (*)(cmsHPROFILE)>;
using Transform = std::unique_ptr<void, void (*)(cmsHTRANSFORM)>;

Profile owned(cmsHPROFILE profile) {
  return {profile, [](cmsHPROFILE p) { cmsCloseProfile(p); }};
}

// Between sRGB and Lab.
struct Colours {
  Profile rgb = owned(cmsCreate_sRGBProfile());
  Profile lab = owned(cmsCreateLab4Profile(nullptr));
  Transform toLab = make(rgb, TYPE_RGB_DBL, lab, TYPE_Lab_DBL);
  Transform toRgb = make(lab, TYPE_Lab_DBL, rgb, TYPE_RGB_DBL);

  static Transform make(const Profile& from, cmsUInt32Number fromFormat, const Profile& to,
                        cmsUInt32Number toFormat) {
    return {cmsCreateTransform(from.get(), fromFormat, to.get(), toFormat, INTENT_RELATIVE_COLORIMETRIC,
                               cmsFLAGS_NOCACHE),
            cmsDeleteTransform};
  }
};

// Moves the components away from their mean, or towards it for a factor below 1.
void spread(ColourSample& rgb, double factor) {
  const double mean = (rgb[0] + rgb[1] + rgb[2]) / 3;
  for (std::size_t i = 0; i < 3; ++i) rgb[i] = mean + (rgb[i] - mean) * factor;
}

cmsUInt16Number word(double value) {
  return static_cast<cmsUInt16Number>(std::lround(value * 65535));
}

cmsInt32Number inkToLab(const cmsUInt16Number in[], cmsUInt16Number out[], void* colours) {
  ColourSample rgb = rgbOfInk({in[0] / 65535.0, in[1] / 65535.0, in[2] / 65535.0, in[3] / 65535.0});
  for (double& component : rgb) component = kDarkest + (1 - kDarkest) * component;
  spread(rgb, 1 - kDullness);
  cmsCIELab lab;
  cmsDoTransform(static_cast<Colours*>(colours)->toLab.get(), rgb.data(), &lab, 1);
  cmsFloat2LabEncodedV2(out, &lab);
  return 1;
}

cmsInt32Number labToInk(const cmsUInt16Number in[], cmsUInt16Number out[], void* colours) {
  cmsCIELab lab;
  cmsLabEncoded2FloatV2(&lab, in);
  ColourSample rgb{};
  cmsDoTransform(static_cast<Colours*>(colours)->toRgb.get(), &lab, rgb.data(), 1);
  spread(rgb, 1 / (1 - kDullness));
  for (double& component : rgb) component = (component - kDarkest) / (1 - kDarkest);
  const ColourSample ink = inkOfRgb(withinRange(ColourSpace::RGB, rgb));
  for (std::size_t i = 0; i < 4; ++i) out[i] = word(ink[i]);
  return 1;
}

void writeTable(cmsHPROFILE profile, cmsTagSignature tag, cmsStage* table) {
  cmsPipeline* pipeline =
      cmsPipelineAlloc(nullptr, cmsStageInputChannels(table), cmsStageOutputChannels(table));
  cmsPipelineInsertStage(pipeline, cmsAT_END, table);
  cmsWriteTag(profile, tag, pipeline);
  cmsPipelineFree(pipeline);
}

void writeTables(cmsHPROFILE profile, ProfileTables tables) {
  Colours colours;
  cmsStage* toColours = cmsStageAllocCLut16bit(nullptr, 9, 4, 3, nullptr);
  cmsStageSampleCLut16bit(toColours, inkToLab, &colours, 0);
  writeTable(profile, cmsSigAToB0Tag, toColours);
  if (tables == ProfileTables::OnlyToColours) return;
  cmsStage* toInks = cmsStageAllocCLut16bit(nullptr, 33, 3, 4, nullptr);
  cmsStageSampleCLut16bit(toInks, labToInk, &colours, 0);
  writeTable(profile, cmsSigBToA0Tag, toInks);
}

std::string bytesOf(cmsHPROFILE profile) {
  cmsUInt32Number size = 0;
  cmsSaveProfileToMem(profile, nullptr, &size);
  std::string bytes(size, '\0');
  cmsSaveProfileToMem(profile, bytes.data(), &size);
  return bytes;
}

}  // namespace

std::string makeCmykProfile(ProfileTables tables) {
  const Profile profile = owned(cmsCreateProfilePlaceholder(nullptr));
  cmsSetProfileVersion(profile.get(), 2.4);
  cmsSetDeviceClass(profile.get(), cmsSigOutputClass);
  cmsSetColorSpace(profile.get(), cmsSigCmykData);
  cmsSetPCS(profile.get(), cmsSigLabData);
  writeTables(profile.get(), tables);
  return bytesOf(profile.get());
}

}  // namespace host
