#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include <murtimeline/render/companions/bar_walk.h>
#include <murtimeline/render/port/scripted_host.h>

using namespace mur;

namespace {

class Walking : public ::testing::Test {
 protected:
  Walking() {
    host.Move(0, 0, 9000, 6000);
    canvas->SetScaleMode(3);
    canvas->AddGraphic(u"The Cursor", kCursorItem)->Move(35, 0.0F, 5.0F, 400.0F);
  }
  Ref<ICanvasItem> Bar(StringView KeyA, float LeftA, int RowA, float WidthA = 10) {
    auto item = canvas->AddGraphic(KeyA, kObjectBarItem);
    item->Move(LeftA, static_cast<float>(20 * RowA), WidthA, 15);
    return item;
  }
  // The key of the bar that a step leads to.
  std::string Step(WalkStep StepA) {
    const auto next = walk.Step(at, StepA);
    if (!next) return "-";
    at = next;
    return ToUtf8(at->Key());
  }
  std::string Steps(std::initializer_list<WalkStep> StepsA) {
    std::string keys;
    for (const WalkStep step : StepsA) keys += Step(step);
    return keys;
  }

  ScriptedChild host;
  Ref<MURGraphicCanvas> canvas = Make<MURGraphicCanvas>(host);
  BarWalk walk{*canvas};
  Ref<ICanvasItem> at;
};

using enum WalkStep;

TEST_F(Walking, GoesAlongARowByLeftEdge) {
  Bar(u"C", 60, 0);
  Bar(u"A", 0, 0);
  Bar(u"B", 30, 0);
  Bar(u"x", 20, 1);
  EXPECT_EQ(Steps({Later, Later, Later, Later, Earlier, Earlier, Earlier}), "ABC-BA-");
  EXPECT_EQ(Steps({LastOfRow, FirstOfRow}), "CA");
}

TEST_F(Walking, BeginsWithTheFirstBarOfTheFirstRow) {
  Bar(u"B", 0, 3);
  Bar(u"A", 50, 2);
  EXPECT_EQ(Step(LastOfRow), "A");
}

TEST_F(Walking, ThereIsNowhereToGoWithoutBars) {
  EXPECT_EQ(Step(Later), "-");
}

TEST_F(Walking, GoesToTheNearestBarOfTheNextRowWithAny) {
  Bar(u"A", 100, 0);
  Bar(u"B", 0, 3);
  Bar(u"C", 90, 3);
  Bar(u"D", 125, 3);
  EXPECT_EQ(Steps({Later, Below, Above, Above}), "ACA-");
}

TEST_F(Walking, StepsUpAndDownKeepToTheTimeAtWhichTheyBegan) {
  Bar(u"A", 100, 0);
  Bar(u"B", 0, 1);
  Bar(u"C", 20, 2);
  Bar(u"D", 100, 2);
  EXPECT_EQ(Steps({Later, Below, Below, Above, Later, Below}), "ABDB-D");
}

TEST_F(Walking, BarsOfOnePlaceAreEachMetOnce) {
  for (const StringView key : {u"A", u"B", u"C"}) Bar(key, 10, 0);
  EXPECT_EQ(Steps({Later, Later, Later, Later, Earlier, Earlier, Earlier}), "ABC-BA-");
}

TEST_F(Walking, PassesOverWhatCannotBeSeen) {
  Bar(u"A", 0, 0);
  Bar(u"hidden", 20, 0)->SetVisible(false);
  Bar(u"empty", 30, 0, 0);
  Bar(u"B", 40, 0);
  Bar(u"hidden too", 0, 1)->SetVisible(false);
  Bar(u"C", 0, 2);
  EXPECT_EQ(Steps({Later, Later, Below}), "ABC");
}

TEST_F(Walking, FromABarThatIsGoneItBeginsAnew) {
  Bar(u"A", 0, 0);
  Bar(u"B", 20, 0);
  EXPECT_EQ(Steps({Later, Later}), "AB");
  canvas->RemoveGraphic(u"B");
  EXPECT_EQ(Step(Later), "A");
}

TEST_F(Walking, SeesWhatMovedOfLate) {
  const auto a = Bar(u"A", 0, 0);
  Bar(u"B", 20, 0);
  Bar(u"C", 0, 1);
  EXPECT_EQ(Step(Later), "A");
  a->Move(50);
  EXPECT_EQ(Steps({Earlier, Below}), "BC");
  a->Move(50, 40.0F);
  EXPECT_EQ(Step(Below), "A");
}

// The same rules by looking at every bar.
class PlainWalk {
 public:
  explicit PlainWalk(std::vector<Ref<ICanvasItem>> BarsA) : mBars(std::move(BarsA)) {}

