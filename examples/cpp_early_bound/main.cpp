// A host in C++ that is compiled against the server's own header (murtimeline_contract.h): calls by table,
// owned references, and a listener for the events of a time line.
#include <cstdio>

#include <comdef.h>
#include <murtimeline_contract.h>
#include <windows.h>
#include <wrl/client.h>

using Microsoft::WRL::ComPtr;

namespace {

void Check(HRESULT ResultA) {
  if (FAILED(ResultA)) throw _com_error(ResultA);
}

_bstr_t KeyOf(IMURTimelineObject& ObjectA) {
  _bstr_t key;
  Check(ObjectA.get_Key(key.GetAddress()));
  return key;
}

/// Hears a time line. Events come by number, as the header and the type library give them, with their
/// arguments in reverse order.
class Listener final : public IDispatch {
 public:
  explicit Listener(IUnknown* TimelineA) {
    ComPtr<IConnectionPointContainer> container;
    Check(TimelineA->QueryInterface(IID_PPV_ARGS(&container)));
    Check(container->FindConnectionPoint(__uuidof(__CMURTimeline), &mPoint));
    Check(mPoint->Advise(this, &mCookie));
  }
  ~Listener() { mPoint->Unadvise(mCookie); }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  STDMETHODIMP QueryInterface(REFIID InterfaceA, void** ResultA) override {
    const bool known =
        InterfaceA == IID_IUnknown || InterfaceA == IID_IDispatch || InterfaceA == __uuidof(__CMURTimeline);
    *ResultA = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  // It lives on the stack, longer than the connection.
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }

  STDMETHODIMP Invoke(DISPID EventA, REFIID, LCID, WORD, DISPPARAMS* GivenA, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    constexpr DISPID kAdded = 4, kPropertyChanged = 8;
    if (EventA == kAdded) std::printf("added: %ls\n", V_BSTR(&GivenA->rgvarg[0]));
    if (EventA == kPropertyChanged) {
      ComPtr<IMURTimelineObject> object;
      Check(V_UNKNOWN(&GivenA->rgvarg[2])->QueryInterface(IID_PPV_ARGS(&object)));
      std::printf("changed: %ls %ls\n", KeyOf(*object.Get()).GetBSTR(), V_BSTR(&GivenA->rgvarg[1]));
    }
    return S_OK;
  }

 private:
  ComPtr<IConnectionPoint> mPoint;
  DWORD mCookie = 0;
};

ComPtr<IMURTimelineObject> Add(_CMURTimeline& TimelineA, MURTimelineObjectType TypeA, const wchar_t* KeyA) {
  _variant_t key(KeyA);
  ComPtr<IMURTimelineObject> object;
  Check(TimelineA.Add(TypeA, &key, VARIANT_FALSE, &object));
  return object;
}

void Run() {
  ComPtr<_CMURTimeline> timeline;
  Check(CoCreateInstance(__uuidof(CMURTimeline), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&timeline)));
  const Listener listener(timeline.Get());

  const auto scene = Add(*timeline.Get(), murtlotGroup, L"Scene 1");
  Check(scene->put_WorldTimeT0(36526.25));  // 1 January 2000, six o'clock
  Check(scene->put_Duration(90));           // seconds

  // A clip has members of its own beside those of every object.
  const auto clip = Add(*timeline.Get(), murtlotMedia, L"Take 1");
  ComPtr<_CMURTimelineMedia> media;
  Check(clip.As(&media));
  Check(media->put_MediaFilename(_bstr_t(L"take.wav")));
  Check(media->put_MediaDuration(30));

  long count = 0;
  Check(timeline->get_Count(&count));
  for (long position = 1; position <= count; ++position) {
    _variant_t index(position);
    ComPtr<IMURTimelineObject> member;
    Check(timeline->get_Item(&index, &member));
    double duration = 0;
    Check(member->get_Duration(&duration));
    std::printf("%ls lasts %g\n", KeyOf(*member.Get()).GetBSTR(), duration);
  }
  Check(timeline->Clear());  // lets the members go: they and the time line hold each other
}

}  // namespace

int main() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  int result = 0;
  try {
    Run();
  } catch (const _com_error& failure) {
    std::printf("failed with %08lx\n", static_cast<unsigned long>(failure.Error()));
    result = 1;
  }
  CoUninitialize();
  return result;
}
