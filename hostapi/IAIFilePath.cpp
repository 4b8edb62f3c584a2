#include "IAIFilePath.h"

#include "AIError.h"

namespace ai {
namespace {

const AIFilePathSuite& Suite() {
  if (sAIFilePath == nullptr) throw Error(kSPSuiteNotFoundError);
  return *sAIFilePath;
}

}  // namespace

FilePath::FilePath() {
  ThrowOnError(Suite().New(&path_));
}

FilePath::FilePath(SPFileRef file) : FilePath() {
  ThrowOnError(Suite().SetFromFileReference(path_, file));
}

FilePath::~FilePath() {
  if (path_ != nullptr && sAIFilePath != nullptr) sAIFilePath->Dispose(path_);
}

UnicodeString FilePath::GetFullPath() const {
  UnicodeString text;
  ThrowOnError(Suite().GetFullPath(path_, text.handle()));
  return text;
}

}  // namespace ai
