#include <functional>
#include <stdexcept>

#include <gtest/gtest.h>

#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/render/port/scripted_host.h>

#include "tests/render/companions/pointer_log.h"

namespace mur::test {
namespace {

constexpr std::int16_t kLeftAndRight = kLeftButton | kRightButton;

// A canvas of 200 x 100 pixels.
class CanvasPointer : public testing::Test {
 protected:
  CanvasPointer() {
    host.Move(0, 0, 200 * ChildHost::kTwipsPerPixel, 100 * ChildHost::kTwipsPerPixel);
    canvas->SetScaleMode(3);
  }

  Ref<ICanvasItem> Bar(StringView KeyA, float LeftA, float TopA = 0) const {
    auto item = canvas->AddGraphic(KeyA, kObjectBarItem);
    item->Move(LeftA, TopA, 20.0F, 10.0F);
    return item;
  }
  static PointerInput On(float XA, float YA, std::int16_t ButtonA = kLeftButton, std::int16_t ShiftA = 0) {
    return {{XA, YA}, ButtonA, ShiftA};
  }
  void Press(float XA, float YA, std::int16_t ButtonA = kLeftButton) const {
    canvas->PointerPressed(On(XA, YA, ButtonA));
  }
  void DoublePress(float XA, float YA) const { canvas->PointerDoublePressed(On(XA, YA)); }
  void Move(float XA, float YA, std::int16_t ButtonsA = 0) const {
    canvas->PointerMoved(On(XA, YA, ButtonsA));
  }
  void Release(float XA, float YA, std::int16_t ButtonA = kLeftButton) const {
    canvas->PointerReleased(On(XA, YA, ButtonA));
  }

