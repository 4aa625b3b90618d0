#pragma once

#include <array>
#include <memory>

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/shared_text.h>

namespace mur {

/// The nine captions and the tool tip of an item: one pointer until the first of them is not empty.
class MUR_API ItemTexts {
 public:
  static constexpr int kSites = 9;

  /// The caption of a site, 1 to 9; throws SubscriptOutOfRange for another one.
  StringView Caption(int SiteA) const;
  /// False when the site shows that caption already. Throws as Caption does.
  bool SetCaption(int SiteA, StringView CaptionA);
  bool HasCaptions() const noexcept { return mTexts != nullptr; }

  StringView ToolTip() const noexcept { return At(0); }
  void SetToolTip(StringView TextA) { Set(0, TextA); }

 private:
  // The tool tip first, then the sites.
  using Texts = std::array<SharedText, kSites + 1>;

  StringView At(std::size_t PlaceA) const noexcept {
    return mTexts ? (*mTexts)[PlaceA].View() : StringView();
  }
  bool Set(std::size_t PlaceA, StringView TextA);

  std::unique_ptr<Texts> mTexts;
};

}  // namespace mur
