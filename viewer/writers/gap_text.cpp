#include "viewer/writers/gap_text.h"

#include <utility>
#include <vector>

#include "viewer/writers/json_numbers.h"

namespace mur::viewer {
namespace {

// How a text lays out the members of an object.
class Style {
 public:
  Style(std::string_view TextA, const JsonNode& ModelA) {
    if (ModelA.children.empty()) return;
    const auto between = [TextA](std::size_t from, std::size_t to) {
      return std::string(TextA.substr(from, to - from));
    };
    const auto& members = ModelA.children;
    mOpen = between(ModelA.begin + 1, members.front().keyBegin);
    mClose = between(members.back().end, ModelA.end - 1);
    mSeparator = members.size() > 1 ? between(members[0].end, members[1].keyBegin) : ',' + mOpen;
    mColon = between(TextA.find('"', members.front().keyBegin + 1) + 1, members.front().begin);
    if (mOpen.size() > mClose.size() && mOpen.find('\n') != std::string::npos)
      mStep = mOpen.substr(mClose.size());
  }

  using Members = std::vector<std::pair<std::string, std::string>>;

  std::string Object(const Members& MembersA, int DepthA) const {
    std::string indent;
    for (int level = 0; level < DepthA; ++level) indent += mStep;
    const auto deeper = [&indent](const std::string& blanks) {
      return blanks.find('\n') == std::string::npos ? blanks : blanks + indent;
    };
    std::string text = "{" + deeper(mOpen);
    for (std::size_t i = 0; i < MembersA.size(); ++i) {
      if (i > 0) text += deeper(mSeparator);
      text += '"' + MembersA[i].first + '"' + mColon + MembersA[i].second;
    }
    return text + deeper(mClose) + "}";
  }

 private:
  std::string mOpen, mClose, mSeparator = ", ", mColon = ": ";
  std::string mStep;  // by how much each level is indented; nothing in a text on one line
};

}  // namespace

std::string NewGapText(std::string_view TextA, const JsonNode& ModelA, double FramesA,
                       std::string_view RateA) {
  const Style style(TextA, ModelA);
  const auto time = [&](double frames) {
    return style.Object({{"OTIO_SCHEMA", "\"RationalTime.1\""},
                         {"rate", std::string(RateA)},
                         {"value", NumberLike(frames, RateA)}},
                        2);
  };
  const std::string range = style.Object(
      {{"OTIO_SCHEMA", "\"TimeRange.1\""}, {"start_time", time(0)}, {"duration", time(FramesA)}}, 1);
  return style.Object({{"OTIO_SCHEMA", "\"Gap.1\""},
                       {"name", "\"\""},
                       {"metadata", "{}"},
                       {"source_range", range},
                       {"effects", "[]"},
                       {"markers", "[]"},
                       {"enabled", "true"}},
                      0);
}

}  // namespace mur::viewer
