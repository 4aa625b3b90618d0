#include <gmock/gmock.h>

#include "tests/support/control_log.h"
#include "tests/win32/shown_timeline.h"

namespace mur::win32::test {
namespace {

class WindowPointer : public testing::Test {
 protected:
  WindowPointer() { log.Take(); }

  ShownTimeline shown;
  Ref<IMURTimelineObject> bar = shown.Bar(u"A", 100);
  mur::test::ControlLog log{*shown.control, *shown.timeline, kNoon};
};

TEST_F(WindowPointer, ClicksABar) {
  shown.Click(120, 10);
  EXPECT_EQ(log.Take(),
            "TLObjectMouseDown(A, 1, 0, 20, 10); TLObjectMouseUp(A, 1, 0, 20, 10); TLObjectClick(A)");
}

}  // namespace
}  // namespace mur::win32::test
