// Arbitrary bytes as a drawing. What stands behind its root element decides what is changed in it.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

#include "DocumentChecks.h"
#include "Expect.h"
#include "FuzzTarget.h"
#include "Geometry.h"
#include "RandomChanges.h"
#include "SvgScanner.h"
#include "TestDrawing.h"

namespace {

using namespace host;

std::uint64_t SeedIn(const SvgSource& source) {
  std::uint64_t seed = 14695981039346656037U;  // FNV-1a
  for (std::size_t at = source.node(source.root()).end; at < source.bytes().size(); ++at)
    seed = (seed ^ static_cast<unsigned char>(source.bytes()[at])) * 1099511628211U;
  return seed ^ seed >> 32;
}

// Numbers may differ by what a transform and its way back lose of the largest of them.
class Texts {
 public:
  Texts(const std::string& one, const std::string& other) : one_(one), other_(other) {}

  bool AreTheSame() {
    SvgScanner one(one_);
    SvgScanner other(other_);
    while (!one.atEnd() && !other.atEnd()) {
      const auto number = one.number();
      const auto match = other.number();
      if (number.has_value() != match.has_value()) return false;
      if (number && !AreClose(*number, *match)) return false;
      if (!number && one.next() != other.next()) return false;
    }
    return one.atEnd() && other.atEnd();
  }

 private:
  bool AreClose(double a, double b) {
    largest_ = std::max({largest_, std::abs(a), std::abs(b)});
    return std::abs(a - b) <= 1 + 1e-9 * largest_;
  }

  const std::string& one_;
  const std::string& other_;
  double largest_ = 0;
};

std::optional<SvgDrawing> Read(const std::string& bytes) {
  auto read = readSvg(bytes, nullptr);
  if (const auto* error = std::get_if<SvgError>(&read)) {
    Expect(!error->reason.empty(), "what is no drawing has a reason");
    return std::nullopt;
  }
  return std::get<SvgDrawing>(std::move(read));
}

// Hardly any file can say where art lies in a group that is pressed all but flat.
bool HasFlatPlace(const SvgDrawing& drawing) {
  for (NodeIndex node = 1; node <= drawing.source->nodeCount(); ++node) {
    if (!drawing.source->attribute(node, "transform") && node != drawing.source->root()) continue;
    const AIRealMatrix matrix = documentFromContentOf(drawing, node);
    const double area = std::abs(determinant(matrix));
    const double longest = std::max({std::abs(matrix.a), std::abs(matrix.b), std::abs(matrix.c),
                                     std::abs(matrix.d), std::abs(matrix.tx), std::abs(matrix.ty)});
    if (!(area > 1e-3 && longest < 1e5)) return true;
  }
  return false;
}

void ExpectSound(const Document& document) {
  for (const std::string& promise : brokenPromises(document)) Expect(false, promise.c_str());
}

void ExpectKept(const SvgDrawing& drawing) {
  const std::string bytes = writeSvg(drawing);
  const auto again = Read(bytes);
  Expect(again.has_value(), "what was saved can be opened");
  const std::string meant = describe(*drawing.document);
  const std::string found = describe(*again->document);
  if (!HasFlatPlace(drawing) && !Texts(meant, found).AreTheSame()) {
    std::fprintf(stderr, "%s\n--- meant\n%s--- found\n%s", bytes.c_str(), meant.c_str(), found.c_str());
    Expect(false, "what was saved is found again");
  }
  Expect(writeSvg(*again) == bytes, "a second save changes nothing");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  auto drawing = Read(bytes);
  if (!drawing) return 0;
  Document& document = *drawing->document;
  ExpectSound(document);
  for (const SvgRemark& remark : drawing->remarks) Expect(!remark.reason.empty(), "a remark says something");
  Expect(writeSvg(*drawing) == bytes, "what nobody changed is saved as it was");
  const std::uint64_t seed = SeedIn(*drawing->source);
  std::mt19937_64 random(seed);
  for (std::uint64_t steps = 1 + seed % 6; steps > 0; --steps) changeAnything(*drawing, random);
  ExpectSound(document);
  ExpectKept(*drawing);
  while (document.undo()) continue;
  ExpectSound(document);
  Expect(writeSvg(*drawing) == bytes, "what was undone leaves no trace");
  return 0;
}
