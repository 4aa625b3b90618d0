#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include <murtimeline/automation/collection.h>

namespace mur {
namespace {

class Item final : public Object {
 public:
  explicit Item(int NumberA) : number(NumberA) {}
  int number;
};
using Items = Collection<Item>;

Ref<Items> ItemsUpTo(int LastA) {
  auto items = Make<Items>();
  for (int i = 1; i <= LastA; ++i) items->Add(Make<Item>(i), FromAscii("k" + std::to_string(i)));
  return items;
}

std::vector<int> Rest(Items::Enumerator& WalkA) {
  std::vector<int> numbers;
  while (const auto item = WalkA.Next()) numbers.push_back(item->number);
  return numbers;
}

TEST(Collection, FindsByKeyInAnyCaseAndByPosition) {
  const auto items = ItemsUpTo(3);
  EXPECT_EQ(items->Count(), 3u);
  EXPECT_EQ(items->Find(u"K2")->number, 2);
  EXPECT_EQ(items->Find(3)->number, 3);
  EXPECT_EQ(items->FindByKey(u"k1")->number, 1);
  EXPECT_EQ(items->FindByPosition(2)->number, 2);
  EXPECT_EQ(items->PositionOf(u"K3"), 3u);
  EXPECT_EQ(items->PositionOf(u"x"), 0u);
  for (const Variant& none : {Variant(u"x"), Variant(0), Variant(4), Variant(), Variant::Null()})
    EXPECT_FALSE(items->Find(none));
}

TEST(Collection, RefusesAKeyThatItHas) {
  const auto items = ItemsUpTo(1);
  EXPECT_FALSE(items->Add(Make<Item>(9), u"K1"));
  EXPECT_EQ(items->Find(1)->number, 1);
  EXPECT_TRUE(items->Add(Make<Item>(2), u""));
  EXPECT_EQ(items->FindByKey(u"")->number, 2);
}

TEST(Collection, GivesWhatItRemoves) {
  const auto items = ItemsUpTo(3);
  EXPECT_EQ(items->Remove(Selector(StringView(u"K2")))->number, 2);
  EXPECT_EQ(items->Find(2)->number, 3);
  EXPECT_FALSE(items->Remove(Selector(StringView(u"k2"))));
  EXPECT_TRUE(items->Add(Make<Item>(4), u"k2"));
  EXPECT_EQ(items->Find(3)->number, 4);
}

TEST(Collection, IsWalkedWhileItemsComeAndGo) {
  const auto items = ItemsUpTo(4);
  Items::Enumerator walk(items);
  EXPECT_EQ(walk.Next()->number, 1);
  items->Remove(Selector(std::size_t{1}));
  items->Remove(Selector(StringView(u"k3")));
  items->Add(Make<Item>(5), u"k5");
  EXPECT_EQ(Rest(walk), (std::vector<int>{2, 4, 5}));
  items->Add(Make<Item>(6), u"k6");
  EXPECT_EQ(Rest(walk), std::vector<int>{6});
  walk.Reset();
  EXPECT_EQ(Rest(walk), (std::vector<int>{2, 4, 5, 6}));
}

TEST(Collection, IsWalkedByCopiesFromWhereTheOriginalStands) {
  const auto items = ItemsUpTo(3);
  Items::Enumerator walk(items);
  walk.Next();
  Items::Enumerator copy(walk);
  EXPECT_EQ(Rest(walk), (std::vector<int>{2, 3}));
  EXPECT_EQ(Rest(copy), (std::vector<int>{2, 3}));
}

TEST(Collection, LivesAsLongAsItIsWalked) {
  auto items = ItemsUpTo(2);
  Items::Enumerator walk(items);
  items = nullptr;
  EXPECT_EQ(Rest(walk), (std::vector<int>{1, 2}));
}

TEST(Collection, MeetsInRandomChangesWhatAVectorWithOpenWalksMeets) {
  std::mt19937 random(7);
  const auto items = Make<Items>();
  std::vector<int> plain;  // ascending, because numbers only grow
  int last = 0;
  struct Walk {
    Items::Enumerator walk;
    int met;
  };
  std::vector<Walk> walks;
  for (int step = 0; step < 5000; ++step) {
    const auto action = random() % 10;
    if (action < 4 || plain.empty()) {
      plain.push_back(++last);
      items->Add(Make<Item>(last), FromAscii(std::to_string(last)));
    } else if (action < 7) {
      const std::size_t index = random() % plain.size();
      ASSERT_EQ(items->Remove(Selector(index + 1))->number, plain[index]);
      plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(index));
    } else if (action < 8) {
      if (walks.size() < 5) walks.push_back({Items::Enumerator(items), 0});
    } else if (action < 9) {
      if (!walks.empty() && random() % 8 == 0) walks.pop_back();
    } else {
      for (auto& [walk, met] : walks) {
        const auto expected = std::upper_bound(plain.begin(), plain.end(), met);
        const auto item = walk.Next();
        ASSERT_EQ(item ? item->number : 0, expected == plain.end() ? 0 : *expected);
        if (item) met = item->number;
      }
    }
  }
}

}  // namespace
}  // namespace mur
