#include "SourceKeys.h"

#include <gettext-po.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <vector>

namespace texts {
namespace {

namespace fs = std::filesystem;

// Functions, with the argument that is the key.
struct Askers {
  AskedKey::Kind kind;
  std::vector<const char*> functions;
};
const Askers kAskers[] = {
    {AskedKey::Kind::Text,
     {"Localize:1", "LocalizeItemText:2", "FormatLocalized:1", "TextKey:1", "ShowCriticalMessage:1"}},
    {AskedKey::Kind::Alert, {"ErrorAlert:1", "MessageAlert:1"}}};

std::vector<std::string> Sources(const fs::path& root, const std::string& folder) {
  std::vector<std::string> files;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root / folder)) {
    const fs::path extension = entry.path().extension();
    if (extension == ".cpp" || extension == ".h")
      files.push_back(entry.path().lexically_relative(root).string());
  }
  std::sort(files.begin(), files.end());
  return files;
}

void Run(std::vector<std::string> words) {
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  pid_t process = 0;
  int status = 0;
  if (posix_spawnp(&process, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0 ||
      waitpid(process, &status, 0) != process) {
    throw std::runtime_error("cannot run " + words[0]);
  }
  if (status != 0) throw std::runtime_error(words[0] + " failed: standard error says why");
}

// What is read was written just now: warnings have nothing to say of it.
void Complain(int severity, po_message_t /*message*/, const char* /*file*/, std::size_t /*line*/,
              std::size_t /*column*/, int /*multiline*/, const char* text) {
  if (severity == PO_SEVERITY_WARNING) return;
  std::fprintf(stderr, "extracted texts: %s\n", text);
  if (severity == PO_SEVERITY_FATAL_ERROR) std::exit(EXIT_FAILURE);
}

void ComplainOfTwo(int severity, po_message_t message, const char* file, std::size_t line, std::size_t column,
                   int multiline, const char* text, po_message_t /*message2*/, const char* /*file2*/,
                   std::size_t /*line2*/, std::size_t /*column2*/, int /*multiline2*/,
                   const char* /*text2*/) {
  Complain(severity, message, file, line, column, multiline, text);
}

// A file without a name, which is gone when it is closed.
struct Closer {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using ScratchFile = std::unique_ptr<std::FILE, Closer>;

struct FileFreer {
  void operator()(po_file_t file) const { po_file_free(file); }
};
struct IteratorFreer {
  void operator()(po_message_iterator_t iterator) const { po_message_iterator_free(iterator); }
};

void AskForMessages(AskedKeys& keys, AskedKey::Kind kind, const std::string& messages) {
  const po_xerror_handler handler = {Complain, ComplainOfTwo};
  const std::unique_ptr<po_file, FileFreer> file(po_file_read(messages.c_str(), &handler));
  if (!file) throw std::runtime_error("cannot read " + messages);
  const std::unique_ptr<struct po_message_iterator, IteratorFreer> iterator(
      po_message_iterator(file.get(), nullptr));
  while (po_message_t const message = po_next_message(iterator.get())) {
    const std::string english = po_message_msgid(message);
    if (english.empty()) continue;  // the head of the file
    po_filepos_t const place = po_message_filepos(message, 0);
    AskFor(keys, {kind, english,
                  std::string(po_filepos_file(place)) + ':' + std::to_string(po_filepos_start_line(place))});
  }
}

}  // namespace

void AskForSourceTexts(AskedKeys& keys, const fs::path& root, const std::string& folder) {
  const std::vector<std::string> sources = Sources(root, folder);
  for (const Askers& askers : kAskers) {
    const ScratchFile scratch(std::tmpfile());
    if (!scratch) throw std::runtime_error("cannot make a scratch file");
    const std::string messages = "/proc/self/fd/" + std::to_string(fileno(scratch.get()));
    std::vector<std::string> command = {"xgettext",
                                        "--language=C++",
                                        "--from-code=UTF-8",
                                        "--force-po",
                                        "--no-wrap",
                                        "--directory=" + root.string(),
                                        "--output=" + messages,
                                        "--keyword"};
    for (const char* const function : askers.functions)
      command.push_back(std::string("--keyword=") + function);
    command.insert(command.end(), sources.begin(), sources.end());
    Run(command);
    AskForMessages(keys, askers.kind, messages);
  }
}

}  // namespace texts
