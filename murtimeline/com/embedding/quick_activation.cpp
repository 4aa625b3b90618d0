#include <murtimeline/com/embedding/ambient.h>
#include <murtimeline/com/embedding/misc_status.h>
#include <murtimeline/com/embedding/quick_activation.h>

namespace mur::com {
namespace {

// Zeros are numbers that the container did not fill in.
win32::Ambience AmbienceIn(const QACONTAINER& ContainerA) {
  win32::Ambience ambience;
  ambience.fontFace = FaceOfFont(ContainerA.pFont);
  ambience.userMode = (ContainerA.dwAmbientFlags & QACONTAINER_USERMODE) != 0;
  if (ContainerA.lcid != 0) ambience.localeName = LocaleNameOf(static_cast<LCID>(ContainerA.lcid));
  return ambience;
}

}  // namespace

// What the site itself says about its surroundings goes before what was filled in here.
HRESULT QuickActivation::QuickActivate(QACONTAINER* ContainerA, QACONTROL* ResultA) noexcept {
  if (!ContainerA || !ResultA) return E_POINTER;
  if (ContainerA->cbSize < sizeof *ContainerA || ResultA->cbSize < sizeof *ResultA) return E_UNEXPECTED;
  return Run([&] {
    *ResultA = {sizeof *ResultA, kMiscStatus, kViewStatus, 0, 0, 0};
    HRESULT result = mObject.SetClientSite(ContainerA->pClientSite);
    if (FAILED(result)) return result;
    mWindow.SetAmbience(AmbienceOf(ContainerA->pClientSite, AmbienceIn(*ContainerA)));
    if (ContainerA->pAdviseSink) result = mView.SetAdvise(DVASPECT_CONTENT, 0, ContainerA->pAdviseSink);
    if (ContainerA->pUnkEventSink) ResultA->dwEventCookie = Connect(ContainerA->pUnkEventSink);
    return result;
  });
}

// No connection is the number 0.
DWORD QuickActivation::Connect(IUnknown* SinkA) {
  IConnectionPoint* found = nullptr;
  if (FAILED(mEvents.FindConnectionPoint(__uuidof(::__MURTimelineRender), &found))) return 0;
  DWORD cookie = 0;
  return SUCCEEDED(TakeOver(found)->Advise(SinkA, &cookie)) ? cookie : 0;
}

}  // namespace mur::com
