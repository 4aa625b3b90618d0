#pragma once

#include <QtGlobal>
#include <exception>
#include <utility>

namespace mur::qt {

/// Runs what a Qt event handler does: nothing that is thrown below it, by a listener say, may reach Qt's own
/// frames. It ends here with a warning. True when the work completed.
template <class Work>
bool GuardEvent(Work&& WorkA) noexcept {
  try {
    std::forward<Work>(WorkA)();
    return true;
  } catch (const std::exception& error) {
    qWarning("murtimeline: an event handler failed: %s", error.what());
  } catch (...) {
    qWarning("murtimeline: an event handler failed");
  }
  return false;
}

}  // namespace mur::qt
