#include <gmock/gmock.h>

#include "tests/com/container/embedded.h"
#include "tests/com/container/picture.h"

namespace mur::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

FORMATETC FormatOf(CLIPFORMAT IdA, DWORD MediumA) {
  return {IdA, nullptr, DVASPECT_CONTENT, -1, MediumA};
}

TEST(DataObject, GivesItsPictureAsAnEnhancedMetafile) {
  const Embedded embedded;
  FORMATETC format = FormatOf(CF_ENHMETAFILE, TYMED_ENHMF);
  STGMEDIUM medium{};
  ASSERT_EQ(embedded.As<IDataObject>()->GetData(&format, &medium), S_OK);
  ENHMETAHEADER header{};
  GetEnhMetaFileHeader(medium.hEnhMetaFile, sizeof header, &header);
  EXPECT_EQ(header.rclFrame.right - header.rclFrame.left, 12700);
  EXPECT_EQ(header.rclFrame.bottom - header.rclFrame.top, 4233);
  const Picture picture(480, 160);
  const RECT all{0, 0, 480, 160};
  PlayEnhMetaFile(picture.Device(), medium.hEnhMetaFile, &all);
  ReleaseStgMedium(&medium);
  EXPECT_EQ(picture.At(300, 150), GetSysColor(COLOR_APPWORKSPACE));
  EXPECT_GT(picture.Drawn(), 470 * 150);
}

TEST(DataObject, GivesItsPictureAsAMetafileOfTheOlderKind) {
  const Embedded embedded;
  FORMATETC format = FormatOf(CF_METAFILEPICT, TYMED_MFPICT);
  STGMEDIUM medium{};
  ASSERT_EQ(embedded.As<IDataObject>()->GetData(&format, &medium), S_OK);
  const auto* stored = static_cast<const METAFILEPICT*>(GlobalLock(medium.hMetaFilePict));
  EXPECT_EQ(stored->mm, MM_ANISOTROPIC);
  EXPECT_EQ(stored->xExt, 12700);
  EXPECT_EQ(stored->yExt, 4233);
  const Picture picture(480, 160);
  SetMapMode(picture.Device(), MM_ANISOTROPIC);
  SetViewportExtEx(picture.Device(), 480, 160, nullptr);
  PlayMetaFile(picture.Device(), stored->hMF);
  GlobalUnlock(medium.hMetaFilePict);
  ReleaseStgMedium(&medium);
  SetMapMode(picture.Device(), MM_TEXT);
  EXPECT_EQ(picture.At(300, 150), GetSysColor(COLOR_APPWORKSPACE));
  EXPECT_GT(picture.Drawn(), 470 * 150);
}

TEST(DataObject, SaysWhatItGives) {
  const Embedded embedded;
  const auto data = embedded.As<IDataObject>();
  const auto asked = [&](FORMATETC format) { return data->QueryGetData(&format); };
  EXPECT_EQ(asked(FormatOf(CF_ENHMETAFILE, TYMED_ENHMF)), S_OK);
  EXPECT_EQ(asked(FormatOf(CF_METAFILEPICT, TYMED_MFPICT | TYMED_ISTREAM)), S_OK);
  EXPECT_EQ(asked(FormatOf(CF_METAFILEPICT, TYMED_HGLOBAL)), DV_E_TYMED);
  EXPECT_EQ(asked(FormatOf(CF_TEXT, TYMED_HGLOBAL)), DV_E_FORMATETC);
  FORMATETC icon = FormatOf(CF_ENHMETAFILE, TYMED_ENHMF);
  icon.dwAspect = DVASPECT_ICON;
  EXPECT_EQ(asked(icon), DV_E_DVASPECT);
  FORMATETC part = FormatOf(CF_ENHMETAFILE, TYMED_ENHMF);
  part.lindex = 1;
  EXPECT_EQ(asked(part), DV_E_LINDEX);
  STGMEDIUM medium{};
  FORMATETC text = FormatOf(CF_TEXT, TYMED_HGLOBAL);
  EXPECT_EQ(data->GetData(&text, &medium), DV_E_FORMATETC);
  EXPECT_EQ(data->GetData(nullptr, &medium), E_POINTER);
  EXPECT_EQ(data->GetData(&text, nullptr), E_POINTER);
}

