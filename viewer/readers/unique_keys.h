#pragma once

#include <cstddef>
#include <unordered_map>

#include <murtimeline/automation/string.h>

namespace mur::viewer {

/// Hands out keys that differ even when letter case is ignored: "Shot", "shot (2)", "Shot (3)". The key of a
/// control's cursor is never given away.
class UniqueKeys {
 public:
  UniqueKeys();

  /// `WishA` on one line, with a number behind it where the name is taken.
  String Take(StringView WishA);

 private:
  struct Hash {
    std::size_t operator()(const String& TextA) const;
  };
  struct Equal {
    bool operator()(const String& LeftA, const String& RightA) const;
  };

  std::unordered_map<String, std::size_t, Hash, Equal> mUses;  // how often each key was asked for
};

}  // namespace mur::viewer
