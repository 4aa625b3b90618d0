#include <murtimeline/com/dispatcher.h>
#include <murtimeline/com/face.h>
#include <murtimeline/com/type_library.h>

namespace mur::com {
namespace {
// Its address is that of this copy of the server.
const char kServer = 0;
}  // namespace

HRESULT FaceBase::QueryInterface(REFIID InterfaceA, void** ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  void* found = nullptr;
  if (InterfaceA == IID_IUnknown) {
    found = Identity();
  } else if (InterfaceA == __uuidof(IOwnFace)) {
    found = static_cast<IOwnFace*>(this);
  } else if (InterfaceA == IID_ISupportErrorInfo) {
    found = static_cast<ISupportErrorInfo*>(this);
  } else if ((InterfaceA == IID_IProvideClassInfo || InterfaceA == IID_IProvideClassInfo2) &&
             mClass != CLSID_NULL) {
    found = static_cast<IProvideClassInfo2*>(this);
  } else {
    found = Published(InterfaceA);
    if (!found) found = Further(InterfaceA);
  }
  *ResultA = found;
  if (!found) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG FaceBase::AddRef() noexcept {
  if (mHostReferences++ == 0) mObject.AddRef();
  return mHostReferences;
}

ULONG FaceBase::Release() noexcept {
  // A release too many is not passed on.
  if (mHostReferences == 0) return 0;
  const ULONG rest = --mHostReferences;
  if (rest == 0) mObject.Release();
  return rest;
}

Object* FaceBase::OwnObject(const void* ServerA) noexcept {
  return ServerA == &kServer ? &mObject : nullptr;
}

HRESULT FaceBase::InterfaceSupportsErrorInfo(REFIID InterfaceA) noexcept {
  return Published(InterfaceA) ? S_OK : S_FALSE;
}

HRESULT FaceBase::GetClassInfo(ITypeInfo** ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = nullptr;
  return TypeInfoOf(mClass, ResultA);
}

HRESULT FaceBase::GetGUID(DWORD KindA, GUID* ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  *ResultA = GUID_NULL;
  if (KindA != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
  *ResultA = Source();
  return *ResultA == GUID_NULL ? E_UNEXPECTED : S_OK;
}

Ref<Object> OwnObjectBehind(IUnknown* ObjectA) {
  const auto face = Query<IOwnFace>(ObjectA);
  return Ref<Object>(face ? face->OwnObject(&kServer) : nullptr);
}

}  // namespace mur::com
