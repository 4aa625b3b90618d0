#include "viewer/window/event_panel.h"

#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "viewer/window/icons.h"

namespace mur::viewer {
namespace {

constexpr QSize kUsualSize(600, 150);
constexpr int kMargin = 4;

class LineView final : public QListView {
 public:
  QSize sizeHint() const override { return kUsualSize; }
};

QToolButton* MakeButton(Symbol SymbolA, const char* NameA, const QString& TipA) {
  auto* button = new QToolButton;
  button->setObjectName(QLatin1String(NameA));
  button->setIcon(MakeIcon(SymbolA));
  button->setAutoRaise(true);
  button->setToolTip(TipA);
  button->setAccessibleName(TipA);
  return button;
}

}  // namespace

EventPanel::EventPanel(Ref<MURTimelineRender> ControlA, QWidget* ParentA)
    : QDockWidget(QStringLiteral("Events"), ParentA),
      mControl(std::move(ControlA)),
      mFiltered(new QSortFilterProxyModel(this)),
      mView(new LineView),
      mFilter(new QLineEdit),
      mPause(nullptr) {
  setObjectName(QStringLiteral("eventPanel"));
  mFiltered->setSourceModel(&mLines);
  mFiltered->setFilterCaseSensitivity(Qt::CaseInsensitive);
  mView->setModel(mFiltered);
  mView->setUniformItemSizes(true);
  mView->setSelectionMode(QAbstractItemView::ExtendedSelection);
  mView->setEditTriggers(QAbstractItemView::NoEditTriggers);
  mView->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  mView->setFrameShape(QFrame::NoFrame);
  mView->setTextElideMode(Qt::ElideNone);
  mView->setAccessibleName(QStringLiteral("Events"));

  auto* body = new QWidget;
  auto* column = new QVBoxLayout(body);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(MakeButtons());
  column->addWidget(mView);
  setWidget(body);

  connect(this, &QDockWidget::visibilityChanged, this, &EventPanel::Follow);
  connect(mFiltered, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] {
    const QScrollBar* bar = mView->verticalScrollBar();
    mAtEnd = bar->value() == bar->maximum();
  });
  connect(mFiltered, &QAbstractItemModel::rowsInserted, this, &EventPanel::ShowLast);
}

QWidget* EventPanel::MakeButtons() {
  mFilter->setObjectName(QStringLiteral("eventFilter"));
  mFilter->setPlaceholderText(QStringLiteral("Show only events with\u2026"));
  mFilter->setAccessibleName(QStringLiteral("Filter of events"));
  mFilter->setClearButtonEnabled(true);
  connect(mFilter, &QLineEdit::textChanged, mFiltered, &QSortFilterProxyModel::setFilterFixedString);
  mPause = MakeButton(Symbol::Pause, "pauseEvents", QStringLiteral("Pause the log"));
  mPause->setCheckable(true);
  connect(mPause, &QToolButton::toggled, this, &EventPanel::Follow);
  auto* copy = MakeButton(Symbol::Copy, "copyEvents", QStringLiteral("Copy the selected lines, or all"));
  connect(copy, &QToolButton::clicked, this, [this] { QApplication::clipboard()->setText(Text()); });
  auto* clear = MakeButton(Symbol::Clear, "clearEvents", QStringLiteral("Clear the log"));
  connect(clear, &QToolButton::clicked, this, [this] { mLines.Clear(); });

  auto* buttons = new QWidget;
  auto* row = new QHBoxLayout(buttons);
  row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  row->setSpacing(kMargin);
  row->addWidget(mFilter, 1);
  for (QToolButton* button : {mPause, copy, clear}) row->addWidget(button);
  return buttons;
}

void EventPanel::SetTimeline(const Ref<CMURTimeline>& TimelineA) {
  mLog.reset();
  mTimeline = TimelineA;
  Follow();
}

void EventPanel::Follow() {
  const bool wanted = mTimeline && isVisible() && !mPause->isChecked();
  if (wanted == mLog.has_value()) return;
  if (wanted)
    mLog.emplace(*mTimeline, *mControl, [this](const std::string& line) { mLines.Append(line); });
  else
    mLog.reset();
}

void EventPanel::ShowLast() {
  if (mAtEnd) mView->scrollToBottom();
}

QString EventPanel::Text() const {
  QModelIndexList rows = mView->selectionModel()->selectedRows();
  std::ranges::sort(rows, {}, &QModelIndex::row);
  if (rows.isEmpty())
    for (int row = 0; row < mFiltered->rowCount(); ++row) rows.append(mFiltered->index(row, 0));
  QString text;
  for (const QModelIndex& row : rows) text += row.data().toString() + QLatin1Char('\n');
  return text;
}

}  // namespace mur::viewer
