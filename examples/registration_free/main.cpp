// A host that finds the server without the registry: its manifest names the assembly MURTimeline, whose
// manifest (MURTimeline.manifest, beside the program and MURTimeline.ocx) lists the classes. Nothing needs
// installing.
#include <cstdio>

#include <comdef.h>
#include <murtimeline_contract.h>
#include <wrl/client.h>

using Microsoft::WRL::ComPtr;

namespace {

void Check(HRESULT ResultA) {
  if (FAILED(ResultA)) throw _com_error(ResultA);
}

void Run() {
  ComPtr<_CMURTimeline> timeline;
  Check(CoCreateInstance(__uuidof(CMURTimeline), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&timeline)));
  _variant_t key(L"Scene 1");
  ComPtr<IMURTimelineObject> scene;
  Check(timeline->Add(murtlotGroup, &key, VARIANT_TRUE, &scene));
  Check(scene->put_Duration(90));

  // The type library comes from the server's file, too.
  ComPtr<ITypeInfo> type;
  Check(timeline->GetTypeInfo(0, LOCALE_USER_DEFAULT, &type));
  _bstr_t name;
  Check(type->GetDocumentation(MEMBERID_NIL, name.GetAddress(), nullptr, nullptr, nullptr));
  short tracks = 0;
  Check(timeline->get_NTrackKeys(&tracks));
  std::printf("%ls has %d track\n", name.GetBSTR(), tracks);
  Check(timeline->Clear());
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
