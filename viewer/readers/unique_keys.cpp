#include "viewer/readers/unique_keys.h"

#include <QString>

#include <murtimeline/automation/case_folding.h>

namespace mur::viewer {

UniqueKeys::UniqueKeys() {
  mUses[u"The Cursor"] = 1;
}

String UniqueKeys::Take(StringView WishA) {
  const String name = QStringView(WishA).toString().simplified().toStdU16String();
  // References into the map stay good while keys are added.
  std::size_t& uses = mUses[name];
  String key = name;
  if (++uses > 1) do {
      key = name + u" (" + FromAscii(std::to_string(uses)) + u")";
    } while (!mUses.try_emplace(key, 1).second && ++uses);
  return key;
}

std::size_t UniqueKeys::Hash::operator()(const String& TextA) const {
  return HashIgnoringCase(TextA);
}

bool UniqueKeys::Equal::operator()(const String& LeftA, const String& RightA) const {
  return EqualIgnoringCase(LeftA, RightA);
}

}  // namespace mur::viewer
