#include "viewer/window/load_progress.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

#include "viewer/window/icons.h"

namespace mur::viewer {
namespace {

constexpr int kPatience = 200;  // milliseconds
constexpr int kWidestCaption = 300;
constexpr int kBarWidth = 180;
constexpr int kBarHeight = 12;

}  // namespace

LoadProgress::LoadProgress(LoadSession& SessionA) : mCaption(new QLabel), mBar(new QProgressBar) {
  auto* cancel = new QToolButton;
  cancel->setObjectName(QStringLiteral("cancelLoading"));
  cancel->setIcon(MakeIcon(Symbol::Cancel));
  cancel->setAutoRaise(true);
  cancel->setToolTip(QStringLiteral("Cancel loading (Esc)"));
  cancel->setShortcut(Qt::Key_Escape);
  mBar->setFixedSize(kBarWidth, kBarHeight);
  mBar->setTextVisible(false);

  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(4, 0, 0, 0);
  row->addWidget(mCaption);
  row->addWidget(mBar);
  row->addWidget(cancel);
  hide();

  connect(cancel, &QToolButton::clicked, &SessionA, &LoadSession::Cancel);
  connect(&SessionA, &LoadSession::Started, this, &LoadProgress::Begin);
  connect(&SessionA, &LoadSession::Progressed, this, &LoadProgress::Advance);
  connect(&SessionA, &LoadSession::Ended, this, &QWidget::hide);
}

void LoadProgress::Begin(const QString& PathA) {
  const QString caption = QStringLiteral("Loading %1").arg(QFileInfo(PathA).fileName());
  mCaption->setText(mCaption->fontMetrics().elidedText(caption, Qt::ElideMiddle, kWidestCaption));
  mBar->setValue(0);
  mTime.start();
}

void LoadProgress::Advance(int PercentA) {
  mBar->setValue(PercentA);
  if (mTime.hasExpired(kPatience)) show();
}

}  // namespace mur::viewer
