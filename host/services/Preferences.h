// The preference store: typed values by prefix and suffix, kept in one text file.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace host {

using PreferenceValue = std::variant<bool, std::int32_t, double, std::string>;

// An empty prefix is a key of the application itself. Strings are UTF-8; invalid bytes become U+FFFD.
//
// Over the stored values lie overlays: values for this run, from a command line. They hide what is
// stored, are never written, and end when their key is put.
class Preferences {
 public:
  Preferences();  // in memory only
  Preferences(Preferences&&) noexcept;
  Preferences& operator=(Preferences&&) noexcept;
  ~Preferences();

  // Reads the file, which need not exist. `complaint` is empty, or one sentence on why the file could not
  // be understood; the store is then empty. A save that finds such a file sets it aside under another name.
  static Preferences load(std::string file, std::string& complaint);
  // Writes the values that were put since the last save into what lies in the file by then, so that programs
  // which share it keep each other's. Waits a second at most for one that is just writing. Empty, or one
  // sentence on why not: the next save then tries again.
  std::string save();
  // Takes over what others have stored under the prefix meanwhile, but for what was put here and not saved
  // yet. Without it a value stays what it was when the file was read, or what was put here.
  void catchUp(std::string_view prefix);

  bool exists(std::string_view prefix, std::string_view suffix) const;
  // Nullopt if there is no such key or it holds a value of another kind.
  std::optional<bool> boolean(std::string_view prefix, std::string_view suffix) const;
  std::optional<std::int32_t> integer(std::string_view prefix, std::string_view suffix) const;
  std::optional<double> real(std::string_view prefix, std::string_view suffix) const;
  std::optional<std::string> string(std::string_view prefix, std::string_view suffix) const;

  // False, and nothing stored, for a real that is not finite.
  bool put(std::string_view prefix, std::string_view suffix, PreferenceValue value);

  void overlay(std::string_view prefix, std::string_view suffix, PreferenceValue value);
  // "PREFIX/SUFFIX=VALUE"; the suffix begins behind the last "/" before the first "=". Whoever asks for
  // the key gets the text as the kind he asks for, if it can be read so: "1" and "true" are true. Empty,
  // or one sentence on what is wrong with the text.
  std::string overlayText(std::string_view assignment);

 private:
  struct Store;
  std::unique_ptr<Store> store_;
};

}  // namespace host
