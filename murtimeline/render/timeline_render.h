#pragma once

#include <memory>

#include <murtimeline/automation/event.h>
#include <murtimeline/automation/export.h>
#include <murtimeline/model/render_config.h>
#include <murtimeline/model/timeline.h>
#include <murtimeline/render/companions/companions.h>
#include <murtimeline/render/port/control_host.h>

namespace mur {

/// The control: shows a CMURTimeline as bars on a canvas under a time scale.
///
/// It mirrors its time line: each object that is added gets a bar, each change that is reported moves it.
/// Attaching shows nothing that is there already: hosts attach first and fill then (or call `ShowMembers`).
/// No member raises an error to its caller except where stated. Bar heights and gaps are canvas units
/// (pixels), TimeScaleHeight and TrackTop the control's own (twips), durations seconds.
class MUR_API MURTimelineRender final : public Object {
 public:
  using PointerEvent = ITimelineScroll::PointerEvent;
  using MarkerPointerEvent = ITimelineScroll::MarkerPointerEvent;
  using TLObject = const Ref<IMURTimelineObject>&;
  using CursorKey = StringView;  // always "The Cursor"

  /// `HostA` outlives the control. Missing companions are the control's own.
  explicit MURTimelineRender(ControlHost& HostA, Companions CompanionsA = {});

  // Of the canvas's background, of bars, of the cursor. Handlers may change arguments that are references.
  Event<> Click;
  Event<> DblClick;
  PointerEventOf<> MouseDown;
  PointerEventOf<> MouseMove;
  PointerEventOf<> MouseUp;
  DragDropEventOf<> OLEDragDrop;
  DragOverEventOf<> OLEDragOver;
  Event<TLObject> TLObjectClick;
  Event<TLObject> TLObjectDblClick;
  PointerEventOf<TLObject> TLObjectMouseDown;
  PointerEventOf<TLObject> TLObjectMouseMove;
  PointerEventOf<TLObject> TLObjectMouseUp;
  DragDropEventOf<TLObject> TLObjectOLEDragDrop;
  DragOverEventOf<TLObject> TLObjectOLEDragOver;
  Event<CursorKey> CursorClick;
  Event<CursorKey> CursorDblClick;
  PointerEventOf<CursorKey> CursorMouseDown;
  PointerEventOf<CursorKey> CursorMouseMove;
  PointerEventOf<CursorKey> CursorMouseUp;
  DragDropEventOf<CursorKey> CursorOLEDragDrop;
  DragOverEventOf<CursorKey> CursorOLEDragOver;

  // Of the time scale, the markers and the cursor's time.
  Event<Date /*CursorTimeA*/> CursorTimeChange;
  Event<> TimeScaleClick;
  Event<> TimeScaleDblClick;
  PointerEvent TimeScaleMouseDown;
  PointerEvent TimeScaleMouseMove;
  PointerEvent TimeScaleMouseUp;
  Event<const Variant& /*MarkerKeyIndexA*/> MarkerClick;
  Event<const Variant& /*MarkerKeyIndexA*/> MarkerDblClick;
  MarkerPointerEvent MarkerMouseDown;
  MarkerPointerEvent MarkerMouseMove;
  MarkerPointerEvent MarkerMouseUp;

  /// The control was given another size: places the time scale above the canvas. Throws Overflow where the
  /// sums of the layout leave the single range.
  void Resize();

  Ref<CMURTimeline> Timeline() const;
  /// Attaches a time line (none detaches quietly), creates the cursor item if there is none and sets it to
  /// the present time then. Bars that are shown stay.
  void SetTimeline(const Ref<CMURTimeline>& TimelineA);
  /// Gives every member that has no bar yet its bar, through the steps of an added object, and places all of
  /// them on the time axis.
  void ShowMembers();

