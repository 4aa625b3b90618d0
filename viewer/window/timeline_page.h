#pragma once

#include <QWidget>
#include <optional>

#include "viewer/presentation.h"
#include "viewer/window/open_document.h"

namespace mur::qt {
class TimelineWidget;
}

namespace mur::viewer {

class TimeScrollBar;

/// An open document: its time line above a scroll bar.
class TimelinePage final : public QWidget {
 public:
  TimelinePage();
  ~TimelinePage() override;

  qt::TimelineWidget& Timeline() const { return *mWidget; }
  TimeScrollBar& ScrollBar() const { return *mScrollBar; }
  const OpenDocument* Document() const { return mDocument ? &*mDocument : nullptr; }

  /// Shows a document in the place of the one before. Throws AutomationError for a range that begins outside
  /// the range of dates; the document is shown then nevertheless.
  void Show(OpenDocument DocumentA, const VisibleRange& RangeA);

 protected:
  void changeEvent(QEvent* EventA) override;
  void resizeEvent(QResizeEvent* EventA) override;

 private:
  void FollowPalette();

  qt::TimelineWidget* mWidget;
  TimeScrollBar* mScrollBar;
  std::optional<OpenDocument> mDocument;
};

}  // namespace mur::viewer
