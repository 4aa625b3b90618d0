#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include <murtimeline/render/companions/bar_captions.h>
#include <murtimeline/render/companions/text_fit.h>

namespace mur {
namespace {

constexpr float kPadding = 4;
constexpr float kGap = 6;
constexpr float kLargestSize = 11;
constexpr float kSmallestSize = 7;
constexpr float kLinePerSize = 1.2F;
constexpr float kLeastRoom = 14;       // narrower, not even a short caption fits
constexpr float kLeastShare = 20;      // narrower, an elided caption tells nothing
constexpr std::size_t kLeastKept = 3;  // nor does one of which fewer characters are left

enum Column { kLeft, kCentre, kRight, kColumns };
enum Row { kTop, kMiddle, kBottom, kRows };

using Line = std::array<StringView, kColumns>;
using Grid = std::array<Line, kRows>;

bool IsUsed(const Line& LineA) {
  return std::any_of(LineA.begin(), LineA.end(), [](StringView text) { return !text.empty(); });
}

int UsedLines(const Grid& GridA) {
  return static_cast<int>(std::count_if(GridA.begin(), GridA.end(), IsUsed));
}

Grid GridOf(const ItemTexts& TextsA) {
  Grid grid;
  int site = 1;
  for (Line& line : grid)
    for (StringView& text : line) text = TextsA.Caption(site++);
  return grid;
}

// Moves captions to the free sites of another line.
void MoveToFreeSites(Line& FromA, Line& ToA) {
  for (std::size_t column = 0; column < kColumns; ++column)
    if (ToA[column].empty()) ToA[column] = std::exchange(FromA[column], {});
}

// Brings the grid down to `LinesA` lines: one in the middle, or one at the top and one at the bottom.
void FoldTo(int LinesA, Grid& GridA) {
  if (LinesA == 1) {
    MoveToFreeSites(GridA[kTop], GridA[kMiddle]);
    MoveToFreeSites(GridA[kBottom], GridA[kMiddle]);
    GridA[kTop] = GridA[kBottom] = {};
  } else if (LinesA == 2 && IsUsed(GridA[kMiddle]) && UsedLines(GridA) > 1) {
    MoveToFreeSites(GridA[kMiddle], IsUsed(GridA[kTop]) ? GridA[kBottom] : GridA[kTop]);
    MoveToFreeSites(GridA[kMiddle], IsUsed(GridA[kTop]) ? GridA[kTop] : GridA[kBottom]);
    GridA[kMiddle] = {};
  }
}

// How many lines a row's height must hold for the lines in use not to touch each other.
int LinesNeeded(const Grid& GridA) {
  const int used = UsedLines(GridA);
  return used == 2 && IsUsed(GridA[kMiddle]) ? 3 : used;
}

/// Lays out and draws one line of up to three captions.
class LinePainter {
 public:
  LinePainter(Surface& SurfaceA, const TextStyle& StyleA, float LeftA, float RightA)
      : mSurface(SurfaceA), mStyle(StyleA), mLeft(LeftA), mRight(RightA) {}

  void Draw(const Line& LineA, Row RowA, const RectF& AreaA) {
    for (std::size_t column = 0; column < kColumns; ++column)
      if (!LineA[column].empty())
        mTexts[column] = MeasureForRoom(mSurface, LineA[column], mStyle, mRight - mLeft);
    ShareWidth();
    DrawAt(mLeft, kLeft, RowA, AreaA);
    DrawAt(CentreStart(), kCentre, RowA, AreaA);
    DrawAt(mRight - WidthOf(kRight), kRight, RowA, AreaA);
  }

 private:
  float WidthOf(Column ColumnA) const { return mTexts[ColumnA] ? mTexts[ColumnA]->extent.width : 0; }

  using Texts = std::array<std::optional<MeasuredText>, kColumns>;

  static bool TellsNothing(const std::optional<MeasuredText>& TextA) {
    return TextA && (TextA->text.empty() || (TextA->isCut && TextA->text.size() <= kLeastKept));
  }

