#include "LoadResource.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <limits>

#include "AIError.h"
#include "IAIFilePath.h"
#include "IDToFile.h"
#include "MallocBytes.h"
#include "ResourceFile.h"
#include "SPPlugins.h"

namespace qRVADM {
namespace {

constexpr std::size_t kChunk = 16384;
constexpr std::size_t kLargest = std::numeric_limits<int>::max() - kChunk;

// Empty if the host does not tell.
std::string BundlePath(SPPluginRef plugin) {
  SPFileRef file = nullptr;
  if (sSPPlugins == nullptr || sSPPlugins->GetPluginFileSpecification(plugin, &file) != kSPNoError) return {};
  try {
    return ai::FilePath(file).GetFullPath().as_UTF8();
  } catch (const ai::Error&) {
    return {};
  }
}

// A link may lead anywhere; what ships with the plug-in lies in its folder.
bool LiesIn(const std::string& folder, const std::string& file) {
  std::error_code error;
  const std::filesystem::path inner = std::filesystem::canonical(file, error);
  if (error) return false;
  const std::filesystem::path outer = std::filesystem::canonical(folder, error);
  if (error) return false;
  return std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first == outer.end();
}

// 0 if there is nothing to read or no memory for it.
std::size_t ReadWhole(ResourceFile& file, MallocBytes& bytes) {
  std::size_t total = 0;
  for (std::size_t got = kChunk; got == kChunk; total += got) {
    if (total > kLargest || !Resize(bytes, total + kChunk)) return 0;
    got = file.Read(bytes.get() + total, kChunk);
  }
  return total;
}

}  // namespace

int LoadResource(SPPluginRef plugin, int id, char** data) {
  if (data != nullptr) *data = nullptr;
  const std::string bundle = BundlePath(plugin);
  if (bundle.empty()) return 0;
  const std::string* path = TheIDToFile(bundle).Find(id);
  if (path == nullptr) return 0;
  const std::string folder = bundle + "/Contents/Resources/";
  if (!LiesIn(folder, folder + *path)) return 0;
  ResourceFile file(folder + *path);
  if (!file.IsOpen()) return 0;
  if (data == nullptr) return 1;
  MallocBytes bytes;
  const std::size_t size = ReadWhole(file, bytes);
  if (size > 0) *data = bytes.release();
  return static_cast<int>(size);
}

}  // namespace qRVADM
