// Eight bytes as a double, and one as the number of decimals.
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>

#include "DecimalText.h"
#include "Expect.h"
#include "FuzzTarget.h"

namespace {

double Read(const std::string& text) {
  double value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  Expect(read.ptr == text.data() + text.size(), "all of a number is digits");
  return read.ec == std::errc() ? value : 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  double value = 0;
  if (size <= sizeof value) return 0;
  std::memcpy(&value, data, sizeof value);
  if (!std::isfinite(value)) return 0;
  const int decimals = data[sizeof value];
  const std::string kept = host::decimalText(value, decimals, true);
  const std::string dropped = host::decimalText(value, decimals, false);
  const std::size_t point = kept.find('.');
  Expect(decimals == 0 ? point == std::string::npos
                       : kept.size() - point - 1 == static_cast<std::size_t>(decimals),
         "as many decimals as asked for");
  Expect(Read(kept) == Read(dropped), "zeros at the end make no difference");
  Expect(kept.compare(0, dropped.size(), dropped) == 0, "but for these zeros the two are the same");
  const double error = std::abs(Read(kept) - value);
  const double step = std::pow(10.0, -decimals);
  Expect(error <= step * 0.5000001 + std::abs(value) * 1e-15, "at most half a last place is lost");
  Expect(host::decimalText(Read(kept), decimals, true) == kept, "what was rounded stays as it is");
  return 0;
}
