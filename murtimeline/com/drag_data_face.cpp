#include <algorithm>
#include <new>
#include <span>

#include <murtimeline/automation/narrow.h>
#include <murtimeline/com/drag_data_face.h>

namespace mur::com {
namespace {

// The same 16 bits.
CLIPFORMAT ClipboardFormat(short FormatA) {
  return static_cast<CLIPFORMAT>(FormatA);
}

/// A new array in a variant, and its items while this lives.
template <class Item>
class NewArray {
 public:
  NewArray(VARTYPE KindA, std::size_t CountA) {
    SAFEARRAY* array = SafeArrayCreateVector(KindA, 0, Narrow<ULONG>(CountA));
    if (!array) throw std::bad_alloc();
    V_VT(&mValue.Get()) = static_cast<VARTYPE>(VT_ARRAY | KindA);
    V_ARRAY(&mValue.Get()) = array;
    RequireSuccess(SafeArrayAccessData(array, reinterpret_cast<void**>(&mFirst)));
    mCount = CountA;
  }

  std::span<Item> Items() const { return {mFirst, mCount}; }
  VARIANT Finish() && {
    SafeArrayUnaccessData(V_ARRAY(&mValue.Get()));
    return mValue.Detach();
  }

 private:
  OwnVariant mValue;
  Item* mFirst = nullptr;
  std::size_t mCount = 0;
};

VARIANT TextOf(const String& TextA) {
  VARIANT result{};
  Give(TextA, &result);
  return result;
}

// Of variants: scripts know no other arrays.
VARIANT ArrayOf(const std::vector<String>& TextsA) {
  NewArray<VARIANT> array(VT_VARIANT, TextsA.size());
  std::transform(TextsA.begin(), TextsA.end(), array.Items().begin(), &TextOf);
  return std::move(array).Finish();
}

VARIANT ArrayOf(const std::vector<std::byte>& BytesA) {
  NewArray<std::byte> array(VT_UI1, BytesA.size());
  std::copy(BytesA.begin(), BytesA.end(), array.Items().begin());
  return std::move(array).Finish();
}

}  // namespace

HRESULT DragDataFace::GetFormat(short FormatA, VARIANT_BOOL* ResultA) noexcept {
  return Answer(ResultA, [&] { return mData.Has(ClipboardFormat(FormatA)); });
}

// Empty for what is not there.
HRESULT DragDataFace::GetData(short FormatA, VARIANT* ResultA) noexcept {
  if (!ResultA) return E_POINTER;
  VariantInit(ResultA);
  return Guarded([&] {
    const CLIPFORMAT format = ClipboardFormat(FormatA);
    if (!mData.Has(format)) return;
    if (format == CF_TEXT || format == CF_UNICODETEXT)
      *ResultA = TextOf(mData.Text());
    else if (format == CF_HDROP)
      *ResultA = ArrayOf(mData.Files());
    else
      *ResultA = ArrayOf(mData.Bytes(format));
  });
}

}  // namespace mur::com
