#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <QUrl>

#include <murtimeline/automation/export.h>
#include <murtimeline/automation/object.h>

class QMimeData;

namespace mur::qt {

/// What a drag brings: the Data argument of the drag and drop events. It can be read while such an event
/// lasts; whoever keeps it longer finds it empty.
class MUR_API DraggedData final : public Object {
 public:
  /// Whether the event lasts.
  bool IsValid() const { return mData != nullptr; }
  QString Text() const;
  QStringList Formats() const;
  /// The bytes of one of the formats; empty for another one.
  QByteArray Bytes(const QString& FormatA) const;
  QList<QUrl> Urls() const;

  void Open(const QMimeData* DataA) { mData = DataA; }
  void Close() { mData = nullptr; }

 private:
  const QMimeData* mData = nullptr;
};

/// The format of a dragged bar: its key, start (days) and duration (seconds), one line each.
inline constexpr const char* kBarFormat = "application/x-murtimeline-object";

}  // namespace mur::qt
