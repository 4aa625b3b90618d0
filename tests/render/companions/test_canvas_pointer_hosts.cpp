#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "tests/render/companions/canvas_pointing.h"

namespace mur::test {
namespace {

// What a host may do in an event of the canvas.
using Deed = std::function<void(Ref<MURGraphicCanvas>&)>;
const Deed kDeeds[] = {
    [](auto& canvas) {
      while (canvas->GraphicCount() > 0) canvas->RemoveGraphic(1);
    },
    [](auto& canvas) { canvas = nullptr; },
    [](auto& canvas) { canvas->PointerLost(); },
    [](auto& canvas) {
      canvas->PointerReleased({{5, 5}, kLeftButton, 0});
    },
    [](auto& canvas) {
      canvas->PointerPressed({{5, 5}, kRightButton, 0});
    },
    [](auto&) { throw std::runtime_error("thrown on purpose"); },
};

// A canvas whose host does a deed in each event, once.
class Meddled {
 public:
  explicit Meddled(const Deed& DeedA) : mDeed(DeedA) {
    host.Move(0, 0, 3000, 1500);
    canvas->SetScaleMode(3);
    canvas->AddGraphic(u"a", kObjectBarItem)->Move(0, 0.0F, 20.0F, 10.0F);
    Listen(canvas->Click), Listen(canvas->DblClick);
    Listen(canvas->MouseDown), Listen(canvas->MouseMove), Listen(canvas->MouseUp);
    Listen(canvas->ItemClick), Listen(canvas->ItemDblClick);
    Listen(canvas->ItemMouseDown), Listen(canvas->ItemMouseMove), Listen(canvas->ItemMouseUp);
  }

  // Whatever the host does, the face goes on. What it throws reaches the face.
  template <class Step>
  void Do(Step&& StepA) {
    if (!canvas) return;
    try {
      StepA(*canvas);
    } catch (const std::runtime_error&) {
      ++thrown;
    }
  }

  ScriptedChild host;
  Ref<MURGraphicCanvas> canvas = Make<MURGraphicCanvas>(host);
  int thrown = 0;

 private:
  template <class... Arguments>
  void Listen(Event<Arguments...>& EventA) {
    mConnections.push_back(EventA.Connect([this, done = false](Arguments...) mutable {
      if (!std::exchange(done, true) && canvas) mDeed(canvas);
    }));
  }

  const Deed& mDeed;
  std::vector<Connection> mConnections;
};

TEST(CanvasPointerHost, MayDoAnythingInEveryEvent) {
  for (const Deed& deed : kDeeds)
    for (const float x : {5.0F, 50.0F}) {
      Meddled meddled(deed);
      const PointerInput at{{x, 5}, kLeftButton, 0};
      for (int round = 0; round < 3; ++round) {
        meddled.Do([&](auto& canvas) { canvas.PointerMoved({{x, 5}, 0, 0}); });
        meddled.Do([&](auto& canvas) { canvas.PointerPressed(at); });
        meddled.Do([&](auto& canvas) { canvas.PointerMoved(at); });
        meddled.Do([&](auto& canvas) { canvas.PointerReleased(at); });
        meddled.Do([&](auto& canvas) { canvas.PointerDoublePressed(at); });
        meddled.Do([&](auto& canvas) { canvas.PointerReleased(at); });
        meddled.Do([&](auto& canvas) { canvas.PointerLost(); });
      }
      EXPECT_FALSE(meddled.host.HasPointer());
      if (meddled.canvas) {
        EXPECT_TRUE(meddled.canvas->IsConsistent());
      }
    }
}

TEST_F(CanvasPointer, GoesOnAfterAListenerThatThrows) {
  const auto throwing = canvas->ItemMouseDown.Connect(
      [](const auto&, auto&...) { throw std::runtime_error("thrown on purpose"); });
  Bar(u"a", 0);
  EXPECT_THROW(Press(5, 5), std::runtime_error);
  Release(5, 5);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; up a 1 0 5,5; click a");
}

TEST_F(CanvasPointer, LosesThePointerInTheMiddleOfAHandler) {
  Bar(u"a", 0);
  const auto losing = canvas->ItemMouseDown.Connect([&](const auto&, auto&...) { canvas->PointerLost(); });
  Press(5, 5);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; up a 1 0 5,5");
  Release(5, 5);
  EXPECT_EQ(log.Take(), "");
  EXPECT_FALSE(host.HasPointer());
}

TEST_F(CanvasPointer, GivesTheListenersOfAReportArgumentsThatTheyMayChange) {
  const auto changing = canvas->MouseDown.Connect(
      [](std::int16_t& button, std::int16_t& shift, float& x, float& y) { button = shift = 7, x = y = 8; });
  std::string heard;
  const auto hearing =
      canvas->MouseDown.Connect([&](std::int16_t button, std::int16_t shift, float x, float y) {
        heard = std::to_string(button + shift) + " " + NumberText(static_cast<double>(x + y));
      });
  Press(5, 6);
  EXPECT_EQ(heard, "14 16");
  Release(5, 6);  // of the button that was really pressed
  EXPECT_EQ(log.Take(), "down - 1 0 5,6; up - 1 0 5,6; click -");
}

}  // namespace
}  // namespace mur::test
