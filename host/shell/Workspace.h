// The drawings that are open, and the files they come from and go to.
#pragma once

#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "OpenDrawing.h"

namespace host {

class Host;
class Session;

class Workspace {
 public:
  Workspace(Host& host, Session& session) : host_(host), session_(session) {}
  Workspace(const Workspace&) = delete;
  Workspace& operator=(const Workspace&) = delete;
  ~Workspace();  // closes what is open

  // Opens the file, or turns to it if it is open already; it becomes the current one. The error is a
  // sentence that names the file.
  std::variant<OpenDrawing*, std::string> open(const std::string& file);
  // Opens the copy of a drawing whose own file is `file`, or none if empty, as changes that are in no file.
  // The error is a clause.
  std::variant<OpenDrawing*, std::string> recover(const std::string& copy, const std::string& title,
                                                  const std::string& file);
  // Writes the drawing to a file, which is its own from then on. Empty, or a sentence on why it was not
  // saved.
  std::string save(OpenDrawing& drawing, const std::string& file);
  // Empty, or a clause on why nothing but a saved drawing may be written there: the file is open.
  std::string whyNotOver(const std::string& file) const;
  void close(const OpenDrawing& drawing);  // the reference ends; changes are gone
  void makeCurrent(const OpenDrawing& drawing);

  OpenDrawing* current() const;                                                       // null if none is open
  const std::vector<std::unique_ptr<OpenDrawing>>& all() const { return drawings_; }  // in order of opening

 private:
  OpenDrawing& add(SvgDrawing drawing, const std::string& title, const std::string& file);
  OpenDrawing* drawingOf(const std::string& file) const;

  Host& host_;
  Session& session_;
  std::vector<std::unique_ptr<OpenDrawing>> drawings_;
};

}  // namespace host