  // The time axis.
  Date WorldTimeT0() const;
  void SetWorldTimeT0(Date WorldTimeT0A);
  /// Any value is taken, zero and negative ones included.
  double Duration() const;
  void SetDuration(double DurationA);
  Date TZero() const;
  void SetTZero(Date TZeroA);
  std::int32_t TimesOffsetMode() const;
  void SetTimesOffsetMode(std::int32_t TimesOffsetModeA);
  Date CursorTime() const;
  /// Acts on a time that differs; raises CursorTimeChange while there is a cursor item.
  void SetCursorTime(Date CursorTimeA);
  /// The world time at a canvas x; date 0 where there is none. Throws Overflow for a time that is no number.
  Date XToWorldTime(float XA) const;

  // Formats of times. An empty format string hands the value to the time-text service with the style.
  String FormatString() const;
  void SetFormatString(StringView FormatStringA);
  std::int32_t FormatStyle() const;
  void SetFormatStyle(std::int32_t FormatStyleA);
  String DurationFormatString() const;
  void SetDurationFormatString(StringView FormatStringA);
  std::int32_t DurationFormatStyle() const;
  void SetDurationFormatStyle(std::int32_t FormatStyleA);
  String TimeScaleFormatString() const;
  void SetTimeScaleFormatString(StringView FormatStringA);
  std::int32_t TimeScaleFormatStyle() const;
  void SetTimeScaleFormatStyle(std::int32_t FormatStyleA);

  // Colours and the time scale.
  /// Inert by contract: reads 0, a write does nothing.
  OleColor BackColor() const { return 0; }
  void SetBackColor(OleColor /*ColorA*/) {}
  OleColor TimeScaleBackColor() const;
  void SetTimeScaleBackColor(OleColor ColorA);
  OleColor TimeScaleForeColor() const;
  void SetTimeScaleForeColor(OleColor ColorA);
  OleColor TimeScaleMarkerHighlightColor() const;
  void SetTimeScaleMarkerHighlightColor(OleColor ColorA);
  float TimeScaleMarkerHighlightWidth() const;
  void SetTimeScaleMarkerHighlightWidth(float WidthA);
  float TimeScaleHeight() const;
  void SetTimeScaleHeight(float HeightA);

  // Markers on the time scale, named by their keys or by their positions there. Where there is no such marker
  // readers find the empty value and writers do nothing.
  void TimeScaleMarkersClear();
  /// 0 beyond 32,767 markers, too.
  std::int16_t TimeScaleMarkersCount() const;
  /// A key that exists (letter case ignored) is ignored.
  void TimeScaleMarkerAdd(Date WorldTimeA, StringView MarkerKeyA, StringView CaptionA = {},
                          bool VisibleA = true);
  void TimeScaleMarkerRemove(const Variant& KeyIndexA);
  Date TimeScaleMarkerWorldTime(const Variant& KeyIndexA) const;
  void SetTimeScaleMarkerWorldTime(const Variant& KeyIndexA, Date WorldTimeA);
  String TimeScaleMarkerCaption(const Variant& KeyIndexA) const;
  void SetTimeScaleMarkerCaption(const Variant& KeyIndexA, StringView CaptionA);
  String TimeScaleMarkerTag(const Variant& KeyIndexA) const;
  void SetTimeScaleMarkerTag(const Variant& KeyIndexA, StringView TagA);
  Variant TimeScaleMarkerUserData(const Variant& KeyIndexA) const;
  void SetTimeScaleMarkerUserData(const Variant& KeyIndexA, const Variant& UserDataA);
  /// The record itself, the same object each time.
  Ref<ITimeScaleMarker> TimeScaleMarkerDefinition(const Variant& KeyIndexA) const;

  // Tracks and bars.
  float BarHeight() const;
  void SetBarHeight(float HeightA);
  float BarSeparation() const;
  void SetBarSeparation(float SeparationA);
  float TrackSeparation() const;
  void SetTrackSeparation(float SeparationA);
  /// Where the track's bar begins, from the control's top edge; 0 without such a track, object or bar.
  float TrackTop(const Variant& TrackKeyIndexA) const;
  /// Puts the bars of every track on their rows again.
  void AlignTracks();
  /// Unfinished by contract: always empty.
  String YToTrackKey(float /*YA*/) const { return {}; }

