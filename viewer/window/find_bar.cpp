#include "viewer/window/find_bar.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QToolButton>
#include <algorithm>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/event_guard.h>

#include "viewer/window/icons.h"

namespace mur::viewer {
namespace {

constexpr int kMargin = 6;
constexpr int kWidestText = 320;

QToolButton* MakeButton(Symbol SymbolA, const QString& TipA) {
  auto* button = new QToolButton;
  button->setIcon(MakeIcon(SymbolA));
  button->setAutoRaise(true);
  button->setToolTip(TipA);
  button->setAccessibleName(TipA);
  return button;
}

}  // namespace

FindBar::FindBar()
    : mText(new QLineEdit),
      mCount(new QLabel),
      mPrevious(MakeButton(Symbol::Previous, QStringLiteral("Previous (Shift+F3)"))),
      mNext(MakeButton(Symbol::Next, QStringLiteral("Next (F3)"))) {
  mText->setObjectName(QStringLiteral("findText"));
  mText->setPlaceholderText(QStringLiteral("Find by tag"));
  mText->setAccessibleName(QStringLiteral("Text to find"));
  mText->setClearButtonEnabled(true);
  mText->setMaximumWidth(kWidestText);
  mText->installEventFilter(this);
  mCount->setObjectName(QStringLiteral("findCount"));
  QToolButton* close = MakeButton(Symbol::Cancel, QStringLiteral("Close (Esc)"));

  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kMargin, kMargin / 2, kMargin, kMargin / 2);
  row->addWidget(mText, 1);
  row->addWidget(mPrevious);
  row->addWidget(mNext);
  row->addWidget(mCount);
  row->addStretch(1);
  row->addWidget(close);
  hide();

  connect(mText, &QLineEdit::textChanged, this, [this] { qt::GuardEvent([this] { Search(); }); });
  connect(mPrevious, &QToolButton::clicked, this, [this] { qt::GuardEvent([this] { Step(false); }); });
  connect(mNext, &QToolButton::clicked, this, [this] { qt::GuardEvent([this] { Step(true); }); });
  connect(close, &QToolButton::clicked, this, &FindBar::Close);
}

void FindBar::SetTimeline(const Ref<CMURTimeline>& TimelineA) {
  mTimeline = TimelineA;
  mMatches.clear();
  mCurrent = 0;
  ShowCount();
}

void FindBar::Open() {
  show();
  mText->setFocus();
  mText->selectAll();
  if (mMatches.empty()) Search();
}

void FindBar::Close() {
  if (isHidden()) return;
  hide();
  Q_EMIT Closed();
}

void FindBar::Step(bool ForwardA) {
  if (mMatches.empty()) return Search();
  const std::size_t count = mMatches.size();
  mCurrent = (mCurrent + (ForwardA ? 1 : count - 1)) % count;
  Report();
}

// Starts at the object that was found last where it still matches.
void FindBar::Search() {
  const Ref<IMURTimelineObject> last = mMatches.empty() ? nullptr : mMatches[mCurrent];
  mMatches.clear();
  mCurrent = 0;
  const QString wanted = mText->text();
  if (mTimeline && !wanted.isEmpty()) {
    auto members = mTimeline->NewEnum();
    while (const Ref<IMURTimelineObject> member = members.Next())
      if (qt::ToQString(member->Tag()).contains(wanted, Qt::CaseInsensitive)) mMatches.push_back(member);
  }
  const auto found = std::ranges::find(mMatches, last);
  if (found != mMatches.end()) mCurrent = static_cast<std::size_t>(found - mMatches.begin());
  Report();
}

void FindBar::Report() {
  ShowCount();
  if (mMatches.empty()) return;
  const Ref<IMURTimelineObject> object = mMatches[mCurrent];
  Q_EMIT Found(object);
}

void FindBar::ShowCount() {
  const QLocale locale;
  QString text;
  if (!mMatches.empty())
    text = QStringLiteral("%1 of %2")
               .arg(locale.toString(static_cast<qulonglong>(mCurrent + 1)),
                    locale.toString(static_cast<qulonglong>(mMatches.size())));
  else if (!mText->text().isEmpty())
    text = QStringLiteral("None found");
  mCount->setText(text);
  mPrevious->setEnabled(mMatches.size() > 1);
  mNext->setEnabled(mMatches.size() > 1);
}

bool FindBar::eventFilter(QObject* WatchedA, QEvent* EventA) {
  if (EventA->type() == QEvent::KeyPress) {
    const auto& press = dynamic_cast<const QKeyEvent&>(*EventA);
    const bool isEnter = press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
    if (isEnter) qt::GuardEvent([&] { Step(!press.modifiers().testFlag(Qt::ShiftModifier)); });
    if (press.key() == Qt::Key_Escape) Close();
    if (isEnter || press.key() == Qt::Key_Escape) return true;
  }
  return QWidget::eventFilter(WatchedA, EventA);
}

}  // namespace mur::viewer
