#pragma once

#include <murtimeline/com/render_markers_face.h>

namespace mur::com {

/// The part of the control that is about the time line and its bars.
class RenderBarsFace : public RenderMarkersFace {
 public:
  using RenderMarkersFace::RenderMarkersFace;

  STDMETHODIMP get_Timeline(ComTimeline** ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.Timeline(); });
  }
  STDMETHODIMP putref_Timeline(ComTimeline* ValueA) noexcept override {
    return Guarded([&] { mControl.SetTimeline(OwnIn<CMURTimeline>(ValueA)); });
  }
  STDMETHODIMP get_SelectedKey(VARIANT* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.SelectedKey(); });
  }
  STDMETHODIMP get_DefaultRenderConfig(ComRenderConfig** ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.DefaultRenderConfig(); });
  }
  STDMETHODIMP get_RenderConfig(VARIANT KeyIndexA, ComRenderConfig** ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.RenderConfig(Taken(KeyIndexA)); });
  }
  STDMETHODIMP AddRenderConfig(VARIANT KeyIndexA, ComRenderConfig** ResultA) noexcept override {
    return Answer(ResultA, [&] { return mControl.AddRenderConfig(Taken(KeyIndexA)); });
  }
  STDMETHODIMP get_BackColor(long* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.BackColor(); });
  }
  STDMETHODIMP put_BackColor(long ValueA) noexcept override {
    return Guarded([&] { mControl.SetBackColor(TakenColor(ValueA)); });
  }
  STDMETHODIMP get_BarHeight(float* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.BarHeight(); });
  }
  STDMETHODIMP put_BarHeight(float ValueA) noexcept override {
    return Guarded([&] { mControl.SetBarHeight(ValueA); });
  }
  STDMETHODIMP get_BarSeparation(float* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.BarSeparation(); });
  }
  STDMETHODIMP put_BarSeparation(float ValueA) noexcept override {
    return Guarded([&] { mControl.SetBarSeparation(ValueA); });
  }
  STDMETHODIMP get_TrackSeparation(float* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TrackSeparation(); });
  }
  STDMETHODIMP put_TrackSeparation(float ValueA) noexcept override {
    return Guarded([&] { mControl.SetTrackSeparation(ValueA); });
  }
  STDMETHODIMP TrackTop(VARIANT TrackKeyIndexA, float* ResultA) noexcept override {
    return Answer(ResultA, [&] { return mControl.TrackTop(Taken(TrackKeyIndexA)); });
  }
  STDMETHODIMP AlignTracks() noexcept override {
    return Guarded([&] { mControl.AlignTracks(); });
  }
  STDMETHODIMP YToTrackKey(float YA, BSTR* ResultA) noexcept override {
    return Answer(ResultA, [&] { return mControl.YToTrackKey(YA); });
  }
  STDMETHODIMP get_AllowObjectDragging(VARIANT_BOOL* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.AllowObjectDragging(); });
  }
  STDMETHODIMP put_AllowObjectDragging(VARIANT_BOOL ValueA) noexcept override {
    return Guarded([&] { mControl.SetAllowObjectDragging(Taken(ValueA)); });
  }
  STDMETHODIMP get_AutoObjectCaption(long CaptionSiteA, ::MURTimelineCaptionType* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.AutoObjectCaption(CaptionSiteA); });
  }
  STDMETHODIMP put_AutoObjectCaption(long CaptionSiteA, ::MURTimelineCaptionType ValueA) noexcept override {
    return Guarded([&] { mControl.SetAutoObjectCaption(CaptionSiteA, static_cast<std::int32_t>(ValueA)); });
  }
  STDMETHODIMP get_AutoObjectTooltipText(BSTR* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.AutoObjectTooltipText(); });
  }
  STDMETHODIMP put_AutoObjectTooltipText(BSTR ValueA) noexcept override {
    return Guarded([&] { mControl.SetAutoObjectTooltipText(Taken(ValueA)); });
  }
  STDMETHODIMP get_AutoHighlightObjects(VARIANT_BOOL* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.AutoHighlightObjects(); });
  }
  STDMETHODIMP put_AutoHighlightObjects(VARIANT_BOOL ValueA) noexcept override {
    return Guarded([&] { mControl.SetAutoHighlightObjects(Taken(ValueA)); });
  }
  STDMETHODIMP get_AutoSelectMode(::MURTimelineClickType* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.AutoSelectMode(); });
  }
  STDMETHODIMP put_AutoSelectMode(::MURTimelineClickType ValueA) noexcept override {
    return Guarded([&] { mControl.SetAutoSelectMode(static_cast<std::int32_t>(ValueA)); });
  }
  STDMETHODIMP get_OLEDropMode(short* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.OLEDropMode(); });
  }
  STDMETHODIMP put_OLEDropMode(short ValueA) noexcept override {
    return Guarded([&] { mControl.SetOLEDropMode(ValueA); });
  }
  STDMETHODIMP get_ShowToolTips(VARIANT_BOOL* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.ShowToolTips(); });
  }
  STDMETHODIMP put_ShowToolTips(VARIANT_BOOL ValueA) noexcept override {
    return Guarded([&] { mControl.SetShowToolTips(Taken(ValueA)); });
  }
  STDMETHODIMP get_ToolTipText(BSTR* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.ToolTipText(); });
  }
  STDMETHODIMP put_ToolTipText(BSTR ValueA) noexcept override {
    return Guarded([&] { mControl.SetToolTipText(Taken(ValueA)); });
  }
  STDMETHODIMP get_TLObject_BackColor(VARIANT KeyIndexA, long* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TLObject_BackColor(Taken(KeyIndexA)); });
  }
  STDMETHODIMP put_TLObject_BackColor(VARIANT KeyIndexA, long ValueA) noexcept override {
    return Guarded([&] { mControl.SetTLObject_BackColor(Taken(KeyIndexA), TakenColor(ValueA)); });
  }
  STDMETHODIMP get_TLObject_ForeColor(VARIANT KeyIndexA, long* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TLObject_ForeColor(Taken(KeyIndexA)); });
  }
  STDMETHODIMP put_TLObject_ForeColor(VARIANT KeyIndexA, long ValueA) noexcept override {
    return Guarded([&] { mControl.SetTLObject_ForeColor(Taken(KeyIndexA), TakenColor(ValueA)); });
  }
  STDMETHODIMP get_TLObject_Caption(VARIANT KeyIndexA, long CaptionSiteA, BSTR* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TLObject_Caption(Taken(KeyIndexA), CaptionSiteA); });
  }
  STDMETHODIMP put_TLObject_Caption(VARIANT KeyIndexA, long CaptionSiteA, BSTR ValueA) noexcept override {
    return Guarded([&] { mControl.SetTLObject_Caption(Taken(KeyIndexA), CaptionSiteA, Taken(ValueA)); });
  }
  STDMETHODIMP get_TLObject_Visible(VARIANT KeyIndexA, VARIANT_BOOL* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.TLObject_Visible(Taken(KeyIndexA)); });
  }
  STDMETHODIMP put_TLObject_Visible(VARIANT KeyIndexA, VARIANT_BOOL ValueA) noexcept override {
    return Guarded([&] { mControl.SetTLObject_Visible(Taken(KeyIndexA), Taken(ValueA)); });
  }
  STDMETHODIMP get_FollowAllStarts(VARIANT_BOOL* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.FollowAllStarts(); });
  }
  STDMETHODIMP put_FollowAllStarts(VARIANT_BOOL ValueA) noexcept override {
    return Guarded([&] { mControl.SetFollowAllStarts(Taken(ValueA)); });
  }
  STDMETHODIMP get_IsDragging(VARIANT_BOOL* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mControl.IsDragging(); });
  }
  STDMETHODIMP CancelDrag(VARIANT_BOOL* ResultA) noexcept override {
    return Answer(ResultA, [&] { return mControl.CancelDrag(); });
  }
  STDMETHODIMP ShowMembers() noexcept override {
    return Guarded([&] { mControl.ShowMembers(); });
  }
};

}  // namespace mur::com
