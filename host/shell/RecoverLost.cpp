#include "RecoverLost.h"

#include <QMainWindow>
#include <utility>
#include <variant>

#include "Autosave.h"
#include "DeadSessions.h"
#include "DrawingTabs.h"
#include "RecoveryQuestion.h"
#include "WindowParts.h"
#include "Workspace.h"

namespace host {
namespace {

std::vector<std::string> recover(const WindowParts& parts, Autosave& autosave, DeadSessions& dead) {
  std::vector<std::string> sentences;
  std::vector<std::string> damaged;
  for (const LostDrawing& lost : dead.drawings()) {
    auto recovered = parts.workspace.recover(lost.copy, lost.note.title, lost.note.file);
    if (const std::string* reason = std::get_if<std::string>(&recovered)) {
      sentences.push_back("cannot recover " + lost.note.title + ": " + *reason + "; its copy is kept as ");
      damaged.push_back(lost.copy);
    } else {
      parts.tabs.turnTo(*std::get<OpenDrawing*>(recovered));
    }
  }
  autosave.writeNow();
  const std::vector<std::string> kept = dead.clear(damaged);
  for (std::size_t i = 0; i < kept.size(); ++i) sentences[i] += kept[i];
  return sentences;
}

}  // namespace

void offerLost(const WindowParts& parts, Autosave& autosave, const std::string& root) {
  DeadSessions dead(root);
  if (dead.drawings().empty()) return;
  switch (askAboutLost(dead.drawings(), &parts.window)) {
    case RecoveryAnswer::Recover: {
      const std::vector<std::string> sentences = recover(parts, autosave, dead);
      parts.refresh();
      parts.tell(sentences);
      break;
    }
    case RecoveryAnswer::Discard:
      dead.clear();
      break;
    case RecoveryAnswer::Later:
      break;
  }
}

}  // namespace host
