#pragma once

#include <QWidget>
#include <vector>

#include <murtimeline/model/timeline.h>

class QLabel;
class QLineEdit;
class QToolButton;

namespace mur::viewer {

/// A strip for finding objects by their tags, letter case ignored.
class FindBar final : public QWidget {
  Q_OBJECT

 public:
  FindBar();

  /// Where to look; none finds nothing.
  void SetTimeline(const Ref<CMURTimeline>& TimelineA);
  /// Shows the bar with its text ready to be typed over.
  void Open();
  void Close();
  /// Goes on to the next or back to the previous object, round the end.
  void Step(bool ForwardA);

 Q_SIGNALS:
  void Found(const mur::Ref<mur::IMURTimelineObject>& object);
  void Closed();

 protected:
  bool eventFilter(QObject* WatchedA, QEvent* EventA) override;

 private:
  void Search();
  void ShowCount();
  void Report();

  Ref<CMURTimeline> mTimeline;
  std::vector<Ref<IMURTimelineObject>> mMatches;
  std::size_t mCurrent = 0;
  QLineEdit* mText;
  QLabel* mCount;
  QToolButton* mPrevious;
  QToolButton* mNext;
};

}  // namespace mur::viewer
