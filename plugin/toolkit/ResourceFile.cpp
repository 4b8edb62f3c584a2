#include "ResourceFile.h"

namespace qRVADM {

ResourceFile::ResourceFile(const std::string& path) : error(kSPSuiteNotFoundError) {
  if (sAIDataFilter == nullptr) return;
  error = sAIDataFilter->NewFileDataFilter(path.c_str(), kAIReadFilterMode, &filter);
  if (error == kNoErr) error = sAIDataFilter->LinkDataFilter(filter);
}

ResourceFile::~ResourceFile() {
  if (filter != nullptr) sAIDataFilter->UnlinkDataFilter(filter);
}

std::size_t ResourceFile::Read(char* buffer, std::size_t size) {
  return sAIDataFilter->ReadDataFilter(filter, buffer, &size) == kNoErr ? size : 0;
}

}  // namespace qRVADM