  // Each caption gets its equal share of the width; what one leaves over goes to the others. Where one would
  // tell nothing in its share, one goes: the right one first, then the left one.
  void ShareWidth() {
    for (const Column victim : {kRight, kLeft, kCentre}) {
      if (const float share = EqualShare(); share >= std::min(kLeastShare, mRight - mLeft)) {
        Texts shared = mTexts;
        for (auto& text : shared)
          if (text) text = Elided(mSurface, *std::move(text), mStyle, share);
        if (std::none_of(shared.begin(), shared.end(), TellsNothing)) {
          mTexts = std::move(shared);
          return;
        }
      }
      mTexts[victim].reset();
    }
  }

  // The width up to which every caption may go so that they fit side by side.
  float EqualShare() const {
    std::array<float, kColumns> widths{};
    std::size_t count = 0;
    for (const auto& text : mTexts)
      if (text) widths[count++] = text->isCut ? mRight - mLeft : text->extent.width;
    std::sort(widths.begin(), widths.begin() + static_cast<std::ptrdiff_t>(count));
    float room = mRight - mLeft - kGap * static_cast<float>(count - std::min<std::size_t>(count, 1));
    for (std::size_t at = 0; at < count; ++at) {
      const float share = room / static_cast<float>(count - at);
      if (widths[at] > share) return share;
      room -= widths[at];
    }
    return mRight - mLeft;  // all of them fit
  }

  // In the middle, unless a neighbour needs more than its half.
  float CentreStart() const {
    const float width = WidthOf(kCentre);
    const float least = mTexts[kLeft] ? mLeft + WidthOf(kLeft) + kGap : mLeft;
    const float most = (mTexts[kRight] ? mRight - WidthOf(kRight) - kGap : mRight) - width;
    return std::max(least, std::min((mLeft + mRight - width) / 2, most));
  }

  void DrawAt(float XA, Column ColumnA, Row RowA, const RectF& AreaA) {
    if (!mTexts[ColumnA]) return;
    const MeasuredText& text = *mTexts[ColumnA];
    const float baseline = BaselineOf(RowA, AreaA, text.extent);
    mSurface.DrawTextLine({Aligned(XA), Aligned(baseline)}, text.text, mStyle);
  }

  float Aligned(float PixelA) const {
    const float ratio = mSurface.DevicePixelRatio();
    return std::round(PixelA * ratio) / ratio;
  }

  static float BaselineOf(Row RowA, const RectF& AreaA, const TextExtent& ExtentA) {
    if (RowA == kTop) return AreaA.top + 1 + ExtentA.ascent;
    if (RowA == kBottom) return AreaA.Bottom() - 1 - ExtentA.descent;
    return CentredBaseline(AreaA.top + AreaA.height / 2, ExtentA);
  }

  Surface& mSurface;
  const TextStyle& mStyle;
  float mLeft, mRight;
  Texts mTexts;
};

}  // namespace

void DrawCaptions(Surface& SurfaceA, const RectF& AreaA, const ItemTexts& TextsA, Rgba ColorA) {
  const float room = AreaA.height - 2;
  const float lines = std::min(3.0F, std::floor(room / (kSmallestSize * kLinePerSize)));
  if (!TextsA.HasCaptions() || !(lines >= 1) || AreaA.width < kLeastRoom + 2 * kPadding) return;
  Grid grid = GridOf(TextsA);
  FoldTo(static_cast<int>(lines), grid);
  const int needed = LinesNeeded(grid);
  if (needed == 0) return;
  const float size =
      std::clamp(room / static_cast<float>(needed) / kLinePerSize, kSmallestSize, kLargestSize);
  const TextStyle style{size, false, ColorA};
  for (const Row row : {kTop, kMiddle, kBottom})
    if (IsUsed(grid[row]))
      LinePainter(SurfaceA, style, AreaA.left + kPadding, AreaA.Right() - kPadding)
          .Draw(grid[row], row, AreaA);
}

}  // namespace mur
