#include <gtest/gtest.h>

#include <murtimeline/model/render_config.h>

namespace mur::test {
namespace {

TEST(RenderConfig, StartsWithTheSystemColoursOfButtonsAndHighlight) {
  const auto config = Make<CMURTLRenderConfig>();
  EXPECT_EQ(config->ForeColor(), 0x80000012u);
  EXPECT_EQ(config->BackColor(), 0x8000000Fu);
  EXPECT_EQ(config->HighlightColor(), 0x8000000Du);
}

TEST(RenderConfig, StoresAnyThirtyTwoBits) {
  const auto config = Make<CMURTLRenderConfig>();
  config->SetForeColor(0);
  config->SetBackColor(0xFFFFFFFF);
  config->SetHighlightColor(0x00123456);
  EXPECT_EQ(config->ForeColor(), 0u);
  EXPECT_EQ(config->BackColor(), 0xFFFFFFFFu);
  EXPECT_EQ(config->HighlightColor(), 0x00123456u);
}

}  // namespace
}  // namespace mur::test
