#include <murtimeline/com/class_factory.h>
#include <murtimeline/com/guard.h>
#include <murtimeline/com/objects.h>
#include <murtimeline/com/render_face.h>
#include <murtimeline/com/server_life.h>
#include <murtimeline/model/render_config.h>
#include <murtimeline/model/timeline_group.h>
#include <murtimeline/model/timeline_media.h>
#include <murtimeline/model/timeline_scalar.h>

namespace mur::com {
namespace {

template <class Class>
Ref<Object> MakeOne() {
  return Make<Class>();
}

Ref<Object> MakeControl() {
  return RenderFace::MakeControl();
}

const PublishedClass kClasses[] = {
    {__uuidof(::CMURTimeline), L"MURTimeline.CMURTimeline", L"MURTimeline time line", false,
     &MakeOne<CMURTimeline>},
    {__uuidof(::CMURTimelineGroup), L"MURTimeline.CMURTimelineGroup", L"MURTimeline group", false,
     &MakeOne<CMURTimelineGroup>},
    {__uuidof(::CMURTimelineScalar), L"MURTimeline.CMURTimelineScalar", L"MURTimeline scalar", false,
     &MakeOne<CMURTimelineScalar>},
    {__uuidof(::CMURTimelineMedia), L"MURTimeline.CMURTimelineMedia", L"MURTimeline media clip", false,
     &MakeOne<CMURTimelineMedia>},
    {__uuidof(::CMURTLRenderConfig), L"MURTimeline.CMURTLRenderConfig", L"MURTimeline render configuration",
     false, &MakeOne<CMURTLRenderConfig>},
    {__uuidof(::MURTimelineRender), L"MURTimeline.MURTimelineRender", L"MURTimeline control", true,
     &MakeControl},
};

class ClassFactory final : public IClassFactory {
 public:
  explicit ClassFactory(const PublishedClass& ClassA) : mClass(ClassA) {}

  STDMETHODIMP QueryInterface(REFIID InterfaceA, void** ResultA) noexcept override {
    if (!ResultA) return E_POINTER;
    const bool known = InterfaceA == IID_IUnknown || InterfaceA == IID_IClassFactory;
    *ResultA = known ? this : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override {
    return static_cast<ULONG>(InterlockedIncrement(&mReferences));
  }
  STDMETHODIMP_(ULONG) Release() noexcept override {
    const LONG rest = InterlockedDecrement(&mReferences);
    if (rest == 0) delete this;
    return static_cast<ULONG>(rest);
  }

  STDMETHODIMP CreateInstance(IUnknown* OuterA, REFIID InterfaceA, void** ResultA) noexcept override {
    if (!ResultA) return E_POINTER;
    *ResultA = nullptr;
    if (OuterA) return CLASS_E_NOAGGREGATION;
    HRESULT result = S_OK;
    const HRESULT guarded = Guarded([&] {
      const auto object = mClass.make();
      result = FaceOf(*object).QueryInterface(InterfaceA, ResultA);
    });
    return FAILED(guarded) ? guarded : result;
  }
  STDMETHODIMP LockServer(BOOL LockA) noexcept override {
    com::LockServer(LockA != FALSE);
    return S_OK;
  }

 private:
  const PublishedClass& mClass;
  LONG mReferences = 0;
  LiveObject mLive;
};

}  // namespace

std::span<const PublishedClass> PublishedClasses() noexcept {
  return kClasses;
}

HRESULT GetClassFactory(REFCLSID ClassA, REFIID InterfaceA, void** ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = nullptr;
  for (const PublishedClass& known : kClasses) {
    if (known.id != ClassA) continue;
    HRESULT result = S_OK;
    const HRESULT guarded = Guarded([&] {
      const Ref<ClassFactory> factory(new ClassFactory(known));
      result = factory->QueryInterface(InterfaceA, ResultA);
    });
    return FAILED(guarded) ? guarded : result;
  }
  return CLASS_E_CLASSNOTAVAILABLE;
}

}  // namespace mur::com
