// Arbitrary bytes as what people type and what the environment gives: a length, a zoom, a language, text of
// another program.
#include <cmath>
#include <cstdint>
#include <string>

#include "Expect.h"
#include "FuzzTarget.h"
#include "Length.h"
#include "PreferredLanguages.h"
#include "Utf8.h"
#include "ZoomText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  if (const auto points = host::pointsOf(text)) {
    Expect(std::isfinite(*points) && *points >= 0, "a length is finite and not negative");
    Expect(text[0] == '-' || host::pointsOf("0" + text) == points, "a zero in front changes nothing");
  }
  if (const auto zoom = host::zoomIn(text)) {
    Expect(std::isfinite(*zoom) && *zoom >= 0, "a zoom is finite and not negative");
    const auto shown = *zoom > 1e-2 && *zoom < 1e3 ? host::zoomIn(host::zoomText(*zoom)) : zoom;
    Expect(shown && std::abs(*shown - *zoom) <= *zoom * 0.06, "a zoom that is shown can be typed");
  }
  if (const auto tag = host::languageTag(text)) {
    Expect(host::languageTag(*tag) == tag, "a tag is its own tag");
    const std::string_view primary = host::primaryLanguage(*tag);
    Expect(primary.size() >= 2 && primary.size() <= 3, "a tag begins with a language");
  }
  const std::string valid = host::validUtf8(text);
  Expect(host::validUtf8(valid) == valid, "what is valid stays as it is");
  return 0;
}
