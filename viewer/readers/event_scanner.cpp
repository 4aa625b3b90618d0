#include "viewer/readers/event_scanner.h"

#include "viewer/readers/read_error.h"
#include "viewer/readers/text_position.h"

namespace mur::viewer {

EventScanner::EventScanner(std::string_view TextA) : mText(TextA) {
  SkipSpace();
  if (At('{')) FindTraceEvents();
  Expect('[', "expected an array of trace events");
}

std::optional<std::string_view> EventScanner::Next() {
  SkipSpace();
  if (AtEnd() || At(']')) return std::nullopt;
  if (!mFirst) {
    Expect(',', "expected ',' or ']' behind an event");
    SkipSpace();
    if (AtEnd() || At(']')) return std::nullopt;
  }
  mFirst = false;
  if (!At('{')) Fail("expected a trace event");
  const std::size_t start = mAt;
  SkipValue();
  return mText.substr(start, mAt - start);
}

void EventScanner::FindTraceEvents() {
  ++mAt;
  while (true) {
    SkipSpace();
    if (AtEnd() || At('}')) Fail("it has no \"traceEvents\"");
    const std::string_view key = ReadKey();
    SkipSpace();
    if (key == "\"traceEvents\"") return;
    SkipValue();
    SkipSpace();
    if (!AtEnd() && !At('}')) Expect(',', "expected ',' or '}'");
  }
}

// The key with its quotes; the text stands behind its colon afterwards.
std::string_view EventScanner::ReadKey() {
  if (!At('"')) Fail("expected a name in quotes");
  const std::size_t start = mAt;
  SkipString();
  const std::string_view key = mText.substr(start, mAt - start);
  SkipSpace();
  Expect(':', "expected ':'");
  return key;
}

void EventScanner::SkipSpace() {
  const std::size_t next = mText.find_first_not_of(" \t\r\n", mAt);
  mAt = next == std::string_view::npos ? mText.size() : next;
}

void EventScanner::SkipString() {
  for (++mAt; !AtEnd(); ++mAt) {
    if (At('\\')) {
      ++mAt;
    } else if (At('"')) {
      ++mAt;
      return;
    }
  }
  mAt = mText.size();
  Fail("the file ends inside a text");
}

// Goes behind a value by its brackets alone; what is in it is checked when it is parsed.
void EventScanner::SkipValue() {
  std::size_t depth = 0;
  do {
    const std::size_t next = mText.find_first_of("\"[]{},", mAt);
    if (next == std::string_view::npos) {
      mAt = mText.size();
      Fail("the file ends inside an event");
    }
    mAt = next;
    if (At('"')) {
      SkipString();
      continue;
    }
    const bool closes = At(']') || At('}');
    if (depth == 0 && (closes || At(','))) return;  // the end of a plain value
    if (closes) --depth;
    if (At('[') || At('{')) ++depth;
    ++mAt;
  } while (depth > 0);
}

void EventScanner::Expect(char CharA, const char* WhatA) {
  if (!At(CharA)) Fail(AtEnd() ? "the file ends too early" : WhatA);
  ++mAt;
}

void EventScanner::Fail(const char* ReasonA) const {
  throw ReadError(PlaceInText(mText, mAt), ReasonA);
}

}  // namespace mur::viewer