  ScriptedChild host;
  Ref<MURGraphicCanvas> canvas = Make<MURGraphicCanvas>(host);
  PointerLog log{*canvas};
};

TEST_F(CanvasPointer, ReportsThePointerOnTheBackground) {
  Move(5, 6);
  Press(5, 6);
  Release(5, 6);
  EXPECT_EQ(log.Take(), "move - 0 0 5,6; down - 1 0 5,6; up - 1 0 5,6; click -");
}

TEST_F(CanvasPointer, ReportsThePointerOnAnItemFromItsLeftTopCorner) {
  Bar(u"a", 30, 40);
  Move(35, 42);
  Press(35, 42);
  Release(36, 43);
  EXPECT_EQ(log.Take(), "move a 0 0 5,2; down a 1 0 5,2; up a 1 0 6,3; click a");
}

TEST_F(CanvasPointer, HandsOnModifierKeys) {
  canvas->PointerPressed(On(1, 1, kRightButton, kShiftKey | kAltKey));
  canvas->PointerReleased(On(1, 1, kRightButton, kControlKey));
  EXPECT_EQ(log.Take(), "down - 2 5 1,1; up - 2 2 1,1; click -");
}

TEST_F(CanvasPointer, HitsTheItemThatLiesOnTop) {
  Bar(u"below", 0);
  const auto above = Bar(u"above", 10);
  Move(15, 5);
  above->ZOrder(1);
  Move(15, 5);
  EXPECT_EQ(log.Take(), "move above 0 0 5,5; move below 0 0 15,5");
}

TEST_F(CanvasPointer, HitsTheCursorBeforeAllBars) {
  const auto cursor = canvas->AddGraphic(u"The Cursor", kCursorItem);
  cursor->Move(10, 0.0F, 5.0F, 100.0F);
  Bar(u"a", 0);
  cursor->ZOrder(1);
  Move(12, 5);
  Move(16, 5);
  EXPECT_EQ(log.Take(), "move The Cursor 0 0 2,5; move a 0 0 16,5");
}

TEST_F(CanvasPointer, PassesOverHiddenItems) {
  Bar(u"below", 0);
  Bar(u"above", 0)->SetVisible(false);
  Move(5, 5);
  EXPECT_EQ(log.Take(), "move below 0 0 5,5");
}

TEST_F(CanvasPointer, CountsTheLeftAndUpperEdgeAsTheItemTheOthersNot) {
  Bar(u"a", 10, 10);
  Move(10, 10);
  Move(30, 10);
  Move(10, 20);
  EXPECT_EQ(log.Take(), "move a 0 0 0,0; move - 0 0 30,10; move - 0 0 10,20");
}

TEST_F(CanvasPointer, ReportsInTheUnitsOfTheScaleMode) {
  canvas->SetScaleMode(1);
  canvas->AddGraphic(u"a", kObjectBarItem)->Move(150, 0.0F, 300.0F, 150.0F);
  Move(12, 4);
  Move(50, 4);
  EXPECT_EQ(log.Take(), "move a 0 0 30,60; move - 0 0 750,60");
}

TEST_F(CanvasPointer, ReportsWhatWasPressedUntilTheReleaseWhereverThePointerIs) {
  Bar(u"a", 0);
  Bar(u"b", 50);
  Press(5, 5);
  Move(55, 5, kLeftButton);
  Move(-20, 500, kLeftButton);
  Release(55, 5);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; move a 1 0 55,5; move a 1 0 -20,500; up a 1 0 55,5");
  Move(55, 5);
  EXPECT_EQ(log.Take(), "move b 0 0 5,5");
}

TEST_F(CanvasPointer, FollowsAnItemThatMovesUnderThePointer) {
  const auto item = Bar(u"a", 0);
  Press(5, 5);
  item->Move(10);
  Move(15, 5, kLeftButton);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; move a 1 0 5,5");
}

TEST_F(CanvasPointer, CapturesThePointerWhileAButtonIsHeld) {
  Press(5, 5);
  EXPECT_TRUE(host.HasPointer());
  Press(5, 5, kRightButton);
  Release(5, 5);
  EXPECT_TRUE(host.HasPointer());
  Release(5, 5, kRightButton);
  EXPECT_FALSE(host.HasPointer());
}

TEST_F(CanvasPointer, ClicksOnlyWhereItWasPressed) {
  Bar(u"a", 0);
  Press(5, 5);
  Release(50, 50);
  Press(50, 50);
  Release(5, 5);
  Press(50, 50);
  Release(500, 50);
  EXPECT_EQ(
      log.Take(),
      "down a 1 0 5,5; up a 1 0 50,50; down - 1 0 50,50; up - 1 0 5,5; down - 1 0 50,50; up - 1 0 500,50");
}

TEST_F(CanvasPointer, ClicksWhereThePointerComesBack) {
  Bar(u"a", 0);
  Press(5, 5);
  Move(50, 50, kLeftButton);
  Release(6, 6);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; move a 1 0 50,50; up a 1 0 6,6; click a");
}

TEST_F(CanvasPointer, ClicksOnAnItemThatAnotherOneCoversMeanwhile) {
  Bar(u"a", 0);
  Press(5, 5);
  Bar(u"b", 0);
  Release(5, 5);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; up a 1 0 5,5; click a");
}

TEST_F(CanvasPointer, DoesNotClickOnAnItemThatIsHiddenMeanwhile) {
  const auto item = Bar(u"a", 0);
  Press(5, 5);
  item->SetVisible(false);
  Release(5, 5);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; up a 1 0 5,5");
}

TEST_F(CanvasPointer, DoubleClicksWithTheReleaseOfTheSecondPress) {
  Bar(u"a", 0);
  Press(5, 5);
  Release(5, 5);
  DoublePress(5, 5);
  Release(5, 5);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; up a 1 0 5,5; click a; down a 1 0 5,5; up a 1 0 5,5; dblclick a");
}

TEST_F(CanvasPointer, DoubleClicksOnTheBackgroundToo) {
  DoublePress(5, 5);
  Release(5, 5);
  EXPECT_EQ(log.Take(), "down - 1 0 5,5; up - 1 0 5,5; dblclick -");
}

TEST_F(CanvasPointer, ClicksOfAChordOnlyWithTheButtonThatWasPressedLast) {
  Press(5, 5);
  Press(5, 5, kRightButton);
  Release(5, 5);
  Release(5, 5, kRightButton);
  EXPECT_EQ(log.Take(), "down - 1 0 5,5; down - 2 0 5,5; up - 1 0 5,5; up - 2 0 5,5; click -");
  Press(5, 5);
  Press(5, 5, kRightButton);
  Release(5, 5, kRightButton);
  Release(5, 5);
  EXPECT_EQ(log.Take(), "down - 1 0 5,5; down - 2 0 5,5; up - 2 0 5,5; click -; up - 1 0 5,5");
}

TEST_F(CanvasPointer, ClicksOnceForButtonsThatArePressedTogether) {
  Press(5, 5, kLeftAndRight);
  Release(5, 5, kLeftButton);
  Release(5, 5, kRightButton);
  EXPECT_EQ(log.Take(), "down - 3 0 5,5; up - 1 0 5,5; click -; up - 2 0 5,5");
}

TEST_F(CanvasPointer, StaysWithWhatWasPressedFirst) {
  Bar(u"a", 0);
  Bar(u"b", 50);
  Press(5, 5);
  Press(55, 5, kRightButton);
  Release(5, 5);
  Move(55, 5, kRightButton);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; down a 2 0 55,5; up a 1 0 5,5; move a 2 0 55,5");
}

TEST_F(CanvasPointer, KnowsNoReleaseOfWhatWasNotPressedHere) {
  Bar(u"a", 0);
  Release(5, 5);
  Press(5, 5);
  log.Take();
  Release(5, 5, kMiddleButton);
  EXPECT_EQ(log.Take(), "");
}

TEST_F(CanvasPointer, TakesAnotherPressOfAHeldButtonForALostRelease) {
  Bar(u"a", 0);
  Bar(u"b", 50);
  Press(5, 5);
  Press(55, 5);
  Release(55, 5);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; up a 1 0 5,5; down b 1 0 5,5; up b 1 0 5,5; click b");
}

TEST_F(CanvasPointer, ReleasesAllButtonsWithoutAClickWhenThePointerIsLost) {
  Bar(u"a", 0);
  Press(5, 5);
  Press(6, 5, kRightButton);
  canvas->PointerLost();
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; down a 2 0 6,5; up a 3 0 6,5");
  EXPECT_FALSE(host.HasPointer());
  Release(5, 5);
  canvas->PointerLost();
  EXPECT_EQ(log.Take(), "");
}

TEST_F(CanvasPointer, LeavesWithoutAWord) {
  Press(5, 5);
  log.Take();
  canvas->PointerLeft();
  EXPECT_EQ(log.Take(), "");
  EXPECT_TRUE(host.HasPointer());
}

TEST_F(CanvasPointer, TellsAnItemThatIsTakenOffOneLastReleaseAndNothingElse) {
  Bar(u"a", 0);
  Bar(u"b", 0);
  Press(5, 5);
  canvas->RemoveGraphic(u"b");
  Move(6, 5, kLeftButton);
  Move(7, 5, kLeftButton);
  Press(7, 5, kRightButton);
  Release(7, 5, kRightButton);
  Release(7, 5);
  EXPECT_EQ(log.Take(), "down b 1 0 5,5; up b 1 0 6,5");
  EXPECT_FALSE(host.HasPointer());
  Press(5, 5);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5");
}

TEST_F(CanvasPointer, TakesAnotherItemOfTheSameKeyForAnother) {
  Bar(u"a", 0);
  Press(5, 5);
  canvas->RemoveGraphic(u"a");
  Bar(u"a", 0);
  Release(5, 5);
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; up a 1 0 5,5");
}

TEST_F(CanvasPointer, LosesAnItemThatIsTakenOffWithOneRelease) {
  Bar(u"a", 0);
  Press(5, 5);
  canvas->RemoveGraphic(u"a");
  canvas->PointerLost();
  EXPECT_EQ(log.Take(), "down a 1 0 5,5; up a 1 0 5,5");
}

TEST_F(CanvasPointer, ShowsWhatCanBeDragged) {
  const auto item = Bar(u"a", 0);
  Move(5, 5);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Standard);
  item->SetDragFlags(15);
  Move(5, 5);
  EXPECT_EQ(host.ShownPointer(), PointerShape::CanMove);
  Move(50, 5);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Standard);
  Press(5, 5);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Moves);
  Move(50, 5, kLeftButton);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Moves);
  Release(50, 5);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Standard);
  Press(5, 5, kRightButton);
  EXPECT_EQ(host.ShownPointer(), PointerShape::CanMove);
}

