#pragma once

#include <array>
#include <vector>

#include <murtimeline/render/companions/canvas_interface.h>

#include "tests/support/call_log.h"

namespace mur::test {

/// An item that notes what is done to it, under its key.
class RecordingItem final : public ICanvasItem {
 public:
  RecordingItem(CallLog& LogA, StringView KeyA, int KindA) : mLog(LogA), mKey(KeyA), mKind(KindA) {}

  String Key() const override { return mKey; }
  int Kind() const override { return mKind; }
  float Left() const override { return mLeft; }
  float Top() const override { return mTop; }
  float Width() const override { return mWidth; }
  float Height() const override { return mHeight; }
  void SetHeight(float HeightA) override;
  void Move(float LeftA, std::optional<float> TopA = {}, std::optional<float> WidthA = {},
            std::optional<float> HeightA = {}) override;
  void ZOrder(const Variant& PositionA) override;
  String Caption(int SiteA) const override { return mCaptions.at(static_cast<std::size_t>(SiteA)); }
  void SetCaption(int SiteA, StringView CaptionA) override;
  String ToolTipText() const override { return mToolTipText; }
  void SetToolTipText(StringView TextA) override;
  OleColor BackColor() const override { return mBackColor; }
  void SetBackColor(OleColor ColorA) override;
  OleColor ForeColor() const override { return mForeColor; }
  void SetForeColor(OleColor ColorA) override;
  bool Visible() const override { return mVisible; }
  void SetVisible(bool VisibleA) override { mVisible = VisibleA; }
  int DragFlags() const override { return mDragFlags; }
  void SetDragFlags(int FlagsA) override;

 private:
  CallLog& mLog;
  String mKey;
  int mKind;
  float mLeft = 0, mTop = 0, mWidth = 0, mHeight = 0;
  std::array<String, 10> mCaptions;
  String mToolTipText;
  OleColor mBackColor = 0, mForeColor = 0;
  bool mVisible = true;
  int mDragFlags = 0;
};

/// A canvas that notes every call which adds, removes or changes something; its drawing area is given. A call
/// on an item has the name "Item." and the member when it is to fail.
class RecordingCanvas final : public IGraphicCanvas {
 public:
  explicit RecordingCanvas(CallLog& LogA) : mLog(LogA) {}

  OleColor BackColor() const override { return mBackColor; }
  void SetBackColor(OleColor ColorA) override;
  std::int16_t OLEDropMode() const override { return mLog.Pass("Canvas.OLEDropMode"), mOLEDropMode; }
  void SetOLEDropMode(std::int16_t ModeA) override;
  bool ShowToolTips() const override { return mLog.Pass("Canvas.ShowToolTips"), mShowToolTips; }
  void SetShowToolTips(bool ShowA) override;
  int ScaleMode() const override { return mLog.Pass("Canvas.ScaleMode"), mScaleMode; }
  void SetScaleMode(int ModeA) override;
  double DrawingWidth() const override { return mLog.Pass("Canvas.DrawingWidth"), width; }
  double DrawingHeight() const override { return mLog.Pass("Canvas.DrawingHeight"), height; }
  std::size_t GraphicCount() const override { return mLog.Pass("Canvas.GraphicCount"), mItems.size(); }
  Ref<ICanvasItem> Graphic(const Variant& KeyIndexA) const override;
  Ref<ICanvasItem> AddGraphic(StringView KeyA, int KindA) override;
  void RemoveGraphic(const Variant& KeyIndexA) override;

  double width = 1000, height = 200;

 private:
  std::size_t IndexOf(const Variant& KeyIndexA) const;

  CallLog& mLog;
  std::vector<Ref<RecordingItem>> mItems;
  OleColor mBackColor = 0;
  int mScaleMode = 1;
  std::int16_t mOLEDropMode = 0;
  bool mShowToolTips = true;
};

}  // namespace mur::test
