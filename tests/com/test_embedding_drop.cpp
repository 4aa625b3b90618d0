#include <gmock/gmock.h>

#include "tests/com/container/embedded.h"
#include "tests/com/listener.h"
#include "tests/win32/given_data.h"

namespace mur::test {
namespace {

using win32::test::GivenData;

constexpr CLIPFORMAT kOwnFormat = 0xC123;  // a number as programs register them

/// Listens to what is dropped, and looks into it.
class DropListener final : public Counted<IDispatch> {
 public:
  explicit DropListener(std::function<void(const Late& DataA)> LookA) : mLook(std::move(LookA)) {}

  Late kept;
  STDMETHODIMP GetTypeInfoCount(UINT*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID IdA, REFIID, LCID, WORD, DISPPARAMS* GivenA, VARIANT*, EXCEPINFO*,
                      UINT*) noexcept override {
    constexpr DISPID kDropped = 20;  // OLEDragDrop, whose first argument comes last
    if (IdA != kDropped) return S_OK;
    kept = Late(Ref(*V_DISPATCHREF(&GivenA->rgvarg[GivenA->cArgs - 1])));
    mLook(kept);
    return S_OK;
  }

 private:
  const std::function<void(const Late& DataA)> mLook;
};

/// Drops data onto the ground of a shown control, and gives back what the listener saw, which is over then.
Late DropOnto(Embedded& EmbeddedA, GivenData& DataA, std::function<void(const Late& DataA)> LookA) {
  EmbeddedA.AddBar();
  EmbeddedA.control.Put(L"OLEDropMode", {short{1}});
  EmbeddedA.Show();
  const Ref<DropListener> listener(new DropListener(std::move(LookA)));
  DWORD cookie = 0;
  PointOf(EmbeddedA.control.Pointer())->Advise(listener.Get(), &cookie);
  POINT at{300, 100};
  ClientToScreen(EmbeddedA.Canvas(), &at);
  const Ref<IDropTarget> target(
      static_cast<IDropTarget*>(GetPropW(EmbeddedA.Canvas(), L"OleDropTargetInterface")));
  if (!target) throw std::runtime_error("nothing can be dropped");
  DWORD effect = DROPEFFECT_COPY;
  target->DragEnter(&DataA, MK_LBUTTON, {at.x, at.y}, &effect);
  effect = DROPEFFECT_COPY;
  target->Drop(&DataA, MK_LBUTTON, {at.x, at.y}, &effect);
  PointOf(EmbeddedA.control.Pointer())->Unadvise(cookie);
  return std::exchange(listener->kept, {});
}

std::vector<std::string> Texts(const Value& ArrayA) {
  std::vector<std::string> texts;
  SAFEARRAY* array = V_ARRAY(&ArrayA.Get());
  LONG last = -1;
  SafeArrayGetUBound(array, 1, &last);
  for (LONG i = 0; i <= last; ++i) {
    Value item;
    SafeArrayGetElement(array, &i, &item);
    texts.push_back(ToUtf8(item.Text()));
  }
  return texts;
}

TEST(DragData, IsATextWhileItsEventLasts) {
  Embedded embedded;
  GivenData data;
  data.PutText(u"dropped text");
  const Late over = DropOnto(embedded, data, [](const Late& dragged) {
    EXPECT_EQ(dragged.Call(L"GetFormat", {short{CF_UNICODETEXT}}), Value(true));
    EXPECT_EQ(dragged.Call(L"GetFormat", {short{CF_BITMAP}}), Value(false));
    EXPECT_EQ(dragged.Call(L"GetData", {short{CF_UNICODETEXT}}), Value(L"dropped text"));
    EXPECT_EQ(dragged.Call(L"GetData", {short{CF_BITMAP}}), Value());
  });
  EXPECT_EQ(over.Call(L"GetFormat", {short{CF_UNICODETEXT}}), Value(false));
  EXPECT_EQ(over.Call(L"GetData", {short{CF_UNICODETEXT}}), Value());
  EXPECT_EQ(data.Holders(), 0U);
}

TEST(DragData, IsAnArrayOfPathsThatScriptsCanRead) {
  Embedded embedded;
  GivenData data;
  struct {
    DWORD offset = 20;
    POINT at{};
    BOOL isOutside = FALSE, isWide = TRUE;
    wchar_t paths[17] = L"C:\\a.txt\0D:\\b\0";
  } files;
  data.Put(CF_HDROP, &files, sizeof files);
  DropOnto(embedded, data, [](const Late& dragged) {
    const Value paths = dragged.Call(L"GetData", {short{CF_HDROP}});
    EXPECT_EQ(paths.Type(), VT_ARRAY | VT_VARIANT);
    EXPECT_THAT(Texts(paths), testing::ElementsAre("C:\\a.txt", "D:\\b"));
  });
}

TEST(DragData, IsAnArrayOfBytesInAnyOtherFormat) {
  Embedded embedded;
  GivenData data;
  data.Put(kOwnFormat, "abc", 3);
  DropOnto(embedded, data, [](const Late& dragged) {
    const Value bytes = dragged.Call(L"GetData", {static_cast<short>(kOwnFormat)});
    ASSERT_EQ(bytes.Type(), VT_ARRAY | VT_UI1);
    LONG last = 2;
    unsigned char letter = 0;
    SafeArrayGetElement(V_ARRAY(&bytes.Get()), &last, &letter);
    EXPECT_EQ(letter, 'c');
  });
}

}  // namespace
}  // namespace mur::test
