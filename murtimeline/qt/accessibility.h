#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <vector>

#include <murtimeline/automation/event.h>
#include <murtimeline/qt/accessible_bar.h>

namespace mur::qt {

/// Keeps the bars that assistive technology asked for, and tells it what becomes of them. Bars that nobody
/// asked for cost nothing.
class Accessibility final : public QObject {
 public:
  explicit Accessibility(const AccessibleContext& ContextA);
  ~Accessibility() override;

  /// Every bar is a child, in the order of the canvas; the cursor is none.
  int Count() const;
  QAccessibleInterface* At(int IndexA);
  int IndexOf(const QAccessibleInterface& BarA) const;
  QAccessibleInterface* AtPoint(QPoint GlobalA);
  /// Null for an item that is no bar on the canvas.
  QAccessibleInterface* Of(const Ref<ICanvasItem>& ItemA);
  QAccessibleInterface* Focused() { return Of(mContext.keyboard.Current()); }

  /// Something on the canvas changed.
  void Follow();

  /// What hears of changes in place of the platform, null for that: a platform listens only while assistive
  /// technology runs.
  using Listener = void (*)(QAccessibleEvent& EventA);
  static void SetListener(Listener ListenerA);

 private:
  void Attach();
  void Sweep();
  void Announce(const IMURTimelineObject& ObjectA, StringView PropertyA);
  void AnnounceSelection();
  void Tell(const Ref<ICanvasItem>& ItemA, QAccessible::Event EventA);

  AccessibleContext mContext;
  QHash<const ICanvasItem*, QAccessible::Id> mBars;  // each keeps its item
  Ref<CMURTimeline> mTimeline;                       // the one that is listened to
  std::vector<Connection> mConnections, mControlConnections;
  std::size_t mCount = 0;  // of items, when it was last told
  Variant mSelected;
};

/// The widget as assistive technology sees it: a list of bars.
class AccessibleTimeline final : public QAccessibleWidget {
 public:
  AccessibleTimeline(QWidget& WidgetA, Accessibility& BarsA);

  int childCount() const override { return mBars ? mBars->Count() : 0; }
  QAccessibleInterface* child(int index) const override { return mBars ? mBars->At(index) : nullptr; }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return mBars && child ? mBars->IndexOf(*child) : -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    return mBars ? mBars->AtPoint({x, y}) : nullptr;
  }
  QAccessibleInterface* focusChild() const override;
  QString text(QAccessible::Text kind) const override;

 private:
  QPointer<Accessibility> mBars;  // goes before the widget
};

}  // namespace mur::qt
