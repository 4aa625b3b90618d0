#include "viewer/window/picture_export.h"

#include <QFileInfo>
#include <QPainter>

#include "viewer/page.h"
#include "viewer/pictures.h"

namespace mur::viewer {

template <class Work>
void PictureExport::Draw(const QSize& SizeA, Work&& WorkA) const {
  HeadlessControl picture(SizeA);
  MURTimelineRender& control = picture.Control();
  control.SetTimeline(mDocument.timeline.Get());
  control.ShowMembers();
  PresentFile(control, mDocument.file, {mControl.WorldTimeT0(), mControl.Duration()},
              {mChosen, kLightScheme});
  control.SetCursorTime(mControl.CursorTime());
  WorkA(picture, TitleOf(mDocument.path, mDocument.file, control));
}

void PictureExport::Write(const QString& PathA) const {
  const QString suffix = QFileInfo(PathA).suffix().toLower();
  const bool isPage = suffix == QLatin1String("pdf");
  Draw(isPage ? PictureSizeFor(UsualPageLayout(), mSize.width()) : mSize,
       [&](HeadlessControl& picture, const PageTitle& title) {
         if (isPage)
           WritePdf(PathA, picture, title);
         else if (suffix == QLatin1String("svg"))
           WriteSvg(PathA, picture);
         else
           WritePng(PathA, picture);
       });
}

void PictureExport::Print(QPrinter& PrinterA) const {
  Draw(PictureSizeFor(PrinterA.pageLayout(), mSize.width()),
       [&](HeadlessControl& picture, const PageTitle& title) {
         QPainter painter(&PrinterA);
         PaintPage(painter, PrinterA.pageRect(QPrinter::DevicePixel).size(), PrinterA.resolution(), title,
                   picture);
       });
}

}  // namespace mur::viewer
