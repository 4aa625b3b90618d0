#include "tests/support/recording_canvas.h"

#include "tests/support/value_text.h"

namespace mur::test {
namespace {

std::string PartText(std::optional<float> PartA) {
  return PartA ? NumberText(static_cast<double>(*PartA)) : "-";
}

}  // namespace

void RecordingItem::SetHeight(float HeightA) {
  mLog.Note("Item.Height", " " + ToUtf8(mKey) + " = " + PartText(HeightA));
  mHeight = HeightA;
}

void RecordingItem::Move(float LeftA, std::optional<float> TopA, std::optional<float> WidthA,
                         std::optional<float> HeightA) {
  mLog.Note("Item.Move", " " + ToUtf8(mKey) + " (" + PartText(LeftA) + ", " + PartText(TopA) + ", " +
                             PartText(WidthA) + ", " + PartText(HeightA) + ")");
  mLeft = LeftA;
  mTop = TopA.value_or(mTop);
  mWidth = WidthA.value_or(mWidth);
  mHeight = HeightA.value_or(mHeight);
}

void RecordingItem::ZOrder(const Variant& PositionA) {
  mLog.Note("Item.ZOrder",
            " " + ToUtf8(mKey) + " (" + KindName(PositionA.Kind()) + " " + ValueText(PositionA) + ")");
}

void RecordingItem::SetCaption(int SiteA, StringView CaptionA) {
  mLog.Note("Item.Caption",
            " " + ToUtf8(mKey) + " (" + std::to_string(SiteA) + ") = '" + ToUtf8(CaptionA) + "'");
  mCaptions.at(static_cast<std::size_t>(SiteA)) = CaptionA;
}

void RecordingItem::SetToolTipText(StringView TextA) {
  mLog.Note("Item.ToolTipText", " " + ToUtf8(mKey) + " = '" + ToUtf8(TextA) + "'");
  mToolTipText = TextA;
}

void RecordingItem::SetBackColor(OleColor ColorA) {
  mLog.Note("Item.BackColor", " " + ToUtf8(mKey) + " = " + ColorText(ColorA));
  mBackColor = ColorA;
}

void RecordingItem::SetForeColor(OleColor ColorA) {
  mLog.Note("Item.ForeColor", " " + ToUtf8(mKey) + " = " + ColorText(ColorA));
  mForeColor = ColorA;
}

void RecordingItem::SetDragFlags(int FlagsA) {
  mLog.Note("Item.DragFlags", " " + ToUtf8(mKey) + " = " + std::to_string(FlagsA));
  mDragFlags = FlagsA;
}

void RecordingCanvas::SetBackColor(OleColor ColorA) {
  mLog.Note("Canvas.BackColor", " = " + ColorText(ColorA));
  mBackColor = ColorA;
}

void RecordingCanvas::SetOLEDropMode(std::int16_t ModeA) {
  mLog.Note("Canvas.OLEDropMode", " = " + std::to_string(ModeA));
  mOLEDropMode = ModeA;
}

void RecordingCanvas::SetShowToolTips(bool ShowA) {
  mLog.Note("Canvas.ShowToolTips", ShowA ? " = true" : " = false");
  mShowToolTips = ShowA;
}

void RecordingCanvas::SetScaleMode(int ModeA) {
  mLog.Note("Canvas.ScaleMode", " = " + std::to_string(ModeA));
  mScaleMode = ModeA;
}

Ref<ICanvasItem> RecordingCanvas::Graphic(const Variant& KeyIndexA) const {
  mLog.Pass("Canvas.Graphic");
  const std::size_t index = IndexOf(KeyIndexA);
  return index < mItems.size() ? mItems[index] : Ref<ICanvasItem>();
}

Ref<ICanvasItem> RecordingCanvas::AddGraphic(StringView KeyA, int KindA) {
  mLog.Note("Canvas.AddGraphic", " (" + ToUtf8(KeyA) + ", " + std::to_string(KindA) + ")");
  if (IndexOf(Variant(KeyA)) < mItems.size()) return {};
  mItems.push_back(Make<RecordingItem>(mLog, KeyA, KindA));
  return mItems.back();
}

void RecordingCanvas::RemoveGraphic(const Variant& KeyIndexA) {
  mLog.Note("Canvas.RemoveGraphic", " (" + ValueText(KeyIndexA) + ")");
  const std::size_t index = IndexOf(KeyIndexA);
  if (index >= mItems.size()) throw std::out_of_range("RemoveGraphic");
  mItems.erase(mItems.begin() + static_cast<std::ptrdiff_t>(index));
}

std::size_t RecordingCanvas::IndexOf(const Variant& KeyIndexA) const {
  std::size_t index = 0;
  if (const String* key = KeyIndexA.As<String>())
    while (index < mItems.size() && mItems[index]->Key() != *key) ++index;
  else
    index = static_cast<std::size_t>(KeyIndexA.Number().value_or(0)) - 1;
  return index;
}

}  // namespace mur::test
