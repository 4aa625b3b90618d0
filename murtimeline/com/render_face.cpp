#include <murtimeline/com/render_face.h>
#include <murtimeline/com/type_library.h>

namespace mur::com {

Ref<MURTimelineRender> RenderFace::MakeControl() {
  auto window = std::make_unique<win32::TimelineWindow>(ServerModule());
  auto control = Make<MURTimelineRender>(*window);
  control->SetFace(new RenderFace(*control, std::move(window)));
  return control;
}

RenderFace::RenderFace(MURTimelineRender& ControlA, std::unique_ptr<win32::TimelineWindow> WindowA)
    : RenderBarsFace(ControlA),
      mWindow(std::move(WindowA)),
      mEvents(*Identity(), Source(), *this),
      mEmbedding(*Identity(), mEvents, *mWindow) {
  mWindow->Attach(ControlA);
}

IUnknown* RenderFace::Further(REFIID InterfaceA) noexcept {
  return InterfaceA == IID_IConnectionPointContainer ? &mEvents : mEmbedding.Find(InterfaceA);
}

IID RenderFace::Source() const noexcept {
  return __uuidof(::__MURTimelineRender);
}

void RenderFace::ListenersCame() {
  mConnections = ConnectRenderEvents(mControl, mEvents);
}

}  // namespace mur::com
