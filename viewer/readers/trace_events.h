#pragma once

#include <QHash>
#include <QJsonObject>
#include <limits>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <murtimeline/automation/string.h>

#include "viewer/readers/progress.h"
#include "viewer/readers/trace_slices.h"

namespace mur::viewer {

struct TraceThread {
  QString id, name;
  std::vector<SliceEvent> events;
};

struct TraceProcess {
  QString id, name;
  std::vector<TraceThread> threads;  // in the order of their first event
  QHash<QString, std::size_t> threadById;
};

/// All events of a trace, sorted by process and thread. Times are microseconds.
class TraceEvents {
 public:
  /// Throws ReadError.
  void Read(std::string_view TextA, Progress& ProgressA);

  std::vector<TraceProcess>& Processes() { return mProcesses; }
  const String& Name(std::size_t IndexA) const { return mNames[IndexA]; }
  double First() const { return mFirst; }
  double Last() const { return mLast; }
  bool HasSlices() const { return mFirst <= mLast; }
  std::size_t OtherEvents() const { return mOtherEvents; }
  std::size_t UnusableEvents() const { return mUnusableEvents; }

 private:
  void Take(const QJsonObject& EventA);
  void TakeSlice(const QJsonObject& EventA, SliceEvent::Kind KindA);
  void TakeName(const QJsonObject& EventA);
  TraceProcess& ProcessOf(const QJsonObject& EventA);
  TraceThread& ThreadOf(const QJsonObject& EventA);
  std::size_t NameIndex(const QString& NameA);

  std::vector<TraceProcess> mProcesses;  // in the order of their first event
  QHash<QString, std::size_t> mProcessById;
  std::vector<String> mNames;
  QHash<QString, std::size_t> mNameIndex;
  double mFirst = std::numeric_limits<double>::infinity();
  double mLast = -std::numeric_limits<double>::infinity();
  std::size_t mOtherEvents = 0, mUnusableEvents = 0;
};

}  // namespace mur::viewer
