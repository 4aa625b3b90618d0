#include <murtimeline/model/span_watcher.h>

namespace mur {
namespace {
// A plain pointer: objects may change after all else of the thread has ended.
thread_local SpanWatcher* tFirst = nullptr;
}  // namespace

SpanWatcher::SpanWatcher() noexcept : mNext(tFirst) {
  if (mNext) mNext->mBefore = this;
  tFirst = this;
}

SpanWatcher::~SpanWatcher() {
  (mBefore ? mBefore->mNext : tFirst) = mNext;
  if (mNext) mNext->mBefore = mBefore;
}

void SpanWatcher::TellAll(const IMURTimelineObject& ObjectA, const IMURTLObjectEventSink& SinkA) noexcept {
  for (SpanWatcher* watcher = tFirst; watcher; watcher = watcher->mNext)
    watcher->AboutToChange(ObjectA, SinkA);
}

}  // namespace mur
