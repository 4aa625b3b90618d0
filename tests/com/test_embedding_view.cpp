#include <gmock/gmock.h>

#include "tests/com/container/embedded.h"
#include "tests/com/container/picture.h"

namespace mur::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

COLORREF Ground() {
  return GetSysColor(COLOR_APPWORKSPACE);
}

HRESULT Draw(const Embedded& EmbeddedA, HDC DeviceA, const RECTL& PlaceA, DWORD AspectA = DVASPECT_CONTENT) {
  return EmbeddedA.As<IViewObject>()->Draw(AspectA, -1, nullptr, nullptr, nullptr, DeviceA, &PlaceA, nullptr,
                                           nullptr, 0);
}

BOOL STDMETHODCALLTYPE Stop(ULONG_PTR TimesA) {
  ++*reinterpret_cast<int*>(TimesA);
  return FALSE;
}

TEST(ViewObject, DrawsWithoutAWindowWithinItsPlaceOnly) {
  const Embedded embedded;
  const Picture picture(600, 300);
  EXPECT_EQ(Draw(embedded, picture.Device(), {20, 10, 500, 170}), S_OK);
  EXPECT_EQ(picture.Drawn(), 480 * 160);
  EXPECT_EQ(picture.At(499, 169), Ground());
  EXPECT_EQ(picture.At(22, 12), GetSysColor(COLOR_WINDOW));  // the scale
}

TEST(ViewObject, DrawsWhatItsWindowShows) {
  Embedded embedded;
  embedded.Show();
  embedded.AddBar();
  const Picture picture(500, 200);
  EXPECT_EQ(Draw(embedded, picture.Device(), {0, 0, 500, 200}), S_OK);
  EXPECT_EQ(picture.Drawn(), 500 * 200);
  EXPECT_NE(picture.At(150, 65), Ground());  // within the bar
  EXPECT_EQ(picture.At(50, 65), Ground());   // beside it
}

TEST(ViewObject, IsDrawnLargerAndSmaller) {
  const Embedded embedded;
  embedded.AddBar();
  const Picture picture(960, 320);
  Draw(embedded, picture.Device(), {0, 0, 960, 320});
  EXPECT_EQ(picture.Drawn(), 960 * 320);
  const Picture small(240, 80);
  Draw(embedded, small.Device(), {0, 0, 240, 80});
  EXPECT_EQ(small.Drawn(), 240 * 80);
}

TEST(ViewObject, IsDrawnInTheUnitsOfTheDevice) {
  const Embedded embedded;
  const Picture picture(600, 300);
  SetMapMode(picture.Device(), MM_ANISOTROPIC);
  SetWindowExtEx(picture.Device(), 1200, 600, nullptr);
  SetViewportExtEx(picture.Device(), 600, 300, nullptr);
  Draw(embedded, picture.Device(), {200, 100, 800, 300});
  SetMapMode(picture.Device(), MM_TEXT);
  EXPECT_EQ(picture.Drawn(), 300 * 100);
  EXPECT_EQ(picture.At(100, 149), Ground());
}

TEST(ViewObject, IsDrawnIntoAMetafile) {
  const Embedded embedded;
  embedded.AddBar();
  const HDC recorded = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
  EXPECT_EQ(Draw(embedded, recorded, {0, 0, 480, 160}), S_OK);
  const HENHMETAFILE metafile = CloseEnhMetaFile(recorded);
  const Picture picture(480, 160);
  const RECT all{0, 0, 480, 160};
  PlayEnhMetaFile(picture.Device(), metafile, &all);
  DeleteEnhMetaFile(metafile);
  EXPECT_EQ(picture.At(470, 155), Ground());
  EXPECT_GT(picture.Drawn(), 470 * 150);
}

TEST(ViewObject, StopsWhereItsContainerSaysSo) {
  const Embedded embedded;
  const Picture picture(10, 10);
  const RECTL place{0, 0, 10, 10};
  int asked = 0;
  EXPECT_EQ(
      embedded.As<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, picture.Device(),
                                       &place, nullptr, &Stop, reinterpret_cast<ULONG_PTR>(&asked)),
      E_ABORT);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(picture.Drawn(), 0);
}

TEST(ViewObject, RefusesWhatItCannotDraw) {
  const Embedded embedded;
  const Picture picture(10, 10);
  EXPECT_EQ(Draw(embedded, picture.Device(), {0, 0, 10, 10}, DVASPECT_ICON), DV_E_DVASPECT);
  EXPECT_EQ(Draw(embedded, nullptr, {0, 0, 10, 10}), E_POINTER);
  EXPECT_EQ(embedded.As<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr,
                                             picture.Device(), nullptr, nullptr, nullptr, 0),
            E_POINTER);
  EXPECT_EQ(picture.Drawn(), 0);
}

TEST(ViewObject, TellsOfChangesOfItsPicture) {
  Embedded embedded;
  const Ref<AdviseSink> sink(new AdviseSink(embedded.container.book));
  const auto view = embedded.As<IViewObject>();
  EXPECT_EQ(view->SetAdvise(DVASPECT_CONTENT, 0, sink.Get()), S_OK);
  EXPECT_THAT(embedded.container.book.Take(), IsEmpty());
  embedded.AddBar();
  EXPECT_THAT(embedded.container.book.Take(), testing::Contains("OnViewChange"));
  view->SetAdvise(DVASPECT_CONTENT, 0, nullptr);
  embedded.control.Put(L"BarHeight", {30.0f});
  EXPECT_THAT(embedded.container.book.Take(), IsEmpty());
}

