#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/numeric_text.h>
#include <murtimeline/automation/regional.h>
#include <murtimeline/render/render_configs.h>

namespace mur {

std::optional<String> RenderConfigs::KeyOf(const Variant& KeyIndexA) {
  if (const auto number = NumericValue(KeyIndexA)) return u"Key_" + Regional().Format(*number, u"0");
  if (const String* text = KeyIndexA.As<String>()) return *text;
  if (const Date* date = KeyIndexA.As<Date>()) return Regional().DateToText(*date);
  return std::nullopt;
}

Ref<CMURTLRenderConfig> RenderConfigs::Find(const Variant& KeyIndexA) const {
  const auto key = KeyOf(KeyIndexA);
  return key ? mConfigs->FindByKey(*key) : Ref<CMURTLRenderConfig>();
}

Ref<CMURTLRenderConfig> RenderConfigs::Add(const Variant& KeyIndexA) {
  const auto key = KeyOf(KeyIndexA);
  if (!key) return {};
  if (Ref<CMURTLRenderConfig> known = mConfigs->FindByKey(*key)) return known;
  auto config = Make<CMURTLRenderConfig>();
  mConfigs->Add(config, *key);
  return config;
}

Ref<CMURTLRenderConfig> RenderConfigs::Resolve(const IMURTimelineObject& ObjectA) const {
  Ref<CMURTLRenderConfig> config = mDefault;
  if (mConfigs->Count() > 0) ResumeNext([&] { config = ForKind(KindOf(ObjectA)); });
  return config;
}

Ref<CMURTLRenderConfig> RenderConfigs::ForKind(MURTimelineObjectType KindA) const {
  Ref<CMURTLRenderConfig> config;
  if (mConfigs->Count() > 0) ResumeNext([&] { config = Find(KindA); });
  return config ? config : mDefault;
}

}  // namespace mur
