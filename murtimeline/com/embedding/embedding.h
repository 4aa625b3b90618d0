#pragma once

#include <memory>

#include <murtimeline/com/event_source.h>
#include <murtimeline/win32/timeline_window.h>

namespace mur::com {

/// What containers want of a control beyond its own members: to be embedded, activated in place, drawn, and
/// asked for its state. Property pages, and notices of changed properties, are not offered; nor is safety for
/// scripts of unknown origin, which is a host's own decision.
class Embedding {
 public:
  /// All of these outlive this object; `ControlA` is the identity of the whole.
  Embedding(IUnknown& ControlA, EventSource& EventsA, win32::TimelineWindow& WindowA);
  ~Embedding();
  Embedding(const Embedding&) = delete;
  Embedding& operator=(const Embedding&) = delete;

  /// The interface of that type, not counted; none when there is none.
  IUnknown* Find(REFIID InterfaceA) noexcept;

 private:
  struct Parts;
  const std::unique_ptr<Parts> mParts;
};

}  // namespace mur::com
