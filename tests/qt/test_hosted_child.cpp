#include <limits>
#include <memory>

#include <gmock/gmock.h>

#include <murtimeline/qt/hosted_child.h>

namespace mur::qt {
namespace {

TEST(HostedChild, ExtentsStayAsGivenWhileTheWidgetIsRounded) {
  QWidget widget;
  HostedChild child(widget);
  child.Move(7.5F, 22.6F, 100.25F, 610.0F);
  EXPECT_EQ(child.Left(), 7.5F);
  EXPECT_EQ(child.Top(), 22.6F);
  EXPECT_EQ(child.Width(), 100.25F);
  EXPECT_EQ(child.Height(), 610.0F);
  EXPECT_EQ(widget.geometry(), QRect(QPoint(1, 2), QPoint(6, 41)));  // edges at 0.5, 1.51, 7.18 and 42.17
}

TEST(HostedChild, NeighboursTouchWhateverTheirExtents) {
  QWidget upper, lower;
  HostedChild upperChild(upper), lowerChild(lower);
  for (float height = 100; height < 130; height += 1.7F) {
    upperChild.Move(0, 0.0F, 900.0F, height);
    lowerChild.Move(0, upperChild.Top() + upperChild.Height(), 900.0F, 300.0F);
    EXPECT_EQ(upper.geometry().bottom() + 1, lower.geometry().top()) << height;
  }
}

TEST(HostedChild, MovingToAndFroDoesNotDrift) {
  QWidget widget;
  HostedChild child(widget);
  child.Move(0, 0.0F, 1000.7F, 500.3F);
  for (int turn = 0; turn < 1000; ++turn) {
    child.Move(3.3F);
    child.Move(0);
  }
  EXPECT_EQ(child.Width(), 1000.7F);
  EXPECT_EQ(widget.geometry(), QRect(0, 0, 67, 33));
}

TEST(HostedChild, AbsurdExtentsAreKeptAndCutForTheWidget) {
  QWidget widget;
  HostedChild child(widget);
  child.Move(0, 0.0F, -50.0F, std::numeric_limits<float>::max());
  EXPECT_EQ(child.Width(), -50.0F);
  EXPECT_EQ(child.Height(), std::numeric_limits<float>::max());
  EXPECT_EQ(widget.width(), 0);
  EXPECT_EQ(widget.height(), QWIDGETSIZE_MAX);
  child.Move(std::numeric_limits<float>::quiet_NaN());
  EXPECT_EQ(widget.x(), 0);
}

TEST(HostedChild, TellsOfANewExtentAndOfNothingElse) {
  QWidget widget;
  HostedChild child(widget);
  int told = 0;
  child.SetResized([&] { ++told; });
  child.SetHeight(30);
  child.SetHeight(30);
  child.Move(5, 6.0F);
  EXPECT_EQ(told, 1);
  child.Move(5, 6.0F, 10.0F);
  EXPECT_EQ(told, 2);
}

TEST(HostedChild, LivesOnWithoutItsWidget) {
  auto widget = std::make_unique<QWidget>();
  HostedChild child(*widget);
  widget.reset();
  child.Move(1, 2.0F, 3.0F, 4.0F);
  child.Invalidate({0, 0, 1, 1});
  child.InvalidateAll();
  EXPECT_EQ(child.Height(), 4);
  EXPECT_EQ(child.SystemColor(15).alpha, 255);
}

TEST(HostedChild, KeepsItsToolTipToTheUnit) {
  QWidget widget;
  HostedChild child(widget);
  const String text{u'a', 0, 0xD800};
  child.SetToolTipText(text);
  EXPECT_EQ(child.ToolTipText(), text);
}

}  // namespace
}  // namespace mur::qt
