#pragma once

#include <QToolButton>
#include <optional>

#include <murtimeline/automation/color.h>

namespace mur::viewer {

/// Shows a colour and lets the user choose another one.
class ColorButton final : public QToolButton {
  Q_OBJECT

 public:
  explicit ColorButton(const QString& NameA);

  /// `UsualA` is shown while none is chosen.
  void SetColor(std::optional<OleColor> ChosenA, OleColor UsualA);

 Q_SIGNALS:
  void Chosen(mur::OleColor color);

 private:
  void Choose();

  OleColor mShown = 0;
};

}  // namespace mur::viewer
