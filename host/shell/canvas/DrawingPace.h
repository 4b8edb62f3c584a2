// How long pictures of a drawing take, by their size.
#pragma once

#include <optional>

namespace host {

// Learns from pictures that were drawn. Paths cost the same in a picture of any size, what shines through
// costs with every pixel: how it is with a drawing shows when two pictures of unlike size are compared.
class DrawingPace {
 public:
  void note(double pixels, double milliseconds);
  // The size, in pixels, of a picture that is expected to take so long. 0: nothing is known yet.
  double pixelsWithin(double milliseconds) const;

 private:
  struct Sample {
    double pixels, milliseconds;
  };

  std::optional<Sample> last_;
  std::optional<Sample> other_;  // of another size than the last
};

}  // namespace host