  std::vector<ICanvasItem*> Row(float TopA) const {
    std::vector<ICanvasItem*> row;
    for (const auto& bar : mBars)
      if (bar->Visible() && bar->Width() > 0 && bar->Top() == TopA) row.push_back(bar.Get());
    std::stable_sort(row.begin(), row.end(),
                     [](auto* left, auto* right) { return left->Left() < right->Left(); });
    return row;
  }
  std::vector<float> Tops() const {
    std::set<float> tops;
    for (const auto& bar : mBars)
      if (bar->Visible() && bar->Width() > 0) tops.insert(bar->Top());
    return {tops.begin(), tops.end()};
  }

 private:
  std::vector<Ref<ICanvasItem>> mBars;
};

TEST_F(Walking, MeetsEveryBarOfARandomCanvasInOrder) {
  std::mt19937 random(7);
  std::vector<Ref<ICanvasItem>> bars;
  for (int count = 0; count < 1500; ++count)
    bars.push_back(Bar(FromAscii(std::to_string(count)), static_cast<float>(random() % 4000),
                       static_cast<int>(random() % 40), static_cast<float>(random() % 60)));
  for (int round = 0; round < 20; ++round) {
    for (int change = 0; change < 30; ++change) {
      const auto& bar = bars[random() % bars.size()];
      bar->Move(static_cast<float>(random() % 4000), static_cast<float>(20 * (random() % 45)));
      bar->SetVisible(random() % 4 != 0);
    }
    const PlainWalk plain(bars);
    at = {};
    for (const float top : plain.Tops()) {
      const auto row = plain.Row(top);
      Step(at ? Below : Later);
      Step(FirstOfRow);
      for (std::size_t place = 0; place < row.size(); ++place, at = walk.Step(at, Later)) {
        ASSERT_TRUE(at);
        ASSERT_EQ(at->Top(), top);
        ASSERT_EQ(at->Left(), row[place]->Left()) << "round " << round << " row " << top;
      }
      ASSERT_FALSE(at);
      at = Ref<ICanvasItem>(row.back());
    }
    ASSERT_EQ(Step(Below), "-");
  }
  EXPECT_TRUE(canvas->IsConsistent());
}

std::string Name(const std::optional<BarEdge>& EdgeA) {
  return EdgeA ? ToUtf8(EdgeA->item->Key()) + (EdgeA->isEnd ? " ends" : " starts") : "-";
}

TEST_F(Walking, FindsTheNextEdgeOfAnyBarShown) {
  Bar(u"A", 0, 0, 100);
  Bar(u"B", 40, 1, 20);
  Bar(u"far", 5000, 2, 100);
  Bar(u"below the canvas", 10, 30, 5);
  EXPECT_EQ(Name(EdgeBeyond(*canvas, -50, true)), "A starts");
  EXPECT_EQ(Name(EdgeBeyond(*canvas, 0, true)), "B starts");
  EXPECT_EQ(Name(EdgeBeyond(*canvas, 40, true)), "B ends");
  EXPECT_EQ(Name(EdgeBeyond(*canvas, 60, true)), "A ends");
  EXPECT_EQ(Name(EdgeBeyond(*canvas, 100, true)), "far starts");
  EXPECT_EQ(Name(EdgeBeyond(*canvas, 5100, true)), "-");
  EXPECT_EQ(Name(EdgeBeyond(*canvas, 5000, false)), "A ends");
  EXPECT_EQ(Name(EdgeBeyond(*canvas, 0, false)), "-");
}

}  // namespace
