#pragma once

#include <murtimeline/com/timeline_object_face.h>
#include <murtimeline/model/timeline_media.h>

namespace mur::com {

/// A media clip as hosts see it.
class TimelineMediaFace final : public TimelineObjectFace<::_CMURTimelineMedia> {
 public:
  explicit TimelineMediaFace(CMURTimelineMedia& MediaA)
      : TimelineObjectFace(MediaA, __uuidof(::CMURTimelineMedia)), mMedia(MediaA) {}

  STDMETHODIMP get_MediaFilename(BSTR* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mMedia.MediaFilename(); });
  }
  STDMETHODIMP put_MediaFilename(BSTR ValueA) noexcept override {
    return Guarded([&] { mMedia.SetMediaFilename(Taken(ValueA)); });
  }
  STDMETHODIMP get_MediaDuration(double* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mMedia.MediaDuration(); });
  }
  STDMETHODIMP put_MediaDuration(double ValueA) noexcept override {
    return Guarded([&] { mMedia.SetMediaDuration(ValueA); });
  }
  STDMETHODIMP get_CutIn(double* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mMedia.CutIn(); });
  }
  STDMETHODIMP put_CutIn(double ValueA) noexcept override {
    return Guarded([&] { mMedia.SetCutIn(ValueA); });
  }
  STDMETHODIMP get_CutOut(double* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mMedia.CutOut(); });
  }
  STDMETHODIMP put_CutOut(double ValueA) noexcept override {
    return Guarded([&] { mMedia.SetCutOut(ValueA); });
  }
  STDMETHODIMP get_UseClipping(VARIANT_BOOL* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mMedia.UseClipping(); });
  }
  STDMETHODIMP put_UseClipping(VARIANT_BOOL ValueA) noexcept override {
    return Guarded([&] { mMedia.SetUseClipping(Taken(ValueA)); });
  }

 private:
  CMURTimelineMedia& mMedia;
};

}  // namespace mur::com
