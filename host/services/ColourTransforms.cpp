#include "ColourTransforms.h"

#include <lcms2.h>

#include <limits>
#include <new>
#include <type_traits>
#include <utility>

namespace host {
namespace {

struct EndContext {
  void operator()(cmsContext context) const { cmsDeleteContext(context); }
};
struct CloseProfile {
  void operator()(cmsHPROFILE profile) const { cmsCloseProfile(profile); }
};
struct DeleteTransform {
  void operator()(cmsHTRANSFORM transform) const { cmsDeleteTransform(transform); }
};
struct FreeCurve {
  void operator()(cmsToneCurve* curve) const { cmsFreeToneCurve(curve); }
};
using Context = std::unique_ptr<std::remove_pointer_t<cmsContext>, EndContext>;
using Profile = std::unique_ptr<void, CloseProfile>;
using Transform = std::unique_ptr<void, DeleteTransform>;

constexpr cmsUInt32Number kExact = cmsFLAGS_NOCACHE;
constexpr cmsUInt32Number kDefault = cmsFLAGS_NOCACHE | cmsFLAGS_BLACKPOINTCOMPENSATION;

constexpr double kInkScale = 100;  // of TYPE_CMYK_DBL, which counts in percent

template <typename Made>
Made checked(Made made) {
  if (made == nullptr) throw std::bad_alloc();
  return made;
}

constexpr std::size_t indexOf(ColourSpace space) {
  return static_cast<std::size_t>(space);
}

cmsUInt32Number formatOf(ColourSpace space) {
  constexpr cmsUInt32Number formats[kColourSpaces] = {TYPE_GRAY_DBL, TYPE_RGB_DBL, TYPE_CMYK_DBL,
                                                      TYPE_Lab_DBL};
  return formats[indexOf(space)];
}

// Gray with the transfer curve of sRGB: red, green and blue of a gray are that gray.
Profile makeGray(cmsContext context) {
  constexpr double parameters[] = {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
  const std::unique_ptr<cmsToneCurve, FreeCurve> curve(
      checked(cmsBuildParametricToneCurve(context, 4, parameters)));
  return Profile(checked(cmsCreateGrayProfileTHR(context, cmsD50_xyY(), curve.get())));
}

ColourSample run(cmsHTRANSFORM transform, ColourSpace source, ColourSample sample, ColourSpace destination) {
  if (source == ColourSpace::CMYK) {
    for (double& ink : sample) ink *= kInkScale;
  }
  ColourSample result{};
  cmsDoTransform(transform, sample.data(), result.data(), 1);
  if (destination == ColourSpace::CMYK) {
    for (double& ink : result) ink /= kInkScale;
  }
  return result;
}

}  // namespace

struct ColourTransforms::Engine {
  Context context{checked(cmsCreateContext(nullptr, nullptr))};
  std::array<Profile, kColourSpaces> profiles;
  std::array<std::array<Transform, kColourSpaces>, kColourSpaces> conversions;  // [source][destination]
  std::array<Transform, kColourSpaces> measures;

  Engine() {
    profiles[indexOf(ColourSpace::Gray)] = makeGray(context.get());
    profiles[indexOf(ColourSpace::RGB)].reset(checked(cmsCreate_sRGBProfileTHR(context.get())));
    profiles[indexOf(ColourSpace::Lab)].reset(checked(cmsCreateLab4ProfileTHR(context.get(), nullptr)));
  }

  // Null if the profiles don't allow it.
  Transform make(ColourSpace source, ColourSpace destination, cmsUInt32Number flags) const {
    return Transform(cmsCreateTransformTHR(context.get(), profiles[indexOf(source)].get(), formatOf(source),
                                           profiles[indexOf(destination)].get(), formatOf(destination),
                                           INTENT_RELATIVE_COLORIMETRIC, flags));
  }

  Transform& conversion(ColourSpace source, ColourSpace destination) {
    return conversions[indexOf(source)][indexOf(destination)];
  }

  bool takesInksBothWays() {
    conversion(ColourSpace::CMYK, ColourSpace::RGB) = make(ColourSpace::CMYK, ColourSpace::RGB, kDefault);
    conversion(ColourSpace::RGB, ColourSpace::CMYK) = make(ColourSpace::RGB, ColourSpace::CMYK, kDefault);
    return conversion(ColourSpace::CMYK, ColourSpace::RGB) && conversion(ColourSpace::RGB, ColourSpace::CMYK);
  }

  void forgetInks() {
    conversion(ColourSpace::CMYK, ColourSpace::RGB).reset();
    conversion(ColourSpace::RGB, ColourSpace::CMYK).reset();
    profiles[indexOf(ColourSpace::CMYK)].reset();
  }
};

ColourTransforms::ColourTransforms() : engine_(std::make_unique<Engine>()) {}

ColourTransforms::~ColourTransforms() = default;

bool ColourTransforms::setCmykProfile(std::string_view bytes) {
  if (bytes.size() > std::numeric_limits<cmsUInt32Number>::max()) return false;
  Profile profile(cmsOpenProfileFromMemTHR(engine_->context.get(), bytes.data(),
                                           static_cast<cmsUInt32Number>(bytes.size())));
  if (profile == nullptr || cmsGetColorSpace(profile.get()) != cmsSigCmykData) return false;
  engine_->profiles[indexOf(ColourSpace::CMYK)] = std::move(profile);
  if (engine_->takesInksBothWays()) return true;
  engine_->forgetInks();
  return false;
}

bool ColourTransforms::hasCmykProfile() const {
  return engine_->profiles[indexOf(ColourSpace::CMYK)] != nullptr;
}

ColourSample ColourTransforms::convert(ColourSpace source, const ColourSample& sample,
                                       ColourSpace destination) {
  Transform& transform = engine_->conversion(source, destination);
  if (transform == nullptr) transform.reset(checked(engine_->make(source, destination, kDefault).release()));
  return run(transform.get(), source, sample, destination);
}

ColourSample ColourTransforms::measure(ColourSpace space, const ColourSample& sample) {
  if (space == ColourSpace::Lab) return sample;
  Transform& transform = engine_->measures[indexOf(space)];
  if (transform == nullptr)
    transform.reset(checked(engine_->make(space, ColourSpace::Lab, kExact).release()));
  return run(transform.get(), space, sample, ColourSpace::Lab);
}

}  // namespace host
