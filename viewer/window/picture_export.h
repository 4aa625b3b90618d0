#pragma once

#include <QPrinter>
#include <QSize>

#include <murtimeline/render/timeline_render.h>

#include "viewer/presentation.h"
#include "viewer/window/open_document.h"

namespace mur::viewer {

/// Pictures of a document as a control shows it, light on any window.
class PictureExport {
 public:
  /// All outlive the export. Scalable pictures and PNGs become as large as `SizeA` (pixels).
  PictureExport(const OpenDocument& DocumentA, const MURTimelineRender& ControlA, const Appearance& ChosenA,
                const QSize& SizeA)
      : mDocument(DocumentA), mControl(ControlA), mChosen(ChosenA), mSize(SizeA) {}

  /// A scalable picture for names that end in ".svg", a page for ".pdf", else a PNG. Throws OutputError when
  /// the file cannot be written.
  void Write(const QString& PathA) const;
  /// One page with everything on it.
  void Print(QPrinter& PrinterA) const;

 private:
  template <class Work>
  void Draw(const QSize& SizeA, Work&& WorkA) const;

  const OpenDocument& mDocument;
  const MURTimelineRender& mControl;
  const Appearance& mChosen;
  QSize mSize;
};

}  // namespace mur::viewer
