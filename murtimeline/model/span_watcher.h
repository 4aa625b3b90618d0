#pragma once

#include <limits>

#include <murtimeline/automation/date.h>
#include <murtimeline/automation/export.h>

namespace mur {

class IMURTimelineObject;
class IMURTLObjectEventSink;

/// The time from a first moment to a last one; empty at the start.
struct MUR_API TimeSpan {
  Date first = Date::Unchecked(std::numeric_limits<double>::infinity());
  Date last = Date::Unchecked(-std::numeric_limits<double>::infinity());

  bool Contains(Date TimeA) const noexcept { return first <= TimeA && TimeA <= last; }
};

/// Hears of changes of objects before anyone else does, for what was computed from many of them and must not
/// be computed anew for a few.
///
/// An object that was asked for its span by `WatchSpan` calls every watcher of its thread once, just before
/// its span, kind, key or sink changes, and then not again until it is asked anew.
class MUR_API SpanWatcher {
 public:
  SpanWatcher(const SpanWatcher&) = delete;
  SpanWatcher& operator=(const SpanWatcher&) = delete;

  /// `SinkA` is the one for which the object was asked for its span. Must not change anything on a time line.
  virtual void AboutToChange(const IMURTimelineObject& ObjectA,
                             const IMURTLObjectEventSink& SinkA) noexcept = 0;

  /// Calls all watchers of this thread.
  static void TellAll(const IMURTimelineObject& ObjectA, const IMURTLObjectEventSink& SinkA) noexcept;

 protected:
  SpanWatcher() noexcept;
  ~SpanWatcher();

 private:
  SpanWatcher* mBefore = nullptr;
  SpanWatcher* mNext;
};

}  // namespace mur
