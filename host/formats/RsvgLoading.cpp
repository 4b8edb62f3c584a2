#include "RsvgLoading.h"

namespace host {

RsvgPointer loadRsvg(const std::string& svg, const std::filesystem::path& file, std::string& reason,
                     RsvgHandleFlags flags) {
  const std::unique_ptr<GInputStream, ObjectUnref> stream(
      g_memory_input_stream_new_from_data(svg.data(), static_cast<gssize>(svg.size()), nullptr));
  const std::unique_ptr<GFile, ObjectUnref> base(
      file.empty() ? nullptr : g_file_new_for_path(std::filesystem::absolute(file).c_str()));
  GError* error = nullptr;
  RsvgPointer handle(rsvg_handle_new_from_stream_sync(
      stream.get(), base.get(), static_cast<RsvgHandleFlags>(flags | RSVG_HANDLE_FLAG_UNLIMITED), nullptr,
      &error));
  if (!handle) reason = takeMessage(error);
  return handle;
}

std::string takeMessage(GError* error) {
  std::string text = error != nullptr ? error->message : "it could not be drawn";
  g_clear_error(&error);
  while (!text.empty() && (text.back() == '\n' || text.back() == '.')) text.pop_back();
  return text;
}

}  // namespace host
