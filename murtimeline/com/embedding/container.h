#pragma once

#include <murtimeline/com/embedding/ambient.h>

namespace mur::com {

/// The container as the control sees it: the site that it gave. Whatever a site lacks or refuses is done
/// without.
class Container {
 public:
  const Ref<IOleClientSite>& Site() const noexcept { return mSite; }
  void SetSite(IOleClientSite* SiteA) { mSite = Ref(SiteA); }

  template <class Interface>
  Ref<Interface> As() const {
    return Query<Interface>(mSite.Get());
  }

  void TellFocus(bool HasA) const {
    if (const auto site = As<IOleControlSite>()) site->OnFocus(HasA);
  }
  /// Asks for the control to be scrolled into view.
  void ShowObject() const {
    if (const auto site = mSite) site->ShowObject();
  }
  /// Offers a key that the control has no use for. S_FALSE when the container has none either.
  HRESULT TranslateKey(MSG& MessageA, DWORD ModifiersA) const {
    const auto site = As<IOleControlSite>();
    return site ? site->TranslateAccelerator(&MessageA, ModifiersA) : S_FALSE;
  }

 private:
  Ref<IOleClientSite> mSite;
};

}  // namespace mur::com
