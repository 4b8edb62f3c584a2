#include "Registrations.h"

namespace host {

SPAccessRef PluginRecord::access() const {
  return makeHandle<SPAccessRef>(HandleKind::PluginAccess, 0, idOfHandle(handle, kKind, 0));
}

SPFileRef PluginRecord::file() const {
  return makeHandle<SPFileRef>(HandleKind::File, 0, idOfHandle(handle, kKind, 0));
}

}  // namespace host
