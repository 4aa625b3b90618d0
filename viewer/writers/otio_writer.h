#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "viewer/writers/track_plan.h"

namespace mur::viewer {

/// Where an item was put, in seconds behind its place in the file.
struct ItemMove {
  std::size_t item = 0;
  double seconds = 0;
  bool isTrimmed = false;
};

/// The same for a marker of an item.
struct MarkerMove {
  std::size_t item = 0;
  std::size_t place = 0;
  double seconds = 0;
};

/// All that is shown of an edit; what is missing here goes with the item that holds it.
struct EditMoves {
  std::vector<ItemMove> items;
  std::vector<MarkerMove> markers;
};

/// The text of an edit with its items and markers moved. Gaps take up what items leave and give what they
/// need (see PlanTrack); moving a whole track of the edit delays what is on it, since tracks begin together.
/// Only the numbers that must change do, and new gaps come in; everything else keeps its bytes. Without a
/// move the text stays as it is.
///
/// Throws NotExpressible where the format cannot say a move, and ReadError where the text is no edit.
std::string WriteOtio(std::string_view TextA, const EditMoves& MovesA);

}  // namespace mur::viewer