TEST_F(CanvasPointer, ShowsThatTheCursorCanBeDraggedWhereItemsCan) {
  canvas->AddGraphic(u"The Cursor", kCursorItem)->Move(10, 0.0F, 5.0F, 100.0F);
  canvas->SetItemsMovable(true);
  Move(12, 5);
  EXPECT_EQ(host.ShownPointer(), PointerShape::CanMove);
  canvas->SetItemsMovable(false);
  Move(12, 5);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Standard);
}

TEST_F(CanvasPointer, NoLongerShowsTheDraggingOfAnItemThatIsGone) {
  Bar(u"a", 0)->SetDragFlags(15);
  Press(5, 5);
  canvas->RemoveGraphic(u"a");
  Move(5, 5, kLeftButton);
  EXPECT_EQ(host.ShownPointer(), PointerShape::Standard);
}

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

// What a face brings as data.
class Parcel final : public Object {};

class CanvasDrops : public CanvasPointer {
 protected:
  CanvasDrops() {
    canvas->SetOLEDropMode(1);
    Bar(u"a", 10, 10);
  }
  static DragInput Dragged(float XA, float YA, Ref<Object> DataA = {}) {
    return {std::move(DataA), kDropCopy, On(XA, YA)};
  }
};

TEST_F(CanvasDrops, GoToTheItemUnderThePointerOrTheBackground) {
  DragInput onItem = Dragged(12, 13, Make<Parcel>());
  DragInput onBackground = Dragged(50, 60);
  canvas->DraggedOver(onItem, kDragEnters);
  canvas->DraggedOver(onItem, kDragIsOver);
  canvas->DraggedOver(onBackground, kDragLeaves);
  canvas->Dropped(onItem);
  canvas->Dropped(onBackground);
  EXPECT_EQ(log.Take(),
            "over a 1 0 2,3 data effect 1 state 0; over a 1 0 2,3 data effect 1 state 2; "
            "over - 1 0 50,60 nothing effect 1 state 1; drop a 1 0 2,3 data effect 1; "
            "drop - 1 0 50,60 nothing effect 1");
}

