#pragma once

#include <functional>
#include <map>
#include <string>

#include "tests/com/counted.h"

namespace mur::test {

/// An object as script engines make them: members by name alone, neither a type library nor a published
/// interface. Some engines' objects answer IDispatch, some IDispatchEx and no IDispatch::GetIDsOfNames.
class ScriptObject final : public Counted<IDispatchEx> {
 public:
  /// Arguments as they are written; what it throws, an HRESULT, fails the call.
  using Member = std::function<Value(WORD WayA, const Values& ArgumentsA)>;
  enum class Kind { Plain, Extended };

  static Ref<ScriptObject> Make(Kind KindA = Kind::Plain) {
    return Ref<ScriptObject>(new ScriptObject(KindA));
  }

  std::map<std::wstring, Member, std::less<>> members;
  std::vector<std::string> calls;  // names, in order

  /// A member that keeps what is put and gives it back.
  void AddVariable(const std::wstring& NameA, const Value& StartA);
  Ref<IDispatch> Dispatch() { return Ref<IDispatch>(this); }

  STDMETHODIMP GetTypeInfoCount(UINT* ResultA) noexcept override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return DISP_E_BADINDEX; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* NamesA, UINT CountA, LCID, DISPID* ResultA) noexcept override;
  STDMETHODIMP Invoke(DISPID IdA, REFIID, LCID, WORD WaysA, DISPPARAMS* GivenA, VARIANT* ResultA,
                      EXCEPINFO* ErrorA, UINT* WrongA) noexcept override;

  STDMETHODIMP GetDispID(BSTR NameA, DWORD, DISPID* ResultA) noexcept override;
  STDMETHODIMP InvokeEx(DISPID IdA, LCID LocaleA, WORD WaysA, DISPPARAMS* GivenA, VARIANT* ResultA,
                        EXCEPINFO* ErrorA, IServiceProvider*) noexcept override;
  STDMETHODIMP DeleteMemberByName(BSTR, DWORD) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP DeleteMemberByDispID(DISPID) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetMemberProperties(DISPID, DWORD, DWORD*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetMemberName(DISPID, BSTR*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetNextDispID(DWORD, DISPID, DISPID*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetNameSpaceParent(IUnknown**) noexcept override { return E_NOTIMPL; }

 private:
  explicit ScriptObject(Kind KindA) : mKind(KindA) {}

  void* Offer(REFIID InterfaceA) noexcept override;
  HRESULT Find(std::wstring_view NameA, DISPID* ResultA) const;

  const Kind mKind;
};

/// A script's timeline object with all members of a plain one: a key, a tag, a span, no children.
Ref<ScriptObject> ScriptTimelineObject(ScriptObject::Kind KindA = ScriptObject::Kind::Plain);

}  // namespace mur::test
