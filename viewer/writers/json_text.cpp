#include "viewer/writers/json_text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>

#include "viewer/readers/read_error.h"
#include "viewer/readers/text_position.h"

namespace mur::viewer {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

class Scanner {
 public:
  explicit Scanner(std::string_view TextA) : mText(TextA) {}

  JsonNode Root() {
    if (mText.starts_with(kByteOrderMark)) mAt = kByteOrderMark.size();
    SkipBlanks();
    JsonNode root = Value();
    SkipBlanks();
    if (mAt != mText.size()) Fail();
    return root;
  }

 private:
  JsonNode Value() {
    JsonNode node;
    node.begin = mAt;
    if (Peek() == '{') {
      node.kind = JsonNode::Kind::Object;
      Children(node, '}');
    } else if (Peek() == '[') {
      node.kind = JsonNode::Kind::Array;
      Children(node, ']');
    } else if (Peek() == '"') {
      SkipString();
    } else {
      SkipToken();
    }
    node.end = mAt;
    return node;
  }

  void Children(JsonNode& NodeA, char CloseA) {
    ++mAt;
    SkipBlanks();
    while (Peek() != CloseA) {
      NodeA.children.push_back(NodeA.kind == JsonNode::Kind::Object ? Member() : Value());
      SkipBlanks();
      if (Peek() == CloseA) break;
      Expect(',');
      SkipBlanks();
    }
    ++mAt;
  }

  JsonNode Member() {
    const std::size_t keyBegin = mAt;
    if (Peek() != '"') Fail();
    SkipString();
    std::string key = KeyOf(mText.substr(keyBegin, mAt - keyBegin));
    SkipBlanks();
    Expect(':');
    SkipBlanks();
    JsonNode member = Value();
    member.key = std::move(key);
    member.keyBegin = keyBegin;
    return member;
  }

  static std::string KeyOf(std::string_view QuotedA) {
    if (QuotedA.find('\\') == std::string_view::npos)
      return std::string(QuotedA.substr(1, QuotedA.size() - 2));
    const QByteArray list = '[' + QByteArray(QuotedA.data(), static_cast<qsizetype>(QuotedA.size())) + ']';
    return QJsonDocument::fromJson(list).array().first().toString().toStdString();
  }

  void SkipString() {
    for (++mAt; Peek() != '"'; ++mAt)
      if (mText[mAt] == '\\') ++mAt;
    ++mAt;
  }

  void SkipToken() {
    constexpr std::string_view kEnds = ",:[]{}\" \t\r\n";
    const std::size_t end = std::min(mText.find_first_of(kEnds, mAt), mText.size());
    if (end == mAt) Fail();
    mAt = end;
  }

  void SkipBlanks() { mAt = std::min(mText.find_first_not_of(kBlanks, mAt), mText.size()); }

  char Peek() const {
    if (mAt >= mText.size()) Fail();
    return mText[mAt];
  }

  void Expect(char CharacterA) {
    if (Peek() != CharacterA) Fail();
    ++mAt;
  }

  [[noreturn]] void Fail() const { throw ReadError(PlaceInText(mText, mAt), "not valid JSON"); }

  std::string_view mText;
  std::size_t mAt = 0;
};

}  // namespace

const JsonNode* JsonNode::Find(std::string_view KeyA) const {
  if (kind != Kind::Object) return nullptr;
  const auto found = std::find_if(children.rbegin(), children.rend(),
                                  [KeyA](const JsonNode& child) { return child.key == KeyA; });
  return found == children.rend() ? nullptr : &*found;
}

const JsonNode* JsonNode::Find(std::initializer_list<std::string_view> PathA) const {
  const JsonNode* node = this;
  for (const std::string_view step : PathA)
    if (node) node = node->Find(step);
  return node;
}

const JsonNode* JsonNode::At(std::size_t IndexA) const {
  return kind == Kind::Array && IndexA < children.size() ? &children[IndexA] : nullptr;
}

JsonNode ScanJson(std::string_view TextA) {
  return Scanner(TextA).Root();
}

}  // namespace mur::viewer
