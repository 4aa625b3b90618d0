#include "viewer/window/bar_highlight.h"

#include "viewer/palette.h"

namespace mur::viewer {
namespace {

OleColor HighlightColorOf(const MURTimelineRender& ControlA, const IMURTimelineObject& ObjectA) {
  const Ref<CMURTLRenderConfig> config = ControlA.RenderConfig(ObjectA.ObjectType());
  return (config ? config : ControlA.DefaultRenderConfig())->HighlightColor();
}

}  // namespace

void BarHighlight::Mark(const IMURTimelineObject* ObjectA) {
  Restore();
  if (ObjectA) mItem = mControl->Collaborators().canvas->GraphicByKey(ObjectA->Key());
  if (!mItem) return;
  mBack = mItem->BackColor();
  mFore = mItem->ForeColor();
  mItem->SetBackColor(HighlightColorOf(*mControl, *ObjectA));
  mItem->SetForeColor(kDarkText);
}

void BarHighlight::Restore() {
  if (!mItem) return;
  mItem->SetBackColor(mBack);
  mItem->SetForeColor(mFore);
  mItem = nullptr;
}

}  // namespace mur::viewer
