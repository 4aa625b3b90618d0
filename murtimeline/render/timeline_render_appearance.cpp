#include <murtimeline/automation/guard.h>
#include <murtimeline/render/render_parts.h>

namespace mur {
namespace {

/// What `ReadA` finds in the item of that key or position; the empty value where there is none.
template <class Read>
auto FromItem(const IGraphicCanvas& CanvasA, const Variant& KeyIndexA, Read ReadA) {
  decltype(ReadA(*Ref<ICanvasItem>())) value{};
  ResumeNext([&] {
    if (const Ref<ICanvasItem> item = CanvasA.Graphic(KeyIndexA)) value = ReadA(*item);
  });
  return value;
}

template <class Write>
void ToItem(const IGraphicCanvas& CanvasA, const Variant& KeyIndexA, Write WriteA) {
  ResumeNext([&] {
    if (const Ref<ICanvasItem> item = CanvasA.Graphic(KeyIndexA)) WriteA(*item);
  });
}

}  // namespace

OleColor MURTimelineRender::TLObject_BackColor(const Variant& KeyIndexA) const {
  return FromItem(mParts->state.Canvas(), KeyIndexA,
                  [](const ICanvasItem& item) { return item.BackColor(); });
}

void MURTimelineRender::SetTLObject_BackColor(const Variant& KeyIndexA, OleColor ColorA) {
  ToItem(mParts->state.Canvas(), KeyIndexA, [&](ICanvasItem& item) { item.SetBackColor(ColorA); });
}

OleColor MURTimelineRender::TLObject_ForeColor(const Variant& KeyIndexA) const {
  return FromItem(mParts->state.Canvas(), KeyIndexA,
                  [](const ICanvasItem& item) { return item.ForeColor(); });
}

void MURTimelineRender::SetTLObject_ForeColor(const Variant& KeyIndexA, OleColor ColorA) {
  ToItem(mParts->state.Canvas(), KeyIndexA, [&](ICanvasItem& item) { item.SetForeColor(ColorA); });
}

String MURTimelineRender::TLObject_Caption(const Variant& KeyIndexA, std::int32_t CaptionSiteA) const {
  return FromItem(mParts->state.Canvas(), KeyIndexA,
                  [&](const ICanvasItem& item) { return item.Caption(CaptionSiteA); });
}

void MURTimelineRender::SetTLObject_Caption(const Variant& KeyIndexA, std::int32_t CaptionSiteA,
                                            StringView CaptionA) {
  ToItem(mParts->state.Canvas(), KeyIndexA,
         [&](ICanvasItem& item) { item.SetCaption(CaptionSiteA, CaptionA); });
}

bool MURTimelineRender::TLObject_Visible(const Variant& KeyIndexA) const {
  return FromItem(mParts->state.Canvas(), KeyIndexA, [](const ICanvasItem& item) { return item.Visible(); });
}

void MURTimelineRender::SetTLObject_Visible(const Variant& KeyIndexA, bool VisibleA) {
  ToItem(mParts->state.Canvas(), KeyIndexA, [&](ICanvasItem& item) { item.SetVisible(VisibleA); });
}

}  // namespace mur
