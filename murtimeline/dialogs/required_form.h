#pragma once

#include <memory>
#include <utility>

#include <murtimeline/automation/error.h>

namespace mur {

/// The form that a factory made; throws ObjectNotSet when it made none.
template <class Form>
std::unique_ptr<Form> RequiredForm(std::unique_ptr<Form> FormA) {
  if (!FormA) throw AutomationError(ErrorCode::ObjectNotSet);
  return FormA;
}

}  // namespace mur
