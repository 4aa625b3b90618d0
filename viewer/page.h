#pragma once

#include <QPageLayout>
#include <QString>

#include "viewer/headless_control.h"
#include "viewer/loading.h"

class QPainter;

namespace mur::viewer {

/// The headline of a page.
struct PageTitle {
  QString name;   // of the file
  QString range;  // what is shown of it
};

PageTitle TitleOf(const QString& PathA, const LoadedFile& FileA, const MURTimelineRender& ControlA);

/// Landscape, with margins.
QPageLayout UsualPageLayout();
/// How large a control fills the rest of such a page below the headline, for a width (pixels).
QSize PictureSizeFor(const QPageLayout& LayoutA, int WidthA);

/// Draws the headline and, as large as the whole of it fits, the picture onto the painter's page;
/// `DotsPerInchA` is its resolution and `SizeA` what may be drawn on of it, in dots.
void PaintPage(QPainter& PainterA, const QSizeF& SizeA, int DotsPerInchA, const PageTitle& TitleA,
               HeadlessControl& ControlA);

/// Needs a QGuiApplication, for its fonts. Throws OutputError when the file cannot be written.
void WritePdf(const QString& PathA, HeadlessControl& ControlA, const PageTitle& TitleA);

}  // namespace mur::viewer
