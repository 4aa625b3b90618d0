#include <murtimeline/com/embedding/embedding.h>

namespace mur::com {

struct Embedding::Parts {};

Embedding::Embedding(IUnknown& /*IdentityA*/, MURTimelineRender& /*ControlA*/,
                     win32::TimelineWindow& /*WindowA*/)
    : mParts(std::make_unique<Parts>()) {}

Embedding::~Embedding() = default;

IUnknown* Embedding::Find(REFIID /*InterfaceA*/) noexcept {
  return nullptr;
}

}  // namespace mur::com
