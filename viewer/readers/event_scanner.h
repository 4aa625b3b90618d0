#pragma once

#include <optional>
#include <string_view>

namespace mur::viewer {

/// Finds the events of a trace one by one, without parsing them: the objects of a bare array or of the array
/// "traceEvents". As the format has it, the closing bracket and brace may be missing and the last event may
/// be followed by a comma.
class EventScanner {
 public:
  /// Throws ReadError when the text holds no array of events.
  explicit EventScanner(std::string_view TextA);

  /// The next event, from brace to brace; none at the end. Throws ReadError.
  std::optional<std::string_view> Next();

  /// How far into the text the scanner is, in bytes.
  std::size_t Offset() const { return mAt; }

 private:
  void SkipSpace();
  void SkipString();
  void SkipValue();
  void FindTraceEvents();
  std::string_view ReadKey();
  bool AtEnd() const { return mAt >= mText.size(); }
  bool At(char CharA) const { return !AtEnd() && mText[mAt] == CharA; }
  void Expect(char CharA, const char* WhatA);
  [[noreturn]] void Fail(const char* ReasonA) const;

  std::string_view mText;
  std::size_t mAt = 0;
  bool mFirst = true;
};

}  // namespace mur::viewer