TEST(ViewObject, TellsAtOnceOrOnlyOnceWhereThatIsWanted) {
  Embedded embedded;
  const Ref<AdviseSink> sink(new AdviseSink(embedded.container.book));
  const auto view = embedded.As<IViewObject>();
  view->SetAdvise(DVASPECT_CONTENT, ADVF_PRIMEFIRST, sink.Get());
  EXPECT_THAT(embedded.container.book.Take(), ElementsAre("OnViewChange"));
  view->SetAdvise(DVASPECT_CONTENT, ADVF_ONLYONCE, sink.Get());
  embedded.AddBar();
  EXPECT_THAT(embedded.container.book.Take(), ElementsAre("OnViewChange"));
  view->SetAdvise(DVASPECT_CONTENT, ADVF_PRIMEFIRST | ADVF_ONLYONCE, sink.Get());
  embedded.control.Put(L"BarHeight", {30.0f});
  EXPECT_THAT(embedded.container.book.Take(), ElementsAre("OnViewChange"));
}

TEST(ViewObject, SaysWhomItTells) {
  Embedded embedded;
  const Ref<AdviseSink> sink(new AdviseSink(embedded.container.book));
  const auto view = embedded.As<IViewObject>();
  view->SetAdvise(DVASPECT_CONTENT, ADVF_ONLYONCE, sink.Get());
  DWORD aspects = 0, flags = 0;
  IAdviseSink* told = nullptr;
  EXPECT_EQ(view->GetAdvise(&aspects, &flags, &told), S_OK);
  EXPECT_EQ(aspects, DWORD{DVASPECT_CONTENT});
  EXPECT_EQ(flags, DWORD{ADVF_ONLYONCE});
  EXPECT_EQ(TakeOver(told).Get(), sink.Get());
  EXPECT_EQ(view->GetAdvise(nullptr, nullptr, nullptr), S_OK);
  EXPECT_EQ(view->SetAdvise(DVASPECT_ICON, 0, sink.Get()), DV_E_DVASPECT);
}

TEST(ViewObject, SurvivesAContainerThatClosesItForAChange) {
  Embedded embedded;
  embedded.Show();
  const Ref<AdviseSink> sink(new AdviseSink(embedded.container.book));
  embedded.As<IViewObject>()->SetAdvise(DVASPECT_CONTENT, 0, sink.Get());
  embedded.container.book.reactions["OnViewChange"] = [&] { embedded.Close(); };
  embedded.AddBar();
  EXPECT_EQ(embedded.Window(), nullptr);
}

TEST(ViewObject, KnowsItsSizes) {
  const Embedded embedded;
  const auto view = embedded.As<IViewObjectEx>();
  SIZEL size{};
  EXPECT_EQ(view->GetExtent(DVASPECT_CONTENT, -1, nullptr, &size), S_OK);
  EXPECT_EQ(size.cx, 12700);
  RECTL rect{};
  EXPECT_EQ(view->GetRect(DVASPECT_CONTENT, &rect), S_OK);
  EXPECT_EQ(rect.bottom, 4233);
  DVEXTENTINFO wanted{sizeof wanted, DVEXTENT_INTEGRAL, {1000, 2000}};
  EXPECT_EQ(view->GetNaturalExtent(DVASPECT_CONTENT, -1, nullptr, nullptr, &wanted, &size), S_OK);
  EXPECT_EQ(size.cy, 2000);
  wanted.dwExtentMode = DVEXTENT_CONTENT;
  EXPECT_EQ(view->GetNaturalExtent(DVASPECT_CONTENT, -1, nullptr, nullptr, &wanted, &size), S_OK);
  EXPECT_EQ(size.cy, 4233);
  DWORD status = 0;
  EXPECT_EQ(view->GetViewStatus(&status), S_OK);
  EXPECT_EQ(status, DWORD{VIEWSTATUS_OPAQUE});
}

TEST(ViewObject, IsHitWithinItsBounds) {
  const Embedded embedded;
  const auto view = embedded.As<IViewObjectEx>();
  const RECT bounds{10, 10, 20, 20}, beside{20, 10, 30, 20}, across{0, 0, 11, 11};
  DWORD hit = 0;
  EXPECT_EQ(view->QueryHitPoint(DVASPECT_CONTENT, &bounds, {10, 19}, 0, &hit), S_OK);
  EXPECT_EQ(hit, DWORD{HITRESULT_HIT});
  view->QueryHitPoint(DVASPECT_CONTENT, &bounds, {20, 19}, 0, &hit);
  EXPECT_EQ(hit, DWORD{HITRESULT_OUTSIDE});
  view->QueryHitRect(DVASPECT_CONTENT, &bounds, &across, 0, &hit);
  EXPECT_EQ(hit, DWORD{HITRESULT_HIT});
  view->QueryHitRect(DVASPECT_CONTENT, &bounds, &beside, 0, &hit);
  EXPECT_EQ(hit, DWORD{HITRESULT_OUTSIDE});
}

}  // namespace
}  // namespace mur::test
