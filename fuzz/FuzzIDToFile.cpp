// Arbitrary bytes as a bundle's table of resources, read by the plug-in and by the host.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>

#include "Expect.h"
#include "FuzzTarget.h"
#include "IDToFile.h"
#include "ResourceLine.h"
#include "ResourceTable.h"
#include "ScratchFolder.h"

namespace {

namespace fs = std::filesystem;

// Resources, with a file above them that no table may reach.
struct Bundle {
  Bundle() {
    scratch.write("Contents/Resources/png/a.png", "a");
    scratch.write("Contents/Resources/png/a@2x.png", "a");
    scratch.write("Contents/Resources/svg/b.svg", "b");
    scratch.write("Contents/png/a.png", "out");
    scratch.write("png/a.png", "out");
  }

  ScratchFolder scratch;
};

void ExpectInside(const fs::path& resources, const std::string& path) {
  const fs::path relative = fs::weakly_canonical(path).lexically_relative(fs::weakly_canonical(resources));
  Expect(!relative.empty() && *relative.begin() != "..", "a resource lies in its folder");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Bundle bundle;
  static const fs::path resources = bundle.scratch.path / "Contents" / "Resources";
  const std::string text(reinterpret_cast<const char*>(data), size);
  bundle.scratch.write("Contents/Resources/txt/IDToFile.txt", text);
  const qRVADM::IDToFile table(text);
  const host::ResourceTable ofHost(bundle.scratch.path);
  for (std::size_t start = 0; start < text.size(); start = text.find_first_of("\r\n", start)) {
    start = std::min(text.find_first_not_of("\r\n", start), text.size());
    const std::size_t end = std::min(text.find_first_of("\r\n", start), text.size());
    const auto line = qRVADM::ParseResourceLine(std::string_view(text).substr(start, end - start));
    if (!line) continue;
    Expect(line->type.size() <= 9 && !line->name.empty() && line->name.size() <= 127, "a line has its parts");
    if (const std::string* path = table.Find(line->id))
      ExpectInside(resources, resources.string() + "/" + *path);
    for (const bool dark : {false, true}) {
      const auto single = ofHost.picture(line->id, {dark, false});
      const auto doubled = ofHost.picture(line->id, {dark, true});
      Expect(single.has_value() <= doubled.has_value(), "single resolution makes up for double");
      if (doubled) ExpectInside(resources, *doubled);
    }
  }
  return 0;
}
