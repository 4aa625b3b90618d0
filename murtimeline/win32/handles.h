#pragma once

#include <utility>

#include <murtimeline/win32/platform.h>

namespace mur::win32 {

/// Owns a handle of the platform; `Close` is how it is given back.
template <class T, auto Close>
class UniqueHandle {
 public:
  UniqueHandle() = default;
  explicit UniqueHandle(T HandleA) : mHandle(HandleA) {}
  UniqueHandle(UniqueHandle&& OtherA) noexcept : mHandle(std::exchange(OtherA.mHandle, nullptr)) {}
  UniqueHandle& operator=(UniqueHandle OtherA) noexcept {
    std::swap(mHandle, OtherA.mHandle);
    return *this;
  }
  ~UniqueHandle() {
    if (mHandle) Close(mHandle);
  }

  T Get() const { return mHandle; }
  /// Gives the handle up without closing it.
  T Release() { return std::exchange(mHandle, nullptr); }
  explicit operator bool() const { return mHandle != nullptr; }

 private:
  T mHandle = nullptr;
};

using UniqueFont = UniqueHandle<HFONT, DeleteObject>;
using UniqueBitmap = UniqueHandle<HBITMAP, DeleteObject>;
using UniquePen = UniqueHandle<HPEN, DeleteObject>;
using UniqueBrush = UniqueHandle<HBRUSH, DeleteObject>;
using UniqueRegion = UniqueHandle<HRGN, DeleteObject>;
using UniqueDevice = UniqueHandle<HDC, DeleteDC>;

/// Puts an object into a device context while it lives.
class Selected {
 public:
  Selected(HDC DeviceA, HGDIOBJ ObjectA) : mDevice(DeviceA), mBefore(SelectObject(DeviceA, ObjectA)) {}
  ~Selected() { SelectObject(mDevice, mBefore); }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC mDevice;
  HGDIOBJ mBefore;
};

}  // namespace mur::win32
