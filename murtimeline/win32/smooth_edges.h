#pragma once

#include <list>

#include <murtimeline/win32/coverage.h>
#include <murtimeline/win32/handles.h>

namespace mur::win32 {

/// A picture of one colour whose pixels are more or less transparent.
class Tile {
 public:
  Tile(const Coverage& CoverageA, Rgba ColorA);
  /// A single pixel that is as transparent as the colour says.
  explicit Tile(Rgba ColorA) : Tile(Coverage::OfPixel(), ColorA) {}

  /// Blends a part of it, whose left top corner is `FromA`, onto a device at a place (device pixels).
  void Draw(HDC DeviceA, const RECT& PlaceA, POINT FromA) const;
  /// Blends its first pixel all over a place.
  void Spread(HDC DeviceA, const RECT& PlaceA) const { Blend(DeviceA, PlaceA, {0, 0, 1, 1}); }

 private:
  void Blend(HDC DeviceA, const RECT& PlaceA, const RECT& PartA) const;

  UniqueBitmap mBitmap;
  UniqueDevice mDevice;  // holds the bitmap, and so goes first
};

/// A round corner of a frame, of a filled shape where its width is the radius (device pixels).
struct Corner {
  double radius = 0;
  double width = 0;
  Rgba color;
  friend bool operator==(const Corner&, const Corner&) = default;
};

/// Keeps the tiles of corners, which many bars share.
class CornerTiles {
 public:
  /// All four corners of a kind, as Coverage::OfCorners has them. Lasts until the next call.
  const Tile& Of(const Corner& CornerA);

 private:
  struct Entry {
    Corner corner;
    Tile tile;
  };
  std::list<Entry> mEntries;  // the one used last comes first
};

}  // namespace mur::win32
