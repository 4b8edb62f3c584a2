// What stands in a panel of the application itself.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>

class QMenu;

namespace host {

class Document;
class Host;
class Session;

class HostPanel : public QWidget {
 public:
  // The others must outlive it. `onChange` is called when the user has changed the document here.
  HostPanel(Host& host, Session& session, std::function<void()> onChange);

  // To be called after anything may have changed; cheap if nothing has.
  virtual void refresh() = 0;
  // What can be done with what is chosen in the panel. Deletes itself when it has closed.
  QMenu* makeMenu();

 protected:
  void fillWith(QWidget& content);  // which becomes its own
  virtual void fillMenu(QMenu& menu) = 0;
  void addCommand(QMenu& menu, const QString& text, bool isEnabled, std::function<void()> command);

  std::shared_ptr<Document> document() const;  // null if none is open
  // One step of the current document. Nothing happens while a dialog waits for its answer.
  void edit(const char* stepName, const std::function<void(Document&)>& change);
  // What is chosen, which is no step.
  void choose(const std::function<void(Document&)>& choice);

 private:
  Host& host_;
  Session& session_;
  std::function<void()> onChange_;
};

}  // namespace host
