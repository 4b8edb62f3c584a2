// Remembers conversions that were asked for lately.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "ColourSample.h"

namespace host {

struct ColourQuestion {
  ColourSpace source, destination;
  ColourSample sample;
};

struct ColourAnswer {
  ColourSample sample;
  bool inGamut;  // the destination can show the colour without a visible change
};

// A question finds its own answer only, to the bit. Each has one place; a later one may take it over.
class ColourCache {
 public:
  const ColourAnswer* find(const ColourQuestion& question) const;  // null if it is not known
  void put(const ColourQuestion& question, const ColourAnswer& answer);

 private:
  struct Place {
    bool taken = false;
    ColourQuestion question;
    ColourAnswer answer;
  };
  static constexpr std::size_t kPlaces = 256;  // the colours of a palette several times over

  static std::size_t placeOf(const ColourQuestion& question);

  std::vector<Place> places_ = std::vector<Place>(kPlaces);
};

}  // namespace host
