// Arbitrary bytes as a file of preferences, as one that a command line gives, and as the note on a copy of
// unsaved work.
#include <cstdint>
#include <string>

#include "Expect.h"
#include "FuzzTarget.h"
#include "Preferences.h"
#include "RecoveryNote.h"
#include "ScratchFolder.h"

namespace {

using host::Preferences;

Preferences Load(const std::string& file, bool& isUnderstood) {
  std::string complaint;
  Preferences preferences = Preferences::load(file, complaint);
  isUnderstood = complaint.empty();
  return preferences;
}

void ExpectSame(const Preferences& one, const Preferences& other) {
  for (const char* prefix : {"", "a", "corvane"}) {
    for (const char* suffix : {"", "b", "size"}) {
      Expect(one.exists(prefix, suffix) == other.exists(prefix, suffix), "what was stored is there");
      Expect(one.boolean(prefix, suffix) == other.boolean(prefix, suffix), "a switch is kept");
      Expect(one.integer(prefix, suffix) == other.integer(prefix, suffix), "a number is kept");
      Expect(one.real(prefix, suffix) == other.real(prefix, suffix), "a real is kept");
      Expect(one.string(prefix, suffix) == other.string(prefix, suffix), "a text is kept");
    }
  }
}

void CheckFile(const std::string& text) {
  static const ScratchFolder scratch;
  const std::string file = scratch.write("preferences.json", text);
  bool isUnderstood = false;
  Preferences preferences = Load(file, isUnderstood);
  Expect(preferences.put("fuzz", "text", text) && preferences.put("fuzz", "real", 0.1),
         "there is room for more");
  Expect(preferences.save().empty(), "what was read can be stored");
  Expect(scratch.has("preferences.json.broken") != isUnderstood, "a broken file is set aside");
  std::filesystem::remove(scratch.file("preferences.json.broken"));
  bool isUnderstoodAgain = false;
  const Preferences again = Load(file, isUnderstoodAgain);
  Expect(isUnderstoodAgain, "what was stored can be read");
  Expect(again.string("fuzz", "text").has_value() && again.real("fuzz", "real") == 0.1,
         "with what was added");
  ExpectSame(preferences, again);
}

void CheckOverlay(const std::string& text) {
  Preferences preferences;
  const bool isUsed = preferences.overlayText(text).empty();
  Expect(!isUsed || text.find('=') != std::string::npos, "a preference has a value");
  if (!isUsed) return;
  const std::size_t equals = text.find('=');
  const std::size_t slash = text.rfind('/', equals);
  const std::string prefix = slash == std::string::npos ? "" : text.substr(0, slash);
  const std::string suffix = text.substr(slash + 1, equals - slash - 1);
  Expect(preferences.string(prefix, suffix).has_value(), "what was given is there");
}

void CheckNote(const std::string& text) {
  const host::RecoveryNote note = host::noteFromJson(text);
  const host::RecoveryNote again = host::noteFromJson(host::noteAsJson(note));
  Expect(again.title == note.title && again.file == note.file && again.time == note.time, "a note is kept");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  CheckFile(text);
  CheckOverlay(text);
  CheckNote(text);
  return 0;
}
