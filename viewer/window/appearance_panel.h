#pragma once

#include <QDockWidget>
#include <array>

#include "viewer/appearance.h"
#include "viewer/scheme.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

namespace mur::viewer {

class ColorButton;

/// Lets the user choose colours, captions, formats and heights. Every choice is told at once.
class AppearancePanel final : public QDockWidget {
  Q_OBJECT

 public:
  AppearancePanel(const Appearance& AppearanceA, QWidget* ParentA);

  const Appearance& Chosen() const { return mChosen; }
  /// The colours that show where none was chosen.
  void SetScheme(const Scheme& SchemeA);
  void Reset();

 Q_SIGNALS:
  void Changed();

 private:
  // A format's two fields.
  struct FormatFields {
    QLineEdit* text = nullptr;
    QComboBox* style = nullptr;
  };

  QWidget* MakeColors();
  QWidget* MakeCaptions();
  QWidget* MakeFormats();
  QWidget* MakeHeights();
  FormatFields AddFormat(QFormLayout& FormA, const char* NameA, const QString& CaptionA, bool HasUsualA);
  QSpinBox* AddPixels(QFormLayout& FormA, const char* NameA, const QString& CaptionA);
  void ShowChosen();
  void ShowColors();
  void Take();

  Appearance mChosen;
  Scheme mScheme = kLightScheme;
  bool mIsShowing = true;  // the fields are being made or filled
  std::array<ColorButton*, kBarKinds> mFills{};
  ColorButton* mSelection = nullptr;
  std::array<QComboBox*, kCaptionSites> mCaptions{};
  FormatFields mWorldTime, mDuration, mTimeScale;
  QCheckBox* mFitHeight = nullptr;
  QSpinBox* mBarHeight = nullptr;
  QSpinBox* mBarSeparation = nullptr;
  QSpinBox* mTrackSeparation = nullptr;
};

}  // namespace mur::viewer
