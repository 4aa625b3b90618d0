#include <gmock/gmock.h>

#include "tests/com/container/embedded.h"
#include "tests/com/listener.h"

namespace mur::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

/// A font as late-bound containers have it, with a name alone.
class LateFont final : public Counted<IDispatch> {
 public:
  STDMETHODIMP GetTypeInfoCount(UINT*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID IdA, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* ResultA, EXCEPINFO*,
                      UINT*) noexcept override {
    ++asked;
    if (IdA != DISPID_FONT_NAME) return DISP_E_MEMBERNOTFOUND;
    return VariantCopy(ResultA, &Value(L"Some Face"));
  }
  int asked = 0;
};

std::vector<std::string> HeardOfAClick(Embedded& EmbeddedA) {
  const Listening listening(EmbeddedA.control);
  EmbeddedA.Click(300, 100);
  return listening->heard;
}

TEST(Ambient, LeavesTheMouseAloneAtDesignTime) {
  Embedded embedded;
  embedded.container.site->ambient[DISPID_AMBIENT_USERMODE] = Value(false);
  embedded.As<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE);
  embedded.Show();
  EXPECT_THAT(HeardOfAClick(embedded), IsEmpty());
  embedded.container.site->ambient[DISPID_AMBIENT_USERMODE] = Value(true);
  embedded.As<IOleControl>()->OnAmbientPropertyChange(DISPID_UNKNOWN);
  EXPECT_THAT(HeardOfAClick(embedded), Not(IsEmpty()));
}

TEST(Ambient, IsReadWhenTheSiteIsSet) {
  Embedded embedded;
  embedded.container.site->ambient[DISPID_AMBIENT_USERMODE] = Value(false);
  embedded.Object().SetClientSite(embedded.container.site.Get());
  embedded.Show();
  EXPECT_THAT(HeardOfAClick(embedded), IsEmpty());
}

TEST(Ambient, MeansUserModeWhereTheSiteFailsOrAnswersNonsense) {
  Embedded embedded;
  embedded.container.site->ambient[DISPID_AMBIENT_USERMODE] = Value(L"neither true nor false");
  embedded.Object().SetClientSite(embedded.container.site.Get());
  embedded.Show();
  EXPECT_THAT(HeardOfAClick(embedded), Not(IsEmpty()));
  embedded.container.site->ambientResult = E_FAIL;
  embedded.As<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE);
  EXPECT_THAT(HeardOfAClick(embedded), Not(IsEmpty()));
}

TEST(Ambient, TakesAFontAsAnObjectAsATextOrNotAtAll) {
  Embedded embedded;
  embedded.Show();
  const Ref<LateFont> font(new LateFont);
  const auto use = [&](const Value& value) {
    embedded.container.site->ambient[DISPID_AMBIENT_FONT] = value;
    return embedded.As<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_FONT);
  };
  EXPECT_EQ(use(Value(font)), S_OK);
  EXPECT_EQ(font->asked, 1);
  EXPECT_EQ(use(Value(L"Some Face")), S_OK);
  EXPECT_EQ(use(Value(std::wstring(1000, L'x'))), S_OK);
  EXPECT_EQ(use(Value::Nothing()), S_OK);
  EXPECT_EQ(use(Value::Null()), S_OK);
  EXPECT_EQ(use(Value(7)), S_OK);
  EXPECT_EQ(use(embedded.control), S_OK);  // an object that is no font
  embedded.container.site->ambient.erase(DISPID_AMBIENT_FONT);
}

TEST(Ambient, TakesAnyLocale) {
  Embedded embedded;
  for (const int locale : {0x407, 0x409, 0, -1}) {
    embedded.container.site->ambient[DISPID_AMBIENT_LOCALEID] = Value(locale);
    EXPECT_EQ(embedded.As<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_LOCALEID), S_OK);
  }
}

TEST(OleControl, HasNoMnemonicsButAUseForEnter) {
  const Embedded embedded;
  CONTROLINFO information{sizeof information, nullptr, 7, 0};
  EXPECT_EQ(embedded.As<IOleControl>()->GetControlInfo(&information), S_OK);
  EXPECT_EQ(information.cAccel, 0);
  EXPECT_EQ(information.dwFlags, DWORD{CTRLINFO_EATS_RETURN});
  EXPECT_EQ(embedded.As<IOleControl>()->GetControlInfo(nullptr), E_POINTER);
  EXPECT_EQ(embedded.As<IOleControl>()->OnMnemonic(nullptr), S_OK);
}

TEST(OleControl, TellsNothingWhileItsEventsAreFrozen) {
  Embedded embedded;
  embedded.Show();
  const auto control = embedded.As<IOleControl>();
  control->FreezeEvents(TRUE);
  control->FreezeEvents(TRUE);
  EXPECT_THAT(HeardOfAClick(embedded), IsEmpty());
  control->FreezeEvents(FALSE);
  EXPECT_THAT(HeardOfAClick(embedded), IsEmpty());
  control->FreezeEvents(FALSE);
  EXPECT_THAT(HeardOfAClick(embedded), Not(IsEmpty()));
  control->FreezeEvents(FALSE);  // once too often
  EXPECT_THAT(HeardOfAClick(embedded), Not(IsEmpty()));
}

TEST(ActiveObject, UsesTheKeysThatMeanSomethingToATimeline) {
  Embedded embedded;
  embedded.AddBar();
  embedded.Do(OLEIVERB_UIACTIVATE);
  PumpMessages();
  embedded.container.book.Take();
  EXPECT_EQ(embedded.PressKey(VK_RIGHT), "S_OK");
  const Listening listening(embedded.control);
  EXPECT_EQ(embedded.PressKey(VK_RETURN), "S_OK");
  EXPECT_THAT(listening->heard, testing::Contains(testing::StartsWith("TLObjectClick")));
  EXPECT_THAT(embedded.container.book.Take(), IsEmpty());
}

TEST(ActiveObject, OffersOtherKeysToItsContainer) {
  Embedded embedded;
  embedded.Do(OLEIVERB_UIACTIVATE);
  embedded.container.book.Take();
  EXPECT_EQ(embedded.PressKey(VK_TAB), "S_OK");
  EXPECT_THAT(embedded.container.book.Take(), ElementsAre("TranslateAccelerator 0"));
  embedded.container.book.answers["TranslateAccelerator 0"] = S_FALSE;
  EXPECT_EQ(embedded.PressKey(VK_F5), "S_FALSE");
  embedded.container.site->isPlain = true;
  EXPECT_EQ(embedded.PressKey(VK_F5), "S_FALSE");
  embedded.container.site->isPlain = false;
  EXPECT_EQ(embedded.As<IOleInPlaceActiveObject>()->TranslateAccelerator(nullptr), E_POINTER);
}

TEST(ActiveObject, HasNothingToChangeWithTheWindowsAroundIt) {
  const Embedded embedded;
  const auto active = embedded.As<IOleInPlaceActiveObject>();
  EXPECT_EQ(active->OnFrameWindowActivate(TRUE), S_OK);
  EXPECT_EQ(active->OnDocWindowActivate(FALSE), S_OK);
  EXPECT_EQ(active->ResizeBorder(nullptr, nullptr, TRUE), S_OK);
  EXPECT_EQ(active->EnableModeless(FALSE), S_OK);
  HWND window = embedded.container.Window();
  EXPECT_EQ(active->GetWindow(&window), E_FAIL);
  EXPECT_EQ(window, nullptr);
  EXPECT_EQ(active->GetWindow(nullptr), E_POINTER);
}

}  // namespace
}  // namespace mur::test
