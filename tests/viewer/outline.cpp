#include "tests/viewer/outline.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

namespace mur::viewer::test {
namespace {

std::string Number(double ValueA) {
  char text[32];
  std::snprintf(text, sizeof text, "%.9g", ValueA);
  return text;
}

const char* Kind(MURTimelineObjectType TypeA) {
  return TypeA == murtlotGroup ? "group " : TypeA == murtlotMedia ? "media " : "scalar ";
}

}  // namespace

std::string TestData(const std::string& NameA) {
  std::ifstream file(MUR_VIEWER_TEST_DATA "/" + NameA, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

Document Read(FileKind KindA, std::string_view TextA) {
  Progress progress;
  return ReadDocument(KindA, TextA, progress);
}

std::string Outline(const Document& DocumentA) {
  std::string text;
  std::vector<std::size_t> depths;
  for (const Entry& entry : DocumentA.entries) {
    depths.push_back(entry.parent ? depths[*entry.parent] + 1 : 0);
    text += std::string(depths.back() * 2, ' ') + Kind(entry.type) + ToUtf8(entry.key);
    text += " @" + Number(entry.start) + " +" + Number(entry.duration);
    if (entry.media.clipped) text += " in " + Number(entry.media.cutIn);
    if (entry.type == murtlotMedia)
      text += " of " + Number(entry.media.mediaDuration) + " " + ToUtf8(entry.media.filename);
    text += "\n";
  }
  return text;
}

std::string ReadFailure(FileKind KindA, std::string_view TextA) {
  try {
    Read(KindA, TextA);
    return {};
  } catch (const ReadError& error) {
    return error.what();
  }
}

}  // namespace mur::viewer::test
