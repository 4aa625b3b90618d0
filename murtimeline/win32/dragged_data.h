#pragma once

#include <vector>

#include <murtimeline/automation/object.h>
#include <murtimeline/automation/string.h>
#include <murtimeline/win32/platform.h>

namespace mur::win32 {

/// What a drag brings: the Data argument of the drag and drop events. It can be read while such an event
/// lasts; whoever keeps it longer finds it empty.
class DraggedData final : public Object {
 public:
  /// Whether the event lasts.
  bool IsValid() const { return mSource != nullptr; }
  /// The platform's own object; null once the event is over.
  IDataObject* Source() const { return mSource; }

  String Text() const;
  /// The paths of the files that are dragged.
  std::vector<String> Files() const;
  /// Clipboard formats.
  std::vector<CLIPFORMAT> Formats() const;
  bool Has(CLIPFORMAT FormatA) const;
  /// The bytes of one of the formats; empty for another one.
  std::vector<std::byte> Bytes(CLIPFORMAT FormatA) const;

  void Open(IDataObject* SourceA) { mSource = SourceA; }
  void Close() { mSource = nullptr; }

 private:
  IDataObject* mSource = nullptr;
};

}  // namespace mur::win32
