#include "viewer/window/picture_export.h"

#include <QFileInfo>

#include "viewer/pictures.h"
#include "viewer/presentation.h"

namespace mur::viewer {

void ExportPicture(const QString& PathA, const OpenDocument& DocumentA, const MURTimelineRender& ControlA,
                   const QSize& SizeA) {
  HeadlessControl picture(SizeA);
  MURTimelineRender& control = picture.Control();
  control.SetTimeline(DocumentA.timeline.Get());
  control.ShowMembers();
  PresentFile(control, DocumentA.file, {ControlA.WorldTimeT0(), ControlA.Duration()});
  control.SetCursorTime(ControlA.CursorTime());
  const bool isScalable = QFileInfo(PathA).suffix().compare(QLatin1String("svg"), Qt::CaseInsensitive) == 0;
  isScalable ? WriteSvg(PathA, picture) : WritePng(PathA, picture);
}

}  // namespace mur::viewer
