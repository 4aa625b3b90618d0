#include <array>
#include <optional>

#include <murtimeline/com/embedding/ambient.h>
#include <murtimeline/com/values.h>

namespace mur::com {
namespace {

OwnVariant Property(IDispatch& ObjectA, DISPID IdA) {
  OwnVariant given, value;
  DISPPARAMS none{};
  const HRESULT result = ObjectA.Invoke(IdA, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                                        &given, nullptr, nullptr);
  if (SUCCEEDED(result)) VariantCopyInd(&value, &given);
  return value;
}

// None where there is no value of that kind.
std::optional<OwnVariant> PropertyAs(IDispatch& ObjectA, DISPID IdA, VARTYPE KindA) {
  OwnVariant value = Property(ObjectA, IdA);
  const VARTYPE kind = V_VT(&value);
  if (kind == VT_EMPTY || kind == VT_NULL || kind == VT_ERROR) return std::nullopt;
  if (FAILED(VariantChangeTypeEx(&value, &value, LOCALE_INVARIANT, 0, KindA))) return std::nullopt;
  return value;
}

std::wstring FaceIn(BSTR NameA) {
  const UINT length = SysStringLen(NameA);
  return length < LF_FACESIZE ? std::wstring(NameA, length) : std::wstring();
}

// A font, or, from containers that take its default property for it, its name.
std::wstring AmbientFace(IDispatch& SiteA) {
  const OwnVariant font = Property(SiteA, DISPID_AMBIENT_FONT);
  switch (V_VT(&font.Get())) {
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return FaceOfFont(V_UNKNOWN(&font.Get()));
    case VT_BSTR:
      return FaceIn(V_BSTR(&font.Get()));
    default:
      return {};
  }
}

}  // namespace

std::wstring FaceOfFont(IUnknown* FontA) {
  OwnText name;
  if (const auto font = Query<IFont>(FontA))
    return SUCCEEDED(font->get_Name(&name)) ? FaceIn(name.Get()) : std::wstring();
  const auto late = Query<IDispatch>(FontA);
  if (!late) return {};
  const auto text = PropertyAs(*late, DISPID_FONT_NAME, VT_BSTR);
  return text ? FaceIn(V_BSTR(&text->Get())) : std::wstring();
}

win32::Ambience AmbienceOf(IUnknown* SiteA, const win32::Ambience& RestA) {
  win32::Ambience ambience = RestA;
  const auto site = Query<IDispatch>(SiteA);
  if (!site) return ambience;
  if (auto face = AmbientFace(*site); !face.empty()) ambience.fontFace = std::move(face);
  if (const auto mode = PropertyAs(*site, DISPID_AMBIENT_USERMODE, VT_BOOL))
    ambience.userMode = Taken(V_BOOL(&mode->Get()));
  if (const auto isRight = PropertyAs(*site, DISPID_AMBIENT_RIGHTTOLEFT, VT_BOOL))
    ambience.rightToLeft = Taken(V_BOOL(&isRight->Get()));
  if (const auto locale = PropertyAs(*site, DISPID_AMBIENT_LOCALEID, VT_I4))
    ambience.localeName = LocaleNameOf(static_cast<LCID>(V_I4(&locale->Get())));
  return ambience;
}

std::string LocaleNameOf(LCID LocaleA) {
  std::array<wchar_t, LOCALE_NAME_MAX_LENGTH> name{};
  if (LCIDToLocaleName(LocaleA, name.data(), static_cast<int>(name.size()), 0) == 0) return {};
  return ToUtf8(reinterpret_cast<const char16_t*>(name.data()));
}

}  // namespace mur::com
