#pragma once

#include <murtimeline/com/call.h>
#include <murtimeline/com/dispatcher.h>
#include <murtimeline/model/render_config.h>

namespace mur::com {

/// The colours of one kind of objects as hosts see them.
class RenderConfigFace final : public Face<DispatchOn<ComRenderConfig>> {
 public:
  explicit RenderConfigFace(CMURTLRenderConfig& ConfigA)
      : Face(ConfigA, __uuidof(::CMURTLRenderConfig)), mConfig(ConfigA) {}

  STDMETHODIMP get_ForeColor(long* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mConfig.ForeColor(); });
  }
  STDMETHODIMP put_ForeColor(long ValueA) noexcept override {
    return Guarded([&] { mConfig.SetForeColor(TakenColor(ValueA)); });
  }
  STDMETHODIMP get_BackColor(long* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mConfig.BackColor(); });
  }
  STDMETHODIMP put_BackColor(long ValueA) noexcept override {
    return Guarded([&] { mConfig.SetBackColor(TakenColor(ValueA)); });
  }
  STDMETHODIMP get_HighlightColor(long* ValueA) noexcept override {
    return Answer(ValueA, [&] { return mConfig.HighlightColor(); });
  }
  STDMETHODIMP put_HighlightColor(long ValueA) noexcept override {
    return Guarded([&] { mConfig.SetHighlightColor(TakenColor(ValueA)); });
  }

 private:
  CMURTLRenderConfig& mConfig;
};

}  // namespace mur::com
