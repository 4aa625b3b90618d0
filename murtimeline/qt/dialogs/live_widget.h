#pragma once

#include <QPointer>

#include <murtimeline/automation/error.h>

namespace mur::qt {

/// The widget; throws ObjectNotSet when it is gone.
template <class Widget>
Widget& LiveWidget(const QPointer<Widget>& WidgetA) {
  if (!WidgetA) throw AutomationError(ErrorCode::ObjectNotSet);
  return *WidgetA;
}

}  // namespace mur::qt
