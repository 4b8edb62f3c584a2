// The product with everything that a user can do, in a window without a drawing: small enough that an action
// can be repeated for each of its suite calls.
#pragma once

#include <QDialog>
#include <QMainWindow>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "AnnotationCanvas.h"
#include "PanelDesk.h"
#include "Sanitized.h"
#include "ScratchFolder.h"
#include "ToolMessages.h"
#include "World.h"

class QListWidget;

namespace host {

// Every so many calls one is refused.
#ifdef CORVANE_ADDRESS_SANITIZER
constexpr std::uint64_t kStride = 5;
#else
constexpr std::uint64_t kStride = 1;
#endif

constexpr char kPaletteKey[] = "Create Line Type Layers";
constexpr char kPreferencesKey[] = "corvane Preferences...";

class RefusalWorld : public QObject, public AnnotationCanvas {
 public:
  // The plug-in is not loaded yet.
  explicit RefusalWorld(const std::string& svg);
  ~RefusalWorld() override;

  std::string load();  // the plug-in's start; the complaint of the session
  void open();         // the drawing

  // --- what a user does ---
  void choose(const char* menuKey) { note(session.chooseMenuItem(menuKey)); }
  void note(std::optional<SPErr> code) { answer = code; }
  AIToolHandle tool(AIToolType number) { return host.tools().byNumber(number)->handle; }
  void showPalette(bool show);
  void clickRow(int row);  // of the palette
  void pressPaletteButton();
  // The paths with these names are selected, nothing else.
  void select(const std::vector<std::string>& names);
  // Done in the next dialog, before it is accepted. What the dialog does not have is passed over.
  std::function<void(QDialog&)> hands;
  // Of the marks command: shape 0 round, 1 cross; action 1 corner, 2 auto, 3 edge; points.
  void setOptions(std::int32_t shape, std::int32_t action, double size, double weight);

  // --- what there is to see ---
  void settle();  // all that the action has left for later
  std::string saved() const { return writeSvg(drawing); }
  std::size_t steps() const { return drawing.document->undoCount(); }
  std::vector<std::string> said() const;  // all alerts so far
  QListWidget* paletteRows();             // null if there is no palette
  std::string customFile() const { return scratch.read(kCustomFile); }
  void writeCustomFile() const;  // one line type, "Mine"

  // But for the one that is acquired once a process, when it is first wanted.
  std::int32_t heldSuites() const { return host.holds() - host.holds("AS User Interaction Suite"); }
  // Host objects that a plug-in disposes of: strings, paths, copies of artboard lists, filters and so on.
  std::size_t ownedObjects();

  void drawRect(const AIRect&, const AnnotationPen&, bool) override { ++rects; }
  int rects = 0;

  World::Application application;
  std::optional<SPErr> answer;  // of the last message
  SvgDrawing drawing;
  Host host;

 private:
  static constexpr char kCustomFile[] = "shared/Vandrell/corvane/CustomLayerDefinition.json";

  bool eventFilter(QObject* watched, QEvent* event) override;

  ScratchFolder scratch;
  QMainWindow window;
  PanelDesk desk{window, host, [] {}};

 public:
  Session session{host};
  DialogAnswerer answerer{host};
  std::optional<ToolMessages> tools;
};

}  // namespace host
