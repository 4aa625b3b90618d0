#include <gmock/gmock.h>

#include "tests/com/container/embedded.h"
#include "tests/com/listener.h"

namespace mur::test {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::StartsWith;

/// Counts what it is told.
class CountingSink final : public Counted<IDispatch> {
 public:
  int heard = 0;
  STDMETHODIMP GetTypeInfoCount(UINT*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                      UINT*) noexcept override {
    ++heard;
    return S_OK;
  }
};

QACONTAINER ContainerOf(Embedded& EmbeddedA) {
  QACONTAINER container{};
  container.cbSize = sizeof container;
  container.pClientSite = EmbeddedA.container.site.Get();
  container.dwAmbientFlags = QACONTAINER_USERMODE;
  container.lcid = 0x407;
  return container;
}

QACONTROL Blank() {
  QACONTROL control{};
  control.cbSize = sizeof control;
  return control;
}

TEST(QuickActivation, SaysInOneCallWhatTheControlIs) {
  Embedded embedded;
  QACONTAINER container = ContainerOf(embedded);
  QACONTROL control = Blank();
  ASSERT_EQ(embedded.As<IQuickActivate>()->QuickActivate(&container, &control), S_OK);
  DWORD status = 0;
  embedded.Object().GetMiscStatus(DVASPECT_CONTENT, &status);
  EXPECT_EQ(control.dwMiscStatus, status);
  EXPECT_EQ(control.dwViewStatus, DWORD{VIEWSTATUS_OPAQUE});
  EXPECT_EQ(control.dwEventCookie, 0U);
  EXPECT_EQ(control.dwPropNotifyCookie, 0U);
}

TEST(QuickActivation, ConnectsTheSinks) {
  Embedded embedded;
  const Ref<CountingSink> events(new CountingSink);
  const Ref<AdviseSink> views(new AdviseSink(embedded.container.book));
  QACONTAINER container = ContainerOf(embedded);
  container.pUnkEventSink = events.Get();
  container.pAdviseSink = reinterpret_cast<IAdviseSinkEx*>(views.Get());
  QACONTROL control = Blank();
  ASSERT_EQ(embedded.As<IQuickActivate>()->QuickActivate(&container, &control), S_OK);
  EXPECT_NE(control.dwEventCookie, 0U);
  embedded.AddBar();
  EXPECT_THAT(embedded.container.book.Take(), Contains("OnViewChange"));
  EXPECT_GT(events->heard, 0);  // CursorTimeChange
  EXPECT_EQ(PointOf(embedded.control.Pointer())->Unadvise(control.dwEventCookie), S_OK);
  embedded.As<IViewObject>()->SetAdvise(DVASPECT_CONTENT, 0, nullptr);
}

TEST(QuickActivation, TakesTheAmbientValuesWhereTheSiteHasNone) {
  Embedded embedded;
  QACONTAINER container = ContainerOf(embedded);
  container.dwAmbientFlags = 0;  // design time
  QACONTROL control = Blank();
  embedded.As<IQuickActivate>()->QuickActivate(&container, &control);
  embedded.Show();
  const Listening listening(embedded.control);
  embedded.Click(300, 100);
  EXPECT_THAT(listening->heard, IsEmpty());
  embedded.container.site->ambient[DISPID_AMBIENT_USERMODE] = Value(true);
  embedded.As<IQuickActivate>()->QuickActivate(&container, &control);
  embedded.Click(300, 100);
  EXPECT_THAT(listening->heard, Contains(StartsWith("Click")));
}

TEST(QuickActivation, HasTheExtentOfTheObject) {
  const Embedded embedded;
  const auto quick = embedded.As<IQuickActivate>();
  SIZEL size{2540, 1270};
  EXPECT_EQ(quick->SetContentExtent(&size), S_OK);
  size = {};
  EXPECT_EQ(quick->GetContentExtent(&size), S_OK);
  EXPECT_EQ(size.cx, 2540);
  EXPECT_EQ(quick->GetContentExtent(nullptr), E_POINTER);
}

TEST(QuickActivation, RefusesStructuresOfAnotherSize) {
  Embedded embedded;
  QACONTAINER container = ContainerOf(embedded);
  QACONTROL control = Blank();
  control.cbSize = 4;
  EXPECT_EQ(embedded.As<IQuickActivate>()->QuickActivate(&container, &control), E_UNEXPECTED);
  EXPECT_EQ(embedded.As<IQuickActivate>()->QuickActivate(nullptr, &control), E_POINTER);
}

}  // namespace
}  // namespace mur::test
