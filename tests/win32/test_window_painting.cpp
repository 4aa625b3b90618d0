#include <gmock/gmock.h>

#include "tests/win32/pixels.h"
#include "tests/win32/shown_timeline.h"

namespace mur::win32::test {
namespace {

constexpr Rgba kOrange{240, 160, 40, 255};

// No captions: what is drawn then depends on no font.
class PaintedWindow : public testing::Test {
 protected:
  PaintedWindow() {
    shown.Bar(u"A", 100);
    shown.control->SetTLObject_Caption(Variant(u"A"), 5, u"");
    shown.control->SetTLObject_BackColor(Variant(u"A"), 0x0028A0F0);
    PumpMessages();
  }
  static Rgba System(int IndexA) {
    const COLORREF color = GetSysColor(IndexA);
    return {GetRValue(color), GetGValue(color), GetBValue(color), 255};
  }

  ShownTimeline shown;
  Pixels pixels{1000, 480};
};

TEST_F(PaintedWindow, IsPaintedToAnyDevice) {
  shown.window->PaintTo(pixels.Device(), {0, 0, 1000, 240});
  EXPECT_EQ(pixels.At(150, 60), kOrange);
  EXPECT_EQ(pixels.At(110, 60), kOrange);
  EXPECT_EQ(pixels.At(90, 60), System(COLOR_APPWORKSPACE));
  EXPECT_EQ(pixels.At(150, 90), System(COLOR_APPWORKSPACE));
}

TEST_F(PaintedWindow, IsStretchedIntoTheGivenPlace) {
  shown.window->PaintTo(pixels.Device(), {0, 0, 500, 480});
  EXPECT_EQ(pixels.At(75, 120), kOrange);
  EXPECT_EQ(pixels.At(45, 120), System(COLOR_APPWORKSPACE));
  EXPECT_EQ(pixels.At(75, 155), kOrange);
  EXPECT_EQ(pixels.At(75, 165), System(COLOR_APPWORKSPACE));
  EXPECT_EQ(pixels.At(505, 120), (Rgba{255, 255, 255, 255}));
}

TEST_F(PaintedWindow, MindsTheUnitsOfTheDevice) {
  SetMapMode(pixels.Device(), MM_ANISOTROPIC);
  SetWindowExtEx(pixels.Device(), 2000, -2000, nullptr);
  SetViewportExtEx(pixels.Device(), 1000, 1000, nullptr);
  SetViewportOrgEx(pixels.Device(), 0, 240, nullptr);
  shown.window->PaintTo(pixels.Device(), {0, 480, 2000, 0});  // upwards, two units to a pixel
  EXPECT_EQ(GetMapMode(pixels.Device()), MM_ANISOTROPIC);
  SetMapMode(pixels.Device(), MM_TEXT);
  SetViewportOrgEx(pixels.Device(), 0, 0, nullptr);
  EXPECT_EQ(pixels.At(150, 60), kOrange);
}

TEST_F(PaintedWindow, IsPaintedWithoutAWindow) {
  shown.window->Destroy();
  shown.window->PaintTo(pixels.Device(), {0, 0, 1000, 240});
  EXPECT_EQ(pixels.At(150, 60), kOrange);
}

TEST_F(PaintedWindow, IsPaintedIntoMetafiles) {
  const HDC recording = CreateEnhMetaFileW(pixels.Device(), nullptr, nullptr, nullptr);
  shown.window->PaintTo(recording, {0, 0, 1000, 240});
  const HENHMETAFILE file = CloseEnhMetaFile(recording);
  ENHMETAHEADER header{};
  EXPECT_NE(GetEnhMetaFileHeader(file, sizeof header, &header), 0U);
  EXPECT_EQ(header.rclBounds.left, 0);
  EXPECT_NEAR(header.rclBounds.right, 1000, 2);
  DeleteEnhMetaFile(file);
  const HDC old = CreateMetaFileW(nullptr);
  shown.window->PaintTo(old, {0, 0, 1000, 240});
  const HMETAFILE oldFile = CloseMetaFile(old);
  EXPECT_GT(GetMetaFileBitsEx(oldFile, 0, nullptr), 100U);
  DeleteMetaFile(oldFile);
}

TEST_F(PaintedWindow, GivesItsPictureToWhoAsksTheWindow) {
  SendMessageW(shown.CanvasWindow(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(pixels.Device()), PRF_CLIENT);
  EXPECT_EQ(pixels.At(150, 20), kOrange);
}

TEST_F(PaintedWindow, IsPaintedOnTheScreenAsFarAsItChanged) {
  UpdateWindow(shown.CanvasWindow());
  EXPECT_FALSE(GetUpdateRect(shown.CanvasWindow(), nullptr, FALSE));
  shown.control->SetTLObject_BackColor(Variant(u"A"), 0x00123456);
  RECT changed{};
  EXPECT_TRUE(GetUpdateRect(shown.CanvasWindow(), &changed, FALSE));
  EXPECT_GE(changed.left, 90);
  EXPECT_LE(changed.right, 210);
  UpdateWindow(shown.CanvasWindow());
  EXPECT_FALSE(GetUpdateRect(shown.CanvasWindow(), nullptr, FALSE));
}

TEST_F(PaintedWindow, FollowsTheColoursOfTheSystem) {
  UpdateWindow(shown.CanvasWindow());
  shown.Send(WM_SYSCOLORCHANGE, 0, 0);
  EXPECT_TRUE(GetUpdateRect(shown.CanvasWindow(), nullptr, FALSE));
  const int element = COLOR_APPWORKSPACE;
  const COLORREF before = GetSysColor(element), other = RGB(1, 2, 3);
  SetSysColors(1, &element, &other);
  shown.window->PaintTo(pixels.Device(), {0, 0, 1000, 240});
  SetSysColors(1, &element, &before);
  EXPECT_EQ(pixels.At(50, 200), (Rgba{1, 2, 3, 255}));
}

TEST_F(PaintedWindow, TakesTheContainersFont) {
  UpdateWindow(shown.CanvasWindow());
  Ambience ambience;
  ambience.fontFace = L"Any face at all";
  shown.window->SetAmbience(ambience);
  EXPECT_TRUE(GetUpdateRect(shown.CanvasWindow(), nullptr, FALSE));
}

}  // namespace
}  // namespace mur::win32::test