  // Appearance of bars.
  Ref<CMURTLRenderConfig> DefaultRenderConfig() const;
  /// The colours of a kind of objects; none for an unknown key.
  Ref<CMURTLRenderConfig> RenderConfig(const Variant& KeyIndexA) const;
  Ref<CMURTLRenderConfig> AddRenderConfig(const Variant& KeyIndexA);
  /// Sites 1 to 9; others read 0 and ignore writes. Bars show a new kind from the next full repaint on.
  std::int32_t AutoObjectCaption(std::int32_t CaptionSiteA) const;
  void SetAutoObjectCaption(std::int32_t CaptionSiteA, std::int32_t CaptionTypeA);
  /// Tool tips follow with the next property change of their object.
  String AutoObjectTooltipText() const;
  void SetAutoObjectTooltipText(StringView TextA);
  bool AutoHighlightObjects() const;
  void SetAutoHighlightObjects(bool HighlightA);

  // Appearance of one bar, by the key of its object ("The Cursor" for the cursor) or its position on the
  // canvas. Lasts until the control writes the same itself; empty where there is no such bar or site.
  OleColor TLObject_BackColor(const Variant& KeyIndexA) const;
  void SetTLObject_BackColor(const Variant& KeyIndexA, OleColor ColorA);
  OleColor TLObject_ForeColor(const Variant& KeyIndexA) const;
  void SetTLObject_ForeColor(const Variant& KeyIndexA, OleColor ColorA);
  String TLObject_Caption(const Variant& KeyIndexA, std::int32_t CaptionSiteA) const;
  void SetTLObject_Caption(const Variant& KeyIndexA, std::int32_t CaptionSiteA, StringView CaptionA);
  bool TLObject_Visible(const Variant& KeyIndexA) const;
  void SetTLObject_Visible(const Variant& KeyIndexA, bool VisibleA);

  // Interaction.
  Variant SelectedKey() const;
  /// MURTimelineClickType flags.
  std::int32_t AutoSelectMode() const;
  void SetAutoSelectMode(std::int32_t ModeA);
  bool AllowObjectDragging() const;
  /// Bars and the cursor follow a pointer that drags them with the left button.
  void SetAllowObjectDragging(bool AllowA);
  /// Whether the bars of groups and scalars move at once when their starts change. Off at first: by contract
  /// only media report their start under the name that moves a bar; the others wait for the next full
  /// repaint, and a drag adds up until then.
  bool FollowAllStarts() const;
  void SetFollowAllStarts(bool FollowA);
  /// Whether a bar or the cursor is being dragged, on the canvas or on the time scale.
  bool IsDragging() const;
  /// Ends a drag and puts what was dragged back to where it was taken up. False when there was none.
  bool CancelDrag();
  std::int16_t OLEDropMode() const;
  void SetOLEDropMode(std::int16_t ModeA);
  bool ShowToolTips() const;
  void SetShowToolTips(bool ShowA);
  String ToolTipText() const;
  void SetToolTipText(StringView TextA);

  /// Lets the user edit the displayed times in the thread's one edit-times dialog and returns when it was
  /// closed; brings that to the front while it is open. Nothing on a host without windows.
  void ShowEditor();

  /// The companions at work, for the face that paints them.
  const Companions& Collaborators() const;

 private:
  struct Parts;

  ~MURTimelineRender() override;

  void WriteStartSettings();
  void ForwardScrollerEvents();
  void Repaint();
  template <class Value, class New>
  void PutAndRepaint(Value& StoredA, const New& ValueA);
  template <class Value>
  void PutIfNewAndRepaint(Value& StoredA, Value ValueA);

  std::unique_ptr<Parts> mParts;
};

}  // namespace mur
