#include <murtimeline/automation/error.h>
#include <murtimeline/render/companions/item_texts.h>

namespace mur {
namespace {

std::size_t PlaceOfSite(int SiteA) {
  if (SiteA < 1 || SiteA > ItemTexts::kSites) throw AutomationError(ErrorCode::SubscriptOutOfRange);
  return static_cast<std::size_t>(SiteA);
}

}  // namespace

StringView ItemTexts::Caption(int SiteA) const {
  return At(PlaceOfSite(SiteA));
}

bool ItemTexts::SetCaption(int SiteA, StringView CaptionA) {
  return Set(PlaceOfSite(SiteA), CaptionA);
}

bool ItemTexts::Set(std::size_t PlaceA, StringView TextA) {
  if (At(PlaceA) == TextA) return false;
  if (!mTexts) mTexts = std::make_unique<Texts>();
  (*mTexts)[PlaceA] = SharedText(TextA);
  return true;
}

}  // namespace mur
