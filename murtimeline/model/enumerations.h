#pragma once

namespace mur {

/// What kind of timeline object something is; also the classification that a group carries.
enum MURTimelineObjectType : int {
  murtlotGroup = 0,
  murtlotScalar = 1,
  murtlotMedia = 2,
  murtlotMeasurements = 3,  ///< no class stands behind it: a time line creates nothing for it
  murtlotUnknown = 4,
};

/// Kinds of automatic caption that the control writes on a bar.
enum MURTimelineCaptionType : int {
  etlctNoAutoCaption = 0,
  etlctNChildren = 1,
  etlctParent = 2,
  etlctDuration = 3,
  etlctWorldTimeT0 = 4,
  etlctWorldTimeT1 = 5,
  etlctOffset = 6,
  etlctLockedToParent = 7,
  etlctTag = 8,
  etlctObjectType = 9,
  etlctGroupType = 10,
  etlctSentinel = 11,  ///< follows the last caption kind
};

/// Bit flags, combinable: the clicks that select an object by themselves.
enum MURTimelineClickType : int {
  etlcltNoClicks = 0,
  etlcltLeftClick = 1,
  etlcltMiddleClick = 2,
  etlcltRightClick = 4,
  etlcltLeftDblClick = 8,
  etlcltMiddleDblClick = 16,
  etlcltRightDblClick = 32,
};

}  // namespace mur
