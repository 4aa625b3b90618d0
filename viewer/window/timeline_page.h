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
  Q_OBJECT

 public:
  TimelinePage();
  ~TimelinePage() override;

  qt::TimelineWidget& Timeline() const { return *mWidget; }
  TimeScrollBar& ScrollBar() const { return *mScrollBar; }
  const OpenDocument* Document() const { return mDocument ? &*mDocument : nullptr; }
  const Look& PresentLook() const { return mLook; }

  /// Shows a document in the place of the one before. Throws AutomationError for a range that begins outside
  /// the range of dates; the document is shown then nevertheless.
  void Show(OpenDocument DocumentA, const VisibleRange& RangeA);
  /// The document was written there.
  void SetPath(const QString& PathA) { mDocument->path = PathA; }
  void SetAppearance(const Appearance& ChosenA);
  /// Puts a marker of the file's list to another time, in the file's seconds; out of the range of dates it
  /// stays.
  void MoveMarker(std::size_t MarkerA, double SecondsA);
  /// Moves times and rows so that the object's bar is seen.
  void Reveal(const IMURTimelineObject& ObjectA);

 Q_SIGNALS:
  /// All bars have their own colours again.
  void LookChanged();

 protected:
  void changeEvent(QEvent* EventA) override;
  void resizeEvent(QResizeEvent* EventA) override;

 private:
  void FollowPalette();
  void ApplyPresentLook();

  qt::TimelineWidget* mWidget;
  TimeScrollBar* mScrollBar;
  std::optional<OpenDocument> mDocument;
  Look mLook;
};

}  // namespace mur::viewer