TEST(DataObject, ListsItsFormats) {
  const Embedded embedded;
  IEnumFORMATETC* formats = nullptr;
  EXPECT_EQ(embedded.As<IDataObject>()->EnumFormatEtc(DATADIR_GET, &formats), S_OK);
  const auto all = TakeOver(formats);
  FORMATETC format[3]{};
  ULONG count = 0;
  EXPECT_EQ(all->Next(3, format, &count), S_FALSE);
  EXPECT_EQ(count, 2U);
  EXPECT_EQ(format[0].cfFormat, CF_ENHMETAFILE);
  EXPECT_EQ(format[1].cfFormat, CF_METAFILEPICT);
  EXPECT_EQ(embedded.As<IDataObject>()->EnumFormatEtc(DATADIR_SET, &formats), E_NOTIMPL);
}

TEST(DataObject, TellsOfChangesWithTheNewPicture) {
  Embedded embedded;
  const Ref<AdviseSink> sink(new AdviseSink(embedded.container.book));
  const auto data = embedded.As<IDataObject>();
  FORMATETC format = FormatOf(CF_ENHMETAFILE, TYMED_ENHMF);
  DWORD cookie = 0;
  ASSERT_EQ(data->DAdvise(&format, 0, sink.Get(), &cookie), S_OK);
  embedded.AddBar();
  EXPECT_THAT(embedded.container.book.Take(), Contains("OnDataChange with data"));
  EXPECT_EQ(data->DUnadvise(cookie), S_OK);
  embedded.control.Put(L"BarHeight", {30.0f});
  EXPECT_THAT(embedded.container.book.Take(), IsEmpty());
}

TEST(DataObject, TellsWithoutThePictureWhereThatIsNotWanted) {
  Embedded embedded;
  const Ref<AdviseSink> sink(new AdviseSink(embedded.container.book));
  const auto data = embedded.As<IDataObject>();
  FORMATETC format = FormatOf(CF_ENHMETAFILE, TYMED_ENHMF);
  DWORD cookie = 0;
  ASSERT_EQ(data->DAdvise(&format, ADVF_NODATA | ADVF_ONLYONCE, sink.Get(), &cookie), S_OK);
  embedded.AddBar();
  EXPECT_THAT(embedded.container.book.Take(), ElementsAre("OnDataChange"));
  EXPECT_EQ(data->DUnadvise(77), OLE_E_NOCONNECTION);
}

TEST(DataObject, TellsThoseWhoWaitForItsEndWhenItCloses) {
  Embedded embedded;
  const Ref<AdviseSink> sink(new AdviseSink(embedded.container.book));
  const auto data = embedded.As<IDataObject>();
  FORMATETC format = FormatOf(CF_ENHMETAFILE, TYMED_ENHMF);
  DWORD cookie = 0;
  ASSERT_EQ(data->DAdvise(&format, ADVF_NODATA | ADVF_DATAONSTOP, sink.Get(), &cookie), S_OK);
  embedded.AddBar();
  embedded.container.book.Take();
  embedded.Close();
  // With the picture or without: not every version of the platform sends it along.
  EXPECT_THAT(embedded.container.book.Take(), ElementsAre(testing::StartsWith("OnDataChange")));
  data->DUnadvise(cookie);
}

TEST(DataObject, TakesNoData) {
  const Embedded embedded;
  FORMATETC format = FormatOf(CF_ENHMETAFILE, TYMED_ENHMF);
  STGMEDIUM medium{};
  EXPECT_EQ(embedded.As<IDataObject>()->SetData(&format, &medium, FALSE), E_NOTIMPL);
  EXPECT_EQ(embedded.As<IDataObject>()->GetDataHere(&format, &medium), E_NOTIMPL);
  FORMATETC same{};
  EXPECT_EQ(embedded.As<IDataObject>()->GetCanonicalFormatEtc(&format, &same), DATA_S_SAMEFORMATETC);
  EXPECT_EQ(same.cfFormat, CF_ENHMETAFILE);
}

TEST(DataObject, IsWhatGoesToTheClipboard) {
  const Embedded embedded;
  IDataObject* given = nullptr;
  EXPECT_EQ(embedded.Object().GetClipboardData(0, &given), S_OK);
  EXPECT_TRUE(TakeOver(given) == embedded.As<IDataObject>());
}

}  // namespace
}  // namespace mur::test
