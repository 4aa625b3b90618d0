#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <utility>

#include <murtimeline/qt/row_scroller.h>

namespace mur::qt {
namespace {

constexpr float kHighest = 1e9F;  // pixels that a scroll bar can count
constexpr int kStepsAPage = 10;

int Whole(float PixelsA) {
  return static_cast<int>(std::ceil(std::clamp(PixelsA, 0.0F, kHighest)));
}

}  // namespace

RowScroller::RowScroller(Ref<MURGraphicCanvas> CanvasA, QWidget& CanvasWidgetA)
    : mCanvas(std::move(CanvasA)), mCanvasWidget(CanvasWidgetA), mBar(*new QScrollBar(&CanvasWidgetA)) {
  mBar.hide();
  mBar.setCursor(Qt::ArrowCursor);
  mBar.setFocusPolicy(Qt::NoFocus);
  connect(&mBar, &QScrollBar::valueChanged, this, [this](int value) {
    if (!mFollows) mCanvas->SetScrollTop(static_cast<float>(value));
  });
}

void RowScroller::Follow() {
  const QScopedValueRollback follows(mFollows, true);
  mCanvas->SetScrollTop(mCanvas->ScrollTop());
  const QRect area = mCanvasWidget.rect();
  const int width = mBar.sizeHint().width();
  mBar.setGeometry(area.right() + 1 - width, area.top(), width, area.height());
  mBar.setRange(0, Whole(mCanvas->ContentHeight() - mCanvas->Area().height));
  mBar.setPageStep(std::max(area.height(), 1));
  mBar.setSingleStep(std::max(area.height() / kStepsAPage, 1));
  mBar.setValue(Whole(mCanvas->ScrollTop()));
  mBar.setVisible(CanScroll());
}

bool RowScroller::CanScroll() const {
  return mCanvas->ContentHeight() > mCanvas->Area().height;
}

void RowScroller::ScrollTo(double TopA) {
  mCanvas->SetScrollTop(static_cast<float>(TopA));
  Follow();
}

void RowScroller::ScrollByPages(int PagesA) {
  ScrollTo(Top() + PagesA * static_cast<double>(mCanvas->Area().height));
}

void RowScroller::Reveal(const ICanvasItem& BarA) {
  const RectF bounds = mCanvas->PixelBounds(BarA);
  const float below = bounds.Bottom() - mCanvas->Area().height;
  const float by = std::min(std::max(below, 0.0F), bounds.top);
  if (by != 0) ScrollTo(Top() + static_cast<double>(by));
}

}  // namespace mur::qt
