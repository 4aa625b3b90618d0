#include <thread>

#include <gmock/gmock.h>

#include <murtimeline/win32/drop_router.h>

#include "tests/support/control_log.h"
#include "tests/win32/given_data.h"
#include "tests/win32/shown_timeline.h"

namespace mur::win32::test {
namespace {

class NoOwner final : public WindowOwner {
 public:
  Ref<Object> Subject() const override { return {}; }
};

class Drops : public testing::Test {
 protected:
  static void SetUpTestSuite() { OleInitialize(nullptr); }
  static void TearDownTestSuite() { OleUninitialize(); }

  Drops() {
    shown.Bar(u"A", 100);
    shown.control->SetOLEDropMode(1);
    given.PutText(u"dragged");
    router.Attach(Ref(&shown.Canvas()));
    router.Open(shown.host.Handle(), [this] { return scale; });
    log.Take();
  }
  // What is dragged, over a point of the window.
  DropRouter::Report At(int XA, int YA, DWORD KeysA = MK_LBUTTON) {
    POINT at{XA, YA};
    ClientToScreen(shown.host.Handle(), &at);
    return {&given, KeysA, {at.x, at.y}};
  }

  ShownTimeline shown;
  GivenData given;
  double scale = 1;
  Ref<NoOwner> owner = Make<NoOwner>();
  DropRouter router{*owner};
  mur::test::ControlLog log{*shown.control, *shown.timeline, kNoon};
};

TEST_F(Drops, GoToTheBarOrTheBackground) {
  EXPECT_EQ(router.Enter(At(600, 100), DROPEFFECT_COPY | DROPEFFECT_MOVE), DROPEFFECT_MOVE);
  EXPECT_THAT(log.Take(), testing::HasSubstr("OLEDragOver("));
  router.Over(At(120, 10), DROPEFFECT_COPY);
  EXPECT_THAT(log.Take(), testing::HasSubstr("TLObjectOLEDragOver(A, "));
  EXPECT_EQ(router.Drop(At(120, 10), DROPEFFECT_COPY), DROPEFFECT_COPY);
  EXPECT_THAT(log.Take(), testing::HasSubstr("TLObjectOLEDragDrop(A, "));
  EXPECT_EQ(given.Holders(), 0U);
}

TEST_F(Drops, TellPlaceKeysAndState) {
  scale = 2;
  std::string told;
  const auto watching =
      shown.control->OLEDragOver.Connect([&](const Ref<Object>&, std::int32_t& effect, std::int16_t& button,
                                             std::int16_t& shift, float& x, float& y, std::int16_t& state) {
        told += std::to_string(effect) + ' ' + std::to_string(button) + ' ' + std::to_string(shift) + ' ' +
                std::to_string(static_cast<int>(x)) + ',' + std::to_string(static_cast<int>(y)) + ' ' +
                std::to_string(state) + ';';
      });
  router.Enter(At(1200, 200, MK_LBUTTON | MK_CONTROL), DROPEFFECT_COPY | DROPEFFECT_MOVE);
  router.Over(At(1202, 200, MK_RBUTTON | MK_SHIFT), DROPEFFECT_COPY | DROPEFFECT_MOVE);
  router.Leave();
  EXPECT_EQ(told, "1 1 2 600,100 0;2 2 1 601,100 2;0 2 1 601,100 1;");
}

TEST_F(Drops, AHandlerDecidesAmongWhatIsAllowed) {
  std::int32_t wanted = kDropCopy;
  const auto watching = shown.control->OLEDragOver.Connect(
      [&](const auto&, std::int32_t& effect, auto&&...) { effect = wanted; });
  EXPECT_EQ(router.Enter(At(600, 100), DROPEFFECT_COPY | DROPEFFECT_MOVE), DROPEFFECT_COPY);
  EXPECT_EQ(router.Over(At(600, 100), DROPEFFECT_MOVE), DROPEFFECT_NONE);
  wanted = kDropCopy | kDropMove;
  EXPECT_EQ(router.Over(At(600, 100), DROPEFFECT_COPY | DROPEFFECT_MOVE), DROPEFFECT_MOVE);
  wanted = -1;
  EXPECT_EQ(router.Over(At(600, 100), DROPEFFECT_LINK), DROPEFFECT_NONE);
}

TEST_F(Drops, BringDataThatLastsAsLongAsTheEvent) {
  Ref<DraggedData> kept;
  String text;
  const auto watching = shown.control->OLEDragDrop.Connect([&](const Ref<Object>& data, auto&&...) {
    kept = Ref(dynamic_cast<DraggedData*>(data.Get()));
    text = kept->Text();
  });
  router.Enter(At(600, 100), DROPEFFECT_COPY);
  router.Drop(At(600, 100), DROPEFFECT_COPY);
  EXPECT_EQ(text, u"dragged");
  EXPECT_EQ(kept->Text(), u"");
}

TEST_F(Drops, AreRefusedWhileTheDropModeIsZero) {
  shown.control->SetOLEDropMode(0);
  EXPECT_EQ(router.Enter(At(600, 100), DROPEFFECT_COPY), DROPEFFECT_NONE);
  EXPECT_EQ(router.Drop(At(600, 100), DROPEFFECT_COPY), DROPEFFECT_NONE);
  router.Leave();
  EXPECT_EQ(log.Take(), "");
}

TEST_F(Drops, AreRefusedAtDesignTime) {
  router.SetTakesDrops(false);
  EXPECT_EQ(router.Enter(At(600, 100), DROPEFFECT_COPY), DROPEFFECT_NONE);
  EXPECT_EQ(log.Take(), "");
}

/// Drags until the left button is up.
class LeftButtonSource final : public IDropSource {
 public:
  virtual ~LeftButtonSource() = default;
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID IdA, void** ResultA) override {
    const bool isOurs = IsEqualIID(IdA, IID_IUnknown) || IsEqualIID(IdA, IID_IDropSource);
    *ResultA = isOurs ? this : nullptr;
    return isOurs ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL IsEscapeA, DWORD KeysA) override {
    if (IsEscapeA != FALSE) return DRAGDROP_S_CANCEL;
    return (KeysA & MK_LBUTTON) != 0 ? S_OK : DRAGDROP_S_DROP;
  }
  HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD) override { return DRAGDROP_S_USEDEFAULTCURSORS; }
};

void SendMouse(DWORD FlagsA) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = FlagsA;
  SendInput(1, &input, sizeof input);
}

// By the platform's own drag and drop, with a mouse that a second thread moves.
TEST_F(Drops, ArriveFromThePlatform) {
  SetWindowPos(shown.host.Handle(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  POINT at{600, 100};
  ClientToScreen(shown.CanvasWindow(), &at);
  SetCursorPos(static_cast<int>(at.x), static_cast<int>(at.y));
  SendMouse(MOUSEEVENTF_LEFTDOWN);
  PumpMessages();
  log.Take();
  std::thread user([&] {
    for (int step = 0; step < 5; ++step) {
      Sleep(50);
      SetCursorPos(static_cast<int>(at.x) + step, static_cast<int>(at.y));
    }
    SendMouse(MOUSEEVENTF_LEFTUP);
  });
  LeftButtonSource source;
  DWORD effect = 0;
  const HRESULT result = DoDragDrop(&given, &source, DROPEFFECT_COPY, &effect);
  user.join();
  EXPECT_EQ(result, DRAGDROP_S_DROP);
  EXPECT_EQ(effect, static_cast<DWORD>(DROPEFFECT_COPY));
  EXPECT_THAT(log.Take(), testing::HasSubstr("OLEDragDrop("));
}

}  // namespace
}  // namespace mur::win32::test
