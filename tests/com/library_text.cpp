#include "tests/com/library_text.h"

#include <algorithm>

namespace mur::test {
namespace {

/// What a type library lends, given back at the end.
template <class Described, class Interface>
class Lent {
 public:
  using Return = void (STDMETHODCALLTYPE Interface::*)(Described*);

  Lent(Interface& OwnerA, Described* DescriptionA, Return ReturnA)
      : mOwner(OwnerA), mDescription(DescriptionA), mReturn(ReturnA) {}
  Lent(const Lent&) = delete;
  Lent& operator=(const Lent&) = delete;
  ~Lent() { (mOwner.*mReturn)(mDescription); }
  const Described* operator->() const { return mDescription; }

 private:
  Interface& mOwner;
  Described* mDescription;
  Return mReturn;
};

Lent<TYPEATTR, ITypeInfo> AttributesOf(ITypeInfo& TypeA) {
  TYPEATTR* attributes = nullptr;
  Require(TypeA.GetTypeAttr(&attributes), "GetTypeAttr");
  return {TypeA, attributes, &ITypeInfo::ReleaseTypeAttr};
}

Lent<FUNCDESC, ITypeInfo> FunctionOf(ITypeInfo& TypeA, UINT IndexA) {
  FUNCDESC* function = nullptr;
  Require(TypeA.GetFuncDesc(IndexA, &function), "GetFuncDesc");
  return {TypeA, function, &ITypeInfo::ReleaseFuncDesc};
}

Lent<VARDESC, ITypeInfo> VariableOf(ITypeInfo& TypeA, UINT IndexA) {
  VARDESC* variable = nullptr;
  Require(TypeA.GetVarDesc(IndexA, &variable), "GetVarDesc");
  return {TypeA, variable, &ITypeInfo::ReleaseVarDesc};
}

std::string GuidText(REFGUID GuidA) {
  wchar_t text[39];
  StringFromGUID2(GuidA, text, 39);
  return ToUtf8(text);
}

// The words of the flags that are set, each behind a blank.
std::string Words(UINT FlagsA, std::initializer_list<std::pair<UINT, const char*>> NamesA) {
  std::string words;
  for (const auto& [flag, name] : NamesA)
    if (FlagsA & flag) words += std::string(" ") + name;
  return words;
}

std::string TypeText(ITypeInfo& OwnerA, const TYPEDESC& TypeA) {
  switch (TypeA.vt) {
    case VT_PTR:
      return TypeText(OwnerA, *TypeA.lptdesc) + "*";
    case VT_USERDEFINED: {
      ITypeInfo* found = nullptr;
      Require(OwnerA.GetRefTypeInfo(TypeA.hreftype, &found), "GetRefTypeInfo");
      return ToUtf8(NameIn(*TakeOver(found)));
    }
    case VT_BSTR:
      return "BSTR";
    case VT_DATE:
      return "DATE";
    case VT_R8:
      return "double";
    case VT_R4:
      return "float";
    case VT_I4:
      return "long";
    case VT_I2:
      return "short";
    case VT_BOOL:
      return "VARIANT_BOOL";
    case VT_VARIANT:
      return "VARIANT";
    case VT_DISPATCH:
      return "IDispatch*";
    case VT_UNKNOWN:
      return "IUnknown*";
    case VT_HRESULT:
      return "HRESULT";
    case VT_VOID:
      return "void";
    default:
      return "type " + std::to_string(TypeA.vt);
  }
}

std::string PresetText(const VARIANT& PresetA) {
  const auto preset = Value::CopyOf(PresetA);
  if (preset.Type() == VT_BSTR) return '"' + ToUtf8(preset.Text()) + '"';
  return std::to_string(static_cast<long>(preset.Number()));
}

std::string ArgumentText(ITypeInfo& TypeA, const ELEMDESC& ArgumentA, const std::wstring& NameA) {
  const auto& description = ArgumentA.paramdesc;
  const std::string flags = Words(description.wParamFlags, {{PARAMFLAG_FIN, "in"},
                                                            {PARAMFLAG_FOUT, "out"},
                                                            {PARAMFLAG_FLCID, "lcid"},
                                                            {PARAMFLAG_FOPT, "optional"}});
  std::string text = flags.empty() ? "" : flags.substr(1) + " ";
  text += TypeText(TypeA, ArgumentA.tdesc) + " " + ToUtf8(NameA);
  if (description.wParamFlags & PARAMFLAG_FHASDEFAULT)
    text += " = " + PresetText(description.pparamdescex->varDefaultValue);
  return text;
}

const char* WayText(INVOKEKIND WayA) {
  switch (WayA) {
    case INVOKE_PROPERTYGET:
      return "get";
    case INVOKE_PROPERTYPUT:
      return "put";
    case INVOKE_PROPERTYPUTREF:
      return "putref";
    default:
      return "call";
  }
}

// The name of a member and those of its arguments; the value of a put has none in the library.
std::vector<std::wstring> NamesOf(ITypeInfo& TypeA, const FUNCDESC& FunctionA) {
  std::vector<BSTR> found(static_cast<std::size_t>(FunctionA.cParams) + 1);
  UINT count = 0;
  Require(TypeA.GetNames(FunctionA.memid, found.data(), static_cast<UINT>(found.size()), &count), "GetNames");
  std::vector<std::wstring> names;
  for (UINT i = 0; i < count; ++i) {
    names.emplace_back(found[i]);
    SysFreeString(found[i]);
  }
  names.resize(found.size(), L"ValueA");
  return names;
}

std::string FunctionText(ITypeInfo& TypeA, UINT IndexA) {
  const auto function = FunctionOf(TypeA, IndexA);
  const auto names = NamesOf(TypeA, *function.operator->());
  char id[9];
  std::snprintf(id, sizeof id, "%08lX", static_cast<unsigned long>(function->memid));
  std::string arguments, result;
  for (SHORT i = 0; i < function->cParams; ++i) {
    const ELEMDESC& argument = function->lprgelemdescParam[i];
    if (argument.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) {
      result = " -> " + TypeText(TypeA, *argument.tdesc.lptdesc);
    } else {
      if (!arguments.empty()) arguments += ", ";
      arguments += ArgumentText(TypeA, argument, names[static_cast<std::size_t>(i) + 1]);
    }
  }
  const std::string outcome = TypeText(TypeA, function->elemdescFunc.tdesc);
  if (outcome != "HRESULT" && outcome != "void") result += " outcome " + outcome;
  return std::string("  ") + id + " " + WayText(function->invkind) + " " + ToUtf8(names[0]) + "(" +
         arguments + ")" + result +
         Words(function->wFuncFlags, {{FUNCFLAG_FHIDDEN, "hidden"}, {FUNCFLAG_FRESTRICTED, "restricted"}});
}

void WriteFunctions(ITypeInfo& TypeA, std::vector<std::string>& LinesA) {
  const UINT count = AttributesOf(TypeA)->cFuncs;
  for (UINT i = 0; i < count; ++i) LinesA.push_back(FunctionText(TypeA, i));
}

// The half of a dual interface that has the table of methods.
Ref<ITypeInfo> MethodsOf(ITypeInfo& TypeA) {
  HREFTYPE reference = 0;
  Require(TypeA.GetRefTypeOfImplType(static_cast<UINT>(-1), &reference), "GetRefTypeOfImplType");
  ITypeInfo* found = nullptr;
  Require(TypeA.GetRefTypeInfo(reference, &found), "GetRefTypeInfo");
  return TakeOver(found);
}

void WriteConstants(ITypeInfo& TypeA, std::vector<std::string>& LinesA) {
  const UINT count = AttributesOf(TypeA)->cVars;
  for (UINT i = 0; i < count; ++i) {
    const auto variable = VariableOf(TypeA, i);
    LinesA.push_back("  " + ToUtf8(NameIn(TypeA, variable->memid)) + " = " +
                     PresetText(*variable->lpvarValue));
  }
}

void WriteInterfaces(ITypeInfo& TypeA, std::vector<std::string>& LinesA) {
  const UINT count = AttributesOf(TypeA)->cImplTypes;
  for (UINT i = 0; i < count; ++i) {
    HREFTYPE reference = 0;
    INT flags = 0;
    ITypeInfo* found = nullptr;
    Require(TypeA.GetRefTypeOfImplType(i, &reference), "GetRefTypeOfImplType");
    Require(TypeA.GetImplTypeFlags(i, &flags), "GetImplTypeFlags");
    Require(TypeA.GetRefTypeInfo(reference, &found), "GetRefTypeInfo");
    const std::string words = Words(static_cast<UINT>(flags),
                                    {{IMPLTYPEFLAG_FDEFAULT, "default"}, {IMPLTYPEFLAG_FSOURCE, "source"}});
    LinesA.push_back(" " + words + " " + ToUtf8(NameIn(*TakeOver(found))));
  }
}

std::string HeadOf(ITypeInfo& TypeA, const std::string& KindA, UINT FlagsA) {
  return KindA + " " + ToUtf8(NameIn(TypeA)) + " " + GuidText(AttributesOf(TypeA)->guid) +
         Words(FlagsA, {{TYPEFLAG_FCANCREATE, "creatable"},
                        {TYPEFLAG_FHIDDEN, "hidden"},
                        {TYPEFLAG_FDUAL, "dual"},
                        {TYPEFLAG_FOLEAUTOMATION, "oleautomation"},
                        {TYPEFLAG_FRESTRICTED, "restricted"},
                        {TYPEFLAG_FCONTROL, "control"}});
}

// The first line says what the type is.
std::vector<std::string> LinesOfType(ITypeInfo& TypeA) {
  const auto attributes = AttributesOf(TypeA);
  const UINT flags = attributes->wTypeFlags;
  std::vector<std::string> lines;
  if (attributes->typekind == TKIND_DISPATCH && (flags & TYPEFLAG_FDUAL)) {
    const auto methods = MethodsOf(TypeA);
    lines.push_back(HeadOf(TypeA, "interface", flags | AttributesOf(*methods)->wTypeFlags));
    WriteFunctions(*methods, lines);
  } else if (attributes->typekind == TKIND_DISPATCH) {
    lines.push_back(HeadOf(TypeA, "events", flags));
    WriteFunctions(TypeA, lines);
  } else if (attributes->typekind == TKIND_COCLASS) {
    lines.push_back(HeadOf(TypeA, "class", flags));
    WriteInterfaces(TypeA, lines);
  } else if (attributes->typekind == TKIND_ENUM) {
    lines.push_back(HeadOf(TypeA, "enum", flags));
    WriteConstants(TypeA, lines);
  } else {
    lines.push_back(HeadOf(TypeA, "kind " + std::to_string(attributes->typekind), flags));
  }
  return lines;
}

std::string HeadOf(ITypeLib& LibraryA) {
  TLIBATTR* lent = nullptr;
  Require(LibraryA.GetLibAttr(&lent), "GetLibAttr");
  const TLIBATTR attributes = *lent;
  LibraryA.ReleaseTLibAttr(lent);
  BSTR name = nullptr;
  Require(LibraryA.GetDocumentation(-1, &name, nullptr, nullptr, nullptr), "GetDocumentation");
  const std::string text = ToUtf8(name);
  SysFreeString(name);
  return "library " + text + " " + std::to_string(attributes.wMajorVerNum) + "." +
         std::to_string(attributes.wMinorVerNum) + " " + GuidText(attributes.guid);
}

}  // namespace

std::vector<std::string> LinesOf(ITypeLib& LibraryA) {
  std::vector<std::vector<std::string>> types;
  for (UINT i = 0; i < LibraryA.GetTypeInfoCount(); ++i) {
    ITypeInfo* found = nullptr;
    Require(LibraryA.GetTypeInfo(i, &found), "GetTypeInfo");
    types.push_back(LinesOfType(*TakeOver(found)));
  }
  std::sort(types.begin(), types.end());
  std::vector<std::string> lines{HeadOf(LibraryA)};
  for (const auto& type : types) {
    lines.emplace_back();
    lines.insert(lines.end(), type.begin(), type.end());
  }
  return lines;
}

}  // namespace mur::test