TEST_F(CanvasDrops, BringBackTheEffectAndTheDataOfTheirListeners) {
  const auto other = Make<Parcel>();
  const auto over = canvas->OLEDragOver.Connect(
      [](auto&, std::int32_t& effect, auto&, auto&, auto&, auto&, auto&) { effect = kDropMove; });
  const auto drop = canvas->ItemOLEDragDrop.Connect(
      [&](const auto&, Ref<Object>& data, auto&, auto&, auto&, auto&, auto&) { data = other; });
  DragInput onBackground = Dragged(50, 60);
  canvas->DraggedOver(onBackground, kDragIsOver);
  EXPECT_EQ(onBackground.effect, kDropMove);
  DragInput onItem = Dragged(12, 13);
  canvas->Dropped(onItem);
  EXPECT_EQ(onItem.data, Ref<Object>(other));
}

TEST_F(CanvasDrops, AreRefusedWhileTheDropModeIsZero) {
  canvas->SetOLEDropMode(0);
  DragInput input = Dragged(12, 13);
  canvas->DraggedOver(input, kDragIsOver);
  EXPECT_EQ(input.effect, kDropNone);
  input.effect = kDropCopy;
  canvas->Dropped(input);
  EXPECT_EQ(input.effect, kDropNone);
  EXPECT_EQ(log.Take(), "");
}

}  // namespace
}  // namespace mur::test
