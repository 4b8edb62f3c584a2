#include "FilePathText.h"

#include <algorithm>

#include "AIError.h"

AIErr CopyFullPath(const ai::FilePath& path, char* buffer, std::size_t size) {
  try {
    const std::string text = path.GetFullPath().as_UTF8();
    if (text.size() >= size) return kPathTooLongErr;
    std::copy_n(text.c_str(), text.size() + 1, buffer);
    return kNoErr;
  } catch (const ai::Error& error) {
    return error.code;
  }
}
