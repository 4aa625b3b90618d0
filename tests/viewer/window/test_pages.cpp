#include <QPdfWriter>
#include <QPrinter>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include "tests/viewer/window/window_test.h"
#include "viewer/page.h"

namespace mur::viewer::test {
namespace {

class Pages : public WindowTest {
 protected:
  Pages() { window->OpenFile(WriteEdit()); }

  // How many pages a PDF has, and whether they lie across.
  static int PagesOf(const QByteArray& PdfA) {
    EXPECT_TRUE(PdfA.startsWith("%PDF-1."));
    EXPECT_TRUE(PdfA.trimmed().endsWith("%%EOF"));
    static const QRegularExpression page(QStringLiteral(R"(/Type /Page\b(?!s))"));
    return static_cast<int>(QString::fromLatin1(PdfA).count(page));
  }
  static bool IsLandscape(const QByteArray& PdfA) {
    static const QRegularExpression box(QStringLiteral(R"(/MediaBox \[0 0 ([\d.]+) ([\d.]+)\])"));
    const auto match = box.match(QString::fromLatin1(PdfA));
    return match.captured(1).toDouble() > match.captured(2).toDouble();
  }
};

TEST_F(Pages, AreExportedAsOneAcross) {
  const QString path = PathOf(QStringLiteral("out.PDF"));
  window->ExportTo(path);
  const QByteArray pdf = Read(path);
  EXPECT_EQ(PagesOf(pdf), 1);
  EXPECT_TRUE(IsLandscape(pdf));
  EXPECT_GT(pdf.size(), 5000);
}

TEST_F(Pages, ArePrintedLikeThem) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(PathOf(QStringLiteral("printed.pdf")));
  printer.setPageLayout(UsualPageLayout());
  window->Print(printer);
  const QByteArray pdf = Read(printer.outputFileName());
  EXPECT_EQ(PagesOf(pdf), 1);
  EXPECT_TRUE(IsLandscape(pdf));
}

TEST_F(Pages, AreNamedAfterTheFileAndWhatIsSeenOfIt) {
  ShowTenthsFrom(2);
  Control().SetDuration(10);
  const OpenDocument& document = *window->Page().Document();
  const PageTitle title = TitleOf(document.path, document.file, Control());
  EXPECT_EQ(title.name, QStringLiteral("edit.otio"));
  EXPECT_EQ(title.range, QStringLiteral("00:00:02:00 \u2013 00:00:12:00"));
}

TEST_F(Pages, HaveNoPictureTallerThanTheyAre) {
  const QPageLayout layout = UsualPageLayout();
  const QSize size = PictureSizeFor(layout, 1000);
  EXPECT_EQ(size.width(), 1000);
  EXPECT_GT(size.height(), 500);
  EXPECT_LT(size.height(), 750);
}

TEST_F(Pages, AreShownWhereTheBarsWereMoved) {
  const QString before = PathOf(QStringLiteral("before.svg")), after = PathOf(QStringLiteral("after.svg"));
  window->ExportTo(before);
  const QPoint from = MiddleOf(*Bar(u"A"));
  Drag(from, from + QPoint(40, 0));
  window->ExportTo(after);
  EXPECT_NE(Read(before), Read(after));
}

TEST_F(Pages, ScalableOnesAreWellFormed) {
  const QString path = PathOf(QStringLiteral("out.svg"));
  window->ExportTo(path);
  QXmlStreamReader reader(Read(path));
  int texts = 0;
  while (!reader.atEnd())
    texts += reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"text";
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  EXPECT_GT(texts, 5);
}

}  // namespace
}  // namespace mur::viewer::test
