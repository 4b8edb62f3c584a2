#include "AIDataFilter.h"

#include <filesystem>
#include <string_view>

#include "Entry.h"
#include "HostObjects.h"
#include "Suites.h"

namespace host {
namespace {

AIErr newFileFilter(Host& host, const char* path, const char* mode, AIDataFilterHandle* filter) {
  if (filter == nullptr) return kBadParameterErr;
  *filter = nullptr;
  if (path == nullptr || mode == nullptr) return kBadParameterErr;
  if (std::string_view(mode) != kAIReadFilterMode) return kSPUnsupportedError;
  *filter = host.objects().dataFilters.make({path, nullptr});
  return *filter == nullptr ? kOutOfMemoryErr : kNoErr;
}

AIErr linkFilter(Host& host, AIDataFilterHandle filter) {
  DataFilter* found = host.objects().dataFilters.find(filter);
  if (found == nullptr || found->file != nullptr) return kBadParameterErr;
  std::error_code ignored;  // a pipe would keep the caller waiting for a writer
  if (!std::filesystem::is_regular_file(found->path, ignored)) return kNoSuchItemErr;
  found->file.reset(std::fopen(found->path.c_str(), "rb"));
  return found->file == nullptr ? kNoSuchItemErr : kNoErr;
}

AIErr readFilter(Host& host, AIDataFilterHandle filter, char* buffer, std::size_t* count) {
  if (count == nullptr) return kBadParameterErr;
  const std::size_t wanted = *count;
  *count = 0;
  const DataFilter* found = host.objects().dataFilters.find(filter);
  if (found == nullptr || found->file == nullptr || buffer == nullptr) return kBadParameterErr;
  const std::size_t got = std::fread(buffer, 1, wanted, found->file.get());
  if (got < wanted && std::ferror(found->file.get()) != 0) return kFilterReadErr;
  *count = got;
  return kNoErr;
}

AIErr unlinkFilter(Host& host, AIDataFilterHandle filter) {
  return host.objects().dataFilters.dispose(filter) ? kNoErr : kBadParameterErr;
}

}  // namespace

SuiteOffer dataFilterSuite() {
  SuiteEntries entries(kAIDataFilterSuite);
  static const AIDataFilterSuite table{
      entries.add<newFileFilter>("NewFileDataFilter"),
      entries.add<linkFilter>("LinkDataFilter"),
      entries.add<readFilter>("ReadDataFilter"),
      entries.add<unlinkFilter>("UnlinkDataFilter"),
  };
  return entries.offer(kAIDataFilterSuiteVersion, &table);
}

}  // namespace host
