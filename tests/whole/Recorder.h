// What the test bundle Recorder was sent.
#pragma once

#include <dlfcn.h>

#include <string>

#include "World.h"

namespace host {

// One line a message since the last call, "caller | selector"; nothing if the bundle was never loaded.
inline std::string takeRecorded() {
  void* image =
      dlopen((testBundle("Recorder") / "Contents/Linux/Recorder.so").c_str(), RTLD_NOW | RTLD_NOLOAD);
  if (image == nullptr) return {};
  using Take = const char* (*)();
  std::string text = reinterpret_cast<Take>(dlsym(image, "TakeRecordedMessages"))();
  dlclose(image);
  return text;
}

}  // namespace host
