// The pictures of a bundle by their resource ids.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace host {

// Reads Contents/Resources/txt/IDToFile.txt of a bundle: one picture a line, as "17201.PNG tool-round.png"
// or, for scanf, "%d.%9s %127s". A file lies in the folder that is named like its extension:
// png/tool-round.png. Lines that do not read so, those of the type "xml" and names that lead out of the
// resource folder are passed over; of two lines with one id the later one counts. Ids from 16000 to 16999 and
// from 24000 to 24999 stand for a light version at 1000 above and a dark one at 2000 above. A picture in
// double resolution lies beside the other, with "@2x" before the extension.
class ResourceTable {
 public:
  ResourceTable() = default;  // of no bundle
  explicit ResourceTable(const std::filesystem::path& bundle);

  struct Version {
    bool dark = false;
    bool doubled = false;
  };
  // Absolute path of a file that exists. A version that the bundle lacks is made up for: by a picture of that
  // very id, and by single resolution. Nullopt if there is none at all.
  std::optional<std::string> picture(int id, Version version) const;

 private:
  void add(std::string_view line);
  std::optional<std::string> file(int id, bool doubled) const;
  std::optional<std::string> existing(const std::string& relative) const;

  std::filesystem::path folder_;      // of the resources
  std::map<int, std::string> files_;  // relative to the folder, single resolution
};

}  // namespace host
