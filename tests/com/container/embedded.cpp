#include "tests/com/container/embedded.h"

namespace mur::test {

TestContainer::TestContainer()
    : mWindow(CreateWindowExW(0, L"STATIC", L"Container", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 900, 600,
                              nullptr, nullptr, GetModuleHandleW(nullptr), nullptr)) {
  site = Ref(new Site(mWindow, book));
  site->frame = Ref(new FrameWindow("frame", mWindow, book));
  site->document = Ref(new FrameWindow("document", mWindow, book));
}

TestContainer::~TestContainer() {
  site->repositions = {};
  site->frame->active = {};
  site->document->active = {};
  Destroy();
}

void TestContainer::Destroy() {
  if (IsWindow(mWindow)) DestroyWindow(mWindow);
}

Late AddBarTo(const Late& ControlA) {
  const Value noon = Value::Date(36526.5);
  // Attached by its property, the time line gets a cursor and the canvas counts pixels.
  ControlA.Put(L"Timeline", {ControlA.Get(L"Timeline")});
  ControlA.Put(L"WorldTimeT0", {noon});
  ControlA.Put(L"Duration", {500.0});
  ControlA.Put(L"CursorTime", {Value::Date(36526.5 + 400.0 / 86400)});
  const Late timeline(ControlA.Get(L"Timeline"));
  const Late bar(timeline.Call(L"Add", {2, L"Bar", true}));
  bar.Put(L"WorldTimeT0", {Value::Date(36526.5 + 100.0 / 86400)});
  bar.As<::_CMURTimelineMedia>().Put(L"MediaDuration", {100.0});
  bar.Put(L"Duration", {100.0});
  ControlA.Call(L"AlignTracks");
  PumpMessages();
  return bar;
}

Embedded::Embedded() {
  Require(mObject->SetClientSite(container.site.Get()), "SetClientSite");
  Require(As<IPersistStreamInit>()->InitNew(), "InitNew");
}

Embedded::~Embedded() {
  container.book.reactions.clear();
  if (!control) return;
  mObject->Close(OLECLOSE_NOSAVE);
  mObject->SetClientSite(nullptr);
  // Members and their time line hold each other.
  Late(control.Get(L"Timeline")).Call(L"Clear");
}

void Embedded::Show() {
  Require(Do(OLEIVERB_INPLACEACTIVATE), "DoVerb");
  PumpMessages();
  container.book.Take();
}

HWND Embedded::Window() const {
  HWND window = nullptr;
  As<IOleInPlaceObject>()->GetWindow(&window);
  return window;
}

HWND Embedded::Scale() const {
  return ChildWindowFromPoint(Window(), {5, 5});
}

HWND Embedded::Canvas() const {
  return ChildWindowFromPoint(Window(), {5, 100});
}

std::string Embedded::Place() const {
  RECT place{};
  GetWindowRect(Window(), &place);
  MapWindowPoints(nullptr, GetParent(Window()), reinterpret_cast<POINT*>(&place), 2);
  return std::to_string(place.left) + "," + std::to_string(place.top) + " " +
         std::to_string(place.right - place.left) + "x" + std::to_string(place.bottom - place.top);
}

void Embedded::Click(int XA, int YA) const {
  const HWND canvas = Canvas();
  SendMessageW(canvas, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(XA, YA));
  SendMessageW(canvas, WM_LBUTTONUP, 0, MAKELPARAM(XA, YA));
}

void Embedded::LetGo() {
  mObject = {};
  control = {};
}

std::string Embedded::PressKey(WPARAM KeyA) const {
  MSG message{};
  message.hwnd = Canvas();
  message.message = WM_KEYDOWN;
  message.wParam = KeyA;
  return ResultText(As<IOleInPlaceActiveObject>()->TranslateAccelerator(&message));
}

void PumpMessages() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

DWORD HandlesInUse() {
  return GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS) +
         GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
}

}  // namespace mur::test
