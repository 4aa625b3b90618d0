#include <gmock/gmock.h>

#include "tests/com/container/embedded.h"

namespace mur::test {
namespace {

Ref<IStream> NewStream() {
  IStream* stream = nullptr;
  Require(CreateStreamOnHGlobal(nullptr, TRUE, &stream), "CreateStreamOnHGlobal");
  return TakeOver(stream);
}

Ref<IStorage> NewStorage() {
  ILockBytes* bytes = nullptr;
  Require(CreateILockBytesOnHGlobal(nullptr, TRUE, &bytes), "CreateILockBytesOnHGlobal");
  const auto memory = TakeOver(bytes);
  IStorage* storage = nullptr;
  Require(StgCreateDocfileOnILockBytes(memory.Get(), STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0,
                                       &storage),
          "StgCreateDocfileOnILockBytes");
  return TakeOver(storage);
}

/// Says that it was asked for something.
class Bag final : public Counted<IPropertyBag> {
 public:
  int asked = 0;
  STDMETHODIMP Read(LPCOLESTR, VARIANT*, IErrorLog*) noexcept override {
    ++asked;
    return E_INVALIDARG;
  }
  STDMETHODIMP Write(LPCOLESTR, VARIANT*) noexcept override {
    ++asked;
    return S_OK;
  }
};

template <class Interface>
Ref<Interface> NewAs() {
  return Query<Interface>(NewControl().Pointer());
}

TEST(Persistence, KeepsNothingInAStream) {
  const auto control = NewAs<IPersistStreamInit>();
  EXPECT_EQ(control->InitNew(), S_OK);
  EXPECT_EQ(control->IsDirty(), S_FALSE);
  ULARGE_INTEGER size{};
  size.QuadPart = 7;
  EXPECT_EQ(control->GetSizeMax(&size), S_OK);
  EXPECT_EQ(size.QuadPart, 0U);
  const auto stream = NewStream();
  EXPECT_EQ(control->Save(stream.Get(), TRUE), S_OK);
  STATSTG state{};
  stream->Stat(&state, STATFLAG_NONAME);
  EXPECT_EQ(state.cbSize.QuadPart, 0U);
  EXPECT_EQ(NewAs<IPersistStreamInit>()->Load(stream.Get()), S_OK);
  EXPECT_EQ(control->Save(nullptr, TRUE), E_POINTER);
}

TEST(Persistence, StaysCleanWhateverChanges) {
  const Embedded embedded;
  embedded.AddBar();
  EXPECT_EQ(embedded.As<IPersistStreamInit>()->IsDirty(), S_FALSE);
  EXPECT_EQ(embedded.As<IPersistStorage>()->IsDirty(), S_FALSE);
}

TEST(Persistence, NamesItsClassByEachOfItsInterfaces) {
  const Late control = NewControl();
  const auto classOf = [&]<class Interface>(const Ref<Interface>& one) {
    CLSID id{};
    EXPECT_EQ(one->GetClassID(&id), S_OK);
    return id == __uuidof(::MURTimelineRender);
  };
  EXPECT_TRUE(classOf(Query<IPersist>(control.Pointer())));
  EXPECT_TRUE(classOf(Query<IPersistStream>(control.Pointer())));
  EXPECT_TRUE(classOf(Query<IPersistStreamInit>(control.Pointer())));
  EXPECT_TRUE(classOf(Query<IPersistPropertyBag>(control.Pointer())));
  EXPECT_TRUE(classOf(Query<IPersistStorage>(control.Pointer())));
  EXPECT_EQ(Query<IPersist>(control.Pointer())->GetClassID(nullptr), E_POINTER);
}

TEST(Persistence, BeginsOneWayOnly) {
  const auto isNew = NewAs<IPersistStreamInit>();
  EXPECT_EQ(isNew->InitNew(), S_OK);
  EXPECT_EQ(isNew->Load(NewStream().Get()), E_UNEXPECTED);
  const Ref<Bag> bag(new Bag);
  EXPECT_EQ(Query<IPersistPropertyBag>(isNew.Get())->Load(bag.Get(), nullptr), E_UNEXPECTED);
  const auto loaded = NewAs<IPersistPropertyBag>();
  EXPECT_EQ(loaded->Load(nullptr, nullptr), E_POINTER);
  EXPECT_EQ(loaded->Load(bag.Get(), nullptr), S_OK);
  EXPECT_EQ(loaded->InitNew(), E_UNEXPECTED);
}

TEST(Persistence, MeansAContainerThatMovesItMayBeginItTheSameWayAgain) {
  const auto control = NewAs<IPersistStreamInit>();
  EXPECT_EQ(control->InitNew(), S_OK);
  EXPECT_EQ(control->InitNew(), S_OK);
}

TEST(Persistence, NeitherReadsNorWritesProperties) {
  const auto control = NewAs<IPersistPropertyBag>();
  const Ref<Bag> bag(new Bag);
  EXPECT_EQ(control->Load(bag.Get(), nullptr), S_OK);
  EXPECT_EQ(control->Save(bag.Get(), TRUE, TRUE), S_OK);
  EXPECT_EQ(control->Save(nullptr, TRUE, TRUE), E_POINTER);
  EXPECT_EQ(bag->asked, 0);
}

TEST(Persistence, FollowsTheProtocolOfStorages) {
  const auto control = NewAs<IPersistStorage>();
  const auto storage = NewStorage(), other = NewStorage();
  EXPECT_EQ(control->Save(storage.Get(), TRUE), E_UNEXPECTED);
  EXPECT_EQ(control->InitNew(nullptr), E_POINTER);
  EXPECT_EQ(control->InitNew(storage.Get()), S_OK);
  EXPECT_EQ(control->InitNew(storage.Get()), CO_E_ALREADYINITIALIZED);
  EXPECT_EQ(control->Load(storage.Get()), CO_E_ALREADYINITIALIZED);
  EXPECT_EQ(control->Save(storage.Get(), TRUE), S_OK);
  EXPECT_EQ(control->Save(storage.Get(), TRUE), E_UNEXPECTED);  // until that is completed
  EXPECT_EQ(control->SaveCompleted(nullptr), S_OK);
  EXPECT_EQ(control->HandsOffStorage(), S_OK);
  EXPECT_EQ(control->Save(other.Get(), FALSE), E_UNEXPECTED);
  EXPECT_EQ(control->SaveCompleted(nullptr), E_INVALIDARG);
  EXPECT_EQ(control->SaveCompleted(other.Get()), S_OK);
  EXPECT_EQ(control->Save(other.Get(), FALSE), S_OK);
}

TEST(Persistence, IsSavedByThePlatformsOwnRoutine) {
  const auto control = NewAs<IPersistStorage>();
  const auto storage = NewStorage();
  EXPECT_EQ(control->InitNew(storage.Get()), S_OK);
  EXPECT_EQ(OleSave(control.Get(), storage.Get(), TRUE), S_OK);
  CLSID id{};
  EXPECT_EQ(ReadClassStg(storage.Get(), &id), S_OK);
  EXPECT_TRUE(id == __uuidof(::MURTimelineRender));
}

}  // namespace
}  // namespace mur::test
