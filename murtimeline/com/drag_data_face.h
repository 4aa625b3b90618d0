#pragma once

#include <murtimeline/com/call.h>
#include <murtimeline/com/dispatcher.h>
#include <murtimeline/win32/dragged_data.h>

namespace mur::com {

/// What is dragged, as hosts see it. Clipboard formats that programs register are negative numbers.
class DragDataFace final : public Face<DispatchOn<ComDragData>> {
 public:
  explicit DragDataFace(win32::DraggedData& DataA) : Face(DataA, CLSID_NULL), mData(DataA) {}

  STDMETHODIMP GetFormat(short FormatA, VARIANT_BOOL* ResultA) noexcept override;
  STDMETHODIMP GetData(short FormatA, VARIANT* ResultA) noexcept override;

 private:
  win32::DraggedData& mData;
};

}  // namespace mur::com
