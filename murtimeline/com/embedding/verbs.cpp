#include <cstring>
#include <cwchar>
#include <new>

#include <murtimeline/com/embedding/verbs.h>
#include <murtimeline/com/enumerator.h>

namespace mur::com {
namespace {

struct Verb {
  LONG id;
  const wchar_t* name;
  DWORD attributes;

  OLEVERB Handed() const { return {id, TaskText(name), 0, attributes}; }
  static void Drop(const OLEVERB& VerbA) noexcept { CoTaskMemFree(VerbA.lpszVerbName); }
};

using VerbEnumerator = Enumerator<IEnumOLEVERB, OLEVERB, Snapshot<OLEVERB, Verb>>;

}  // namespace

Ref<IEnumOLEVERB> EnumerateVerbs() {
  constexpr DWORD kForMenus = OLEVERBATTRIB_NEVERDIRTIES | OLEVERBATTRIB_ONCONTAINERMENU;
  constexpr DWORD kForPrograms = OLEVERBATTRIB_NEVERDIRTIES;
  return Ref<IEnumOLEVERB>(new VerbEnumerator(Snapshot<OLEVERB, Verb>({
      {OLEIVERB_PRIMARY, L"Activate", kForMenus},
      {OLEIVERB_SHOW, L"Show", kForPrograms},
      {OLEIVERB_HIDE, L"Hide", kForPrograms},
      {OLEIVERB_UIACTIVATE, L"Activate with tools", kForPrograms},
      {OLEIVERB_INPLACEACTIVATE, L"Activate in place", kForPrograms},
  })));
}

LPOLESTR TaskText(const wchar_t* TextA) {
  const std::size_t bytes = (std::wcslen(TextA) + 1) * sizeof(wchar_t);
  void* memory = CoTaskMemAlloc(bytes);
  if (!memory) throw std::bad_alloc();
  return static_cast<LPOLESTR>(std::memcpy(memory, TextA, bytes));
}

}  // namespace mur::com
