#include <unordered_set>

#include <gtest/gtest.h>

#include <murtimeline/automation/object.h>

namespace mur {
namespace {

class Counted : public Object {
 public:
  explicit Counted(int& LivingA) : mLiving(LivingA) { ++mLiving; }
  Ref<Object> next;

 protected:
  ~Counted() override { --mLiving; }

 private:
  int& mLiving;
};

class Derived final : public Counted {
 public:
  using Counted::Counted;
};

TEST(Object, LivesAsLongAsItIsHeld) {
  int living = 0;
  auto first = Make<Counted>(living);
  auto second = first;
  first = nullptr;
  EXPECT_EQ(living, 1);
  second = nullptr;
  EXPECT_EQ(living, 0);
}

TEST(Object, MovesBetweenReferencesWithoutACount) {
  int living = 0;
  auto first = Make<Derived>(living);
  Derived* const object = first.Get();
  const Ref<Counted> base = std::move(first);
  EXPECT_FALSE(first);
  EXPECT_EQ(base.Get(), object);
  Ref<Counted> copy = base;
  Ref<Counted> moved(std::move(copy));
  EXPECT_EQ(moved, base);
  Counted* const detached = moved.Detach();
  EXPECT_FALSE(moved);
  detached->Release();
  EXPECT_EQ(living, 1);
}

TEST(Object, SurvivesBeingAssignedToItsOwnReference) {
  int living = 0;
  auto object = Make<Counted>(living);
  auto& alias = object;
  object = alias;
  EXPECT_EQ(living, 1);
}

TEST(Object, IsAKeyOfHashedSetsByItsIdentity) {
  int living = 0;
  const auto object = Make<Counted>(living);
  const std::unordered_set<Ref<Counted>> set{object};
  EXPECT_TRUE(set.contains(Ref<Counted>(object.Get())));
}

TEST(Object, GoesInChainsOfAnyLengthWithoutRecursion) {
  int living = 0;
  Ref<Object> top;
  for (int i = 0; i < 1'000'000; ++i) {
    const auto next = Make<Counted>(living);
    next->next = std::move(top);
    top = next;
  }
  EXPECT_EQ(living, 1'000'000);
  top = nullptr;
  EXPECT_EQ(living, 0);
}

TEST(Object, MayHandItselfOutWhileItIsDestroyed) {
  class Talkative final : public Object {
   public:
    ~Talkative() override { const Ref<Object> again(this); }
  };
  Ref<Object> object = Make<Talkative>();
  object = nullptr;
  EXPECT_FALSE(object);
}

class CountedFace final : public HostFace {
 public:
  explicit CountedFace(int& LivingA) : mLiving(LivingA) { ++mLiving; }
  ~CountedFace() override { --mLiving; }

 private:
  int& mLiving;
};

TEST(Object, OwnsItsFace) {
  int objects = 0, faces = 0;
  auto object = Make<Counted>(objects);
  EXPECT_EQ(object->Face(), nullptr);
  object->SetFace(new CountedFace(faces));
  HostFace* const second = new CountedFace(faces);
  object->SetFace(second);
  EXPECT_EQ(faces, 1);
  EXPECT_EQ(object->Face(), second);
  object = nullptr;
  EXPECT_EQ(faces, 0);
}

}  // namespace
}  // namespace mur
