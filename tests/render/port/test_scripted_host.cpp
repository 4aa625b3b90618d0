#include <gtest/gtest.h>

#include <murtimeline/render/port/scripted_host.h>

using namespace mur;

TEST(ScriptedHost, StartsWithAScrollerOfTheDesignHeight) {
  ScriptedHost host;
  EXPECT_EQ(host.ScrollerHost().Height(), 600);
  EXPECT_EQ(host.CanvasHost().Height(), 0);
}

TEST(ScriptedHost, TakesItsScaleSizeFromTheScript) {
  ScriptedHost host;
  host.SetScaleWidth(9000);
  host.SetScaleHeight(4500);
  EXPECT_EQ(host.ScaleWidth(), 9000);
  EXPECT_EQ(host.ScaleHeight(), 4500);
}

TEST(ScriptedChild, MovesOnlyWhatIsGiven) {
  ScriptedChild child;
  child.Move(1, 2, 3, 4);
  child.Move(5, {}, 6);
  EXPECT_EQ(child.Left(), 5);
  EXPECT_EQ(child.Top(), 2);
  EXPECT_EQ(child.Width(), 6);
  EXPECT_EQ(child.Height(), 4);
}

TEST(ScriptedChild, KeepsItsToolTip) {
  ScriptedChild child;
  child.SetToolTipText(u"tip");
  EXPECT_TRUE(child.ToolTipText() == u"tip");
}

TEST(ScriptedChild, NotesWhatIsInvalidatedUntilItIsToldToForget) {
  ScriptedChild child;
  child.Invalidate({1, 2, 3, 4});
  child.InvalidateAll();
  EXPECT_EQ(child.Invalidated(), (std::vector<RectF>{{1, 2, 3, 4}}));
  EXPECT_EQ(child.InvalidatedAll(), 1U);
  child.ForgetInvalidations();
  EXPECT_TRUE(child.Invalidated().empty());
  EXPECT_EQ(child.InvalidatedAll(), 0U);
}

TEST(ScriptedChild, HasThirtyOneSystemColorsAndBlackBeyond) {
  const ScriptedChild child;
  EXPECT_EQ(child.SystemColor(13), (Rgba{10, 36, 106, 255}));
  EXPECT_EQ(child.SystemColor(30), (Rgba{212, 208, 200, 255}));
  EXPECT_EQ(child.SystemColor(31), (Rgba{0, 0, 0, 255}));
  EXPECT_EQ(child.SystemColor(-1), (Rgba{0, 0, 0, 255}));
}
