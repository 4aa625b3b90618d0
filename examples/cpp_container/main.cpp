// A window with the control in it, by the host that comes with Windows (atl.dll): a time line of three bars
// that can be dragged.
//
//   cpp_container [--once]    with --once it closes itself after it has shown and told what it holds
#include <cstdio>
#include <string>

#include <comdef.h>
#include <murtimeline_contract.h>
#include <wrl/client.h>

using Microsoft::WRL::ComPtr;

namespace {

constexpr double kSixOClock = 36526.25;  // days: 1 January 2000

void Check(HRESULT ResultA) {
  if (FAILED(ResultA)) throw _com_error(ResultA);
}

/// What the platform's host of controls offers, which has neither header nor library everywhere.
struct ControlHost {
  const HMODULE library = LoadLibraryW(L"atl.dll");

  template <class Function>
  Function* Find(const char* NameA) const {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, NameA)));
  }
  void Start() const {
    if (!library || !Find<BOOL WINAPI()>("AtlAxWinInit")()) throw _com_error(E_NOINTERFACE);
  }
  ComPtr<_MURTimelineRender> ControlIn(HWND WindowA) const {
    ComPtr<IUnknown> control;
    Check(Find<HRESULT WINAPI(HWND, IUnknown**)>("AtlAxGetControl")(WindowA, &control));
    ComPtr<_MURTimelineRender> result;
    Check(control.As(&result));
    return result;
  }
};

ComPtr<IMURTimelineObject> Add(_CMURTimeline& TimelineA, const wchar_t* KeyA, double StartA,
                               double DurationA) {
  _variant_t key(KeyA);
  ComPtr<IMURTimelineObject> bar;
  Check(TimelineA.Add(murtlotGroup, &key, VARIANT_TRUE, &bar));
  Check(bar->put_WorldTimeT0(kSixOClock + StartA / 86400));
  Check(bar->put_Duration(DurationA));
  return bar;
}

void Fill(_MURTimelineRender& ControlA) {
  ComPtr<_CMURTimeline> timeline;
  Check(CoCreateInstance(__uuidof(CMURTimeline), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&timeline)));
  Check(ControlA.putref_Timeline(timeline.Get()));  // attach first, then fill
  Check(ControlA.put_WorldTimeT0(kSixOClock));
  Check(ControlA.put_Duration(120));
  Check(ControlA.put_AutoObjectCaption(5, etlctTag));
  Check(ControlA.put_AllowObjectDragging(VARIANT_TRUE));
  Check(ControlA.put_FollowAllStarts(VARIANT_TRUE));  // bars go where their objects go
  Check(ControlA.put_CursorTime(kSixOClock + 50.0 / 86400));
  Check(Add(*timeline.Get(), L"Scene 1", 0, 60)->put_Tag(_bstr_t(L"Arrival")));
  Check(Add(*timeline.Get(), L"Scene 2", 45, 50)->put_Tag(_bstr_t(L"The letter")));
  Check(Add(*timeline.Get(), L"Scene 3", 90, 30)->put_Tag(_bstr_t(L"Departure")));
  Check(ControlA.AlignTracks());
}

void Tell(_MURTimelineRender& ControlA) {
  for (short track = 1; track <= 3; ++track) {
    float top = 0;
    Check(ControlA.TrackTop(_variant_t(track), &top));
    std::printf("track %d at %g\n", track, static_cast<double>(top));
  }
}

LRESULT CALLBACK OnMessage(HWND WindowA, UINT MessageA, WPARAM FirstA, LPARAM SecondA) {
  if (MessageA == WM_DESTROY) PostQuitMessage(0);
  if (MessageA == WM_SIZE)
    if (HWND child = GetWindow(WindowA, GW_CHILD))
      MoveWindow(child, 0, 0, LOWORD(SecondA), HIWORD(SecondA), TRUE);
  return DefWindowProcW(WindowA, MessageA, FirstA, SecondA);
}

HWND MakeWindow() {
  WNDCLASSW type{};
  type.lpfnWndProc = &OnMessage;
  type.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
  type.lpszClassName = L"MURTimelineContainer";
  RegisterClassW(&type);
  return CreateWindowW(type.lpszClassName, L"A time line", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                       CW_USEDEFAULT, CW_USEDEFAULT, 640, 260, nullptr, nullptr, nullptr, nullptr);
}

void RunLoop() {
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void Run(bool OnceA) {
  const ControlHost host;
  host.Start();
  HWND window = MakeWindow();
  RECT area;
  GetClientRect(window, &area);
  HWND site = CreateWindowW(L"AtlAxWin", L"MURTimeline.MURTimelineRender", WS_CHILD | WS_VISIBLE, 0, 0,
                            area.right, area.bottom, window, nullptr, nullptr, nullptr);
  const auto control = host.ControlIn(site);
  ShowWindow(window, SW_SHOW);
  Fill(*control.Get());
  if (OnceA) {
    UpdateWindow(window);
    Tell(*control.Get());
    PostMessageW(window, WM_CLOSE, 0, 0);
  }
  RunLoop();
  ComPtr<_CMURTimeline> timeline;
  Check(control->get_Timeline(&timeline));
  Check(timeline->Clear());
}

}  // namespace

int main(int CountA, char** ArgumentsA) {
  OleInitialize(nullptr);
  int result = 0;
  try {
    Run(CountA > 1 && std::string(ArgumentsA[1]) == "--once");
  } catch (const _com_error& failure) {
    std::printf("failed with %08lx\n", static_cast<unsigned long>(failure.Error()));
    result = 1;
  }
  OleUninitialize();
  return result;
}
