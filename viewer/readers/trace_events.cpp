#include "viewer/readers/trace_events.h"

#include <algorithm>
#include <cmath>

#include "viewer/readers/event_scanner.h"
#include "viewer/readers/lenient_json.h"

namespace mur::viewer {
namespace {

// A number, or a text that is one; NaN otherwise.
double NumberOf(const QJsonValue& ValueA) {
  if (!ValueA.isString()) return ValueA.toDouble(NAN);
  bool isNumber = false;
  const double number = ValueA.toString().toDouble(&isNumber);
  return isNumber ? number : NAN;
}

// Process and thread numbers may be any number or text.
QString IdOf(const QJsonValue& ValueA) {
  if (ValueA.isString()) return ValueA.toString();
  const double number = ValueA.toDouble();
  const qint64 whole = ValueA.toInteger();
  return static_cast<double>(whole) == number ? QString::number(whole) : QString::number(number, 'f', 0);
}

}  // namespace

void TraceEvents::Read(std::string_view TextA, Progress& ProgressA) {
  EventScanner scanner(TextA);
  while (const auto event = scanner.Next()) {
    Take(ParseLenientJson(TextA, *event).object());
    ProgressA.Report(scanner.Offset(), TextA.size());
  }
}

void TraceEvents::Take(const QJsonObject& EventA) {
  const QString phase = EventA[u"ph"].toString();
  if (phase == QLatin1String("X"))
    TakeSlice(EventA, SliceEvent::Kind::Complete);
  else if (phase == QLatin1String("B"))
    TakeSlice(EventA, SliceEvent::Kind::Begin);
  else if (phase == QLatin1String("E"))
    TakeSlice(EventA, SliceEvent::Kind::End);
  else if (phase == QLatin1String("M"))
    TakeName(EventA);
  else
    ++mOtherEvents;
}

void TraceEvents::TakeSlice(const QJsonObject& EventA, SliceEvent::Kind KindA) {
  const double start = NumberOf(EventA[u"ts"]);
  const double length = KindA == SliceEvent::Kind::Complete ? NumberOf(EventA[u"dur"]) : 0;
  if (!std::isfinite(start) || std::isinf(length)) {
    ++mUnusableEvents;
    return;
  }
  const double end = start + (length > 0 ? length : 0);
  mFirst = std::min(mFirst, start);
  mLast = std::max(mLast, end);
  ThreadOf(EventA).events.push_back({KindA, {start, end, NameIndex(EventA[u"name"].toString())}});
}

void TraceEvents::TakeName(const QJsonObject& EventA) {
  const QString what = EventA[u"name"].toString();
  const QString name = EventA[u"args"].toObject()[u"name"].toString();
  if (what == QLatin1String("process_name")) ProcessOf(EventA).name = name;
  if (what == QLatin1String("thread_name")) ThreadOf(EventA).name = name;
}

TraceProcess& TraceEvents::ProcessOf(const QJsonObject& EventA) {
  const QString id = IdOf(EventA[u"pid"]);
  if (!mProcessById.contains(id)) {
    mProcessById.insert(id, mProcesses.size());
    mProcesses.push_back({id, {}, {}, {}});
  }
  return mProcesses[mProcessById.value(id)];
}

TraceThread& TraceEvents::ThreadOf(const QJsonObject& EventA) {
  TraceProcess& process = ProcessOf(EventA);
  const QString id = IdOf(EventA[u"tid"]);
  if (!process.threadById.contains(id)) {
    process.threadById.insert(id, process.threads.size());
    process.threads.push_back({id, {}, {}});
  }
  return process.threads[process.threadById.value(id)];
}

std::size_t TraceEvents::NameIndex(const QString& NameA) {
  const auto known = mNameIndex.constFind(NameA);
  if (known != mNameIndex.constEnd()) return *known;
  mNameIndex.insert(NameA, mNames.size());
  mNames.push_back(NameA.toStdU16String());
  return mNames.size() - 1;
}

}  // namespace mur::viewer
