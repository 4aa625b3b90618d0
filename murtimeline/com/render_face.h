#pragma once

#include <memory>

#include <murtimeline/com/embedding/embedding.h>
#include <murtimeline/com/event_source.h>
#include <murtimeline/com/render_bars_face.h>
#include <murtimeline/com/render_events.h>
#include <murtimeline/win32/timeline_window.h>

namespace mur::com {

/// The control as hosts see it: its members and events, and what containers want of a control.
class RenderFace final : public RenderBarsFace, private EventSource::Owner {
 public:
  /// A new control with its window's host and its face.
  static Ref<MURTimelineRender> MakeControl();

 private:
  RenderFace(MURTimelineRender& ControlA, std::unique_ptr<win32::TimelineWindow> WindowA);

  IUnknown* Further(REFIID InterfaceA) noexcept override;
  IID Source() const noexcept override;
  void ListenersCame() override;
  void ListenersWent() override { mConnections.clear(); }

  // The control itself ends before its face does.
  const std::unique_ptr<win32::TimelineWindow> mWindow;
  EventSource mEvents;
  std::vector<Connection> mConnections;
  Embedding mEmbedding;
};

}  // namespace mur::com
