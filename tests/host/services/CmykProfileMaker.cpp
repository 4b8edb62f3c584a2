#include "CmykProfileMaker.h"

#include <lcms2.h>

#include <algorithm>
#include <cmath>

namespace host {
namespace {

constexpr double kLightnessOfInk = 80.0 / 3;  // that each of three inks takes away from the white of paper
constexpr double kChroma = 50;

cmsUInt16Number word(double value) {
  return static_cast<cmsUInt16Number>(std::lround(std::clamp(value, 0.0, 1.0) * 65535));
}

// Magenta stands against cyan and yellow against both; black fades them all.
cmsInt32Number inkToLab(const cmsUInt16Number in[], cmsUInt16Number out[], void*) {
  const double c = in[0] / 65535.0, m = in[1] / 65535.0, y = in[2] / 65535.0, rest = 1 - in[3] / 65535.0;
  const cmsCIELab lab{20 + rest * (80 - kLightnessOfInk * (c + m + y)), rest * kChroma * (m - c),
                      rest * kChroma * (y - (c + m) / 2)};
  cmsFloat2LabEncodedV2(out, &lab);
  return 1;
}

// The other way without black.
cmsInt32Number labToInk(const cmsUInt16Number in[], cmsUInt16Number out[], void*) {
  cmsCIELab lab;
  cmsLabEncoded2FloatV2(&lab, in);
  const double all = (100 - lab.L) / kLightnessOfInk;
  const double both = (all - lab.b / kChroma) / 1.5;  // cyan and magenta
  out[0] = word((both - lab.a / kChroma) / 2);
  out[1] = word((both + lab.a / kChroma) / 2);
  out[2] = word(all - both);
  out[3] = 0;
  return 1;
}

void writeTable(cmsHPROFILE profile, cmsTagSignature tag, cmsStage* table) {
  cmsPipeline* pipeline =
      cmsPipelineAlloc(nullptr, cmsStageInputChannels(table), cmsStageOutputChannels(table));
  cmsPipelineInsertStage(pipeline, cmsAT_END, table);
  cmsWriteTag(profile, tag, pipeline);
  cmsPipelineFree(pipeline);
}

}  // namespace

std::string makeCmykProfile(ProfileTables tables) {
  cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
  cmsSetProfileVersion(profile, 2.4);
  cmsSetDeviceClass(profile, cmsSigOutputClass);
  cmsSetColorSpace(profile, cmsSigCmykData);
  cmsSetPCS(profile, cmsSigLabData);
  cmsStage* toColours = cmsStageAllocCLut16bit(nullptr, 9, 4, 3, nullptr);
  cmsStageSampleCLut16bit(toColours, inkToLab, nullptr, 0);
  writeTable(profile, cmsSigAToB0Tag, toColours);
  if (tables == ProfileTables::Both) {
    cmsStage* toInks = cmsStageAllocCLut16bit(nullptr, 33, 3, 4, nullptr);
    cmsStageSampleCLut16bit(toInks, labToInk, nullptr, 0);
    writeTable(profile, cmsSigBToA0Tag, toInks);
  }
  cmsUInt32Number size = 0;
  cmsSaveProfileToMem(profile, nullptr, &size);
  std::string bytes(size, '\0');
  cmsSaveProfileToMem(profile, bytes.data(), &size);
  cmsCloseProfile(profile);
  return bytes;
}

}  // namespace host
