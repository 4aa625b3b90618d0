#include "viewer/window/appearance_panel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QSpinBox>
#include <QStyle>
#include <QVBoxLayout>

#include <murtimeline/qt/conversions.h>

#include "viewer/window/appearance_settings.h"
#include "viewer/window/color_button.h"

namespace mur::viewer {
namespace {

constexpr int kSmallField = 92;
constexpr int kMostPixels = 200;
constexpr float kUsualHeight = 26;

constexpr const char* kKindNames[kBarKinds] = {"Tracks",      "Audio tracks", "Nested groups", "Clips",
                                               "Audio clips", "Subtitles",    "Transitions"};
constexpr const char* kCaptionNames[] = {"None",   "Children", "Parent", "Duration",    "Start",     "End",
                                         "Offset", "Locked",   "Tag",    "Object type", "Group type"};
constexpr const char* kStyleNames[] = {"Seconds",  "mm:ss",          "hh:mm:ss", "hh:mm:ss.mmm",
                                       "Timecode", "Days, hh:mm:ss", "Frames"};

OleColor UsualFill(BarKind KindA, const Scheme& SchemeA) {
  switch (KindA) {
    case BarKind::Track:
      return SchemeA.track.back;
    case BarKind::AudioTrack:
      return SchemeA.audioTrack.back;
    case BarKind::Nested:
      return SchemeA.nested.back;
    case BarKind::Clip:
      return kVideoColors.back;
    case BarKind::AudioClip:
      return kAudioColors.back;
    case BarKind::Subtitle:
      return kSubtitleColors.back;
    case BarKind::Transition:
      break;
  }
  return kTransitionColors.back;
}

void Select(QComboBox& BoxA, int DataA) {
  if (BoxA.findData(DataA) < 0) BoxA.addItem(QStringLiteral("Style %1").arg(DataA), DataA);
  BoxA.setCurrentIndex(BoxA.findData(DataA));
}

}  // namespace

AppearancePanel::AppearancePanel(const Appearance& AppearanceA, QWidget* ParentA)
    : QDockWidget(QStringLiteral("Appearance"), ParentA), mChosen(AppearanceA) {
  setObjectName(QStringLiteral("appearancePanel"));
  auto* body = new QWidget;
  auto* column = new QVBoxLayout(body);
  for (QWidget* part : {MakeColors(), MakeCaptions(), MakeFormats(), MakeHeights()}) column->addWidget(part);
  auto* reset = new QPushButton(QStringLiteral("Reset to Defaults"));
  reset->setObjectName(QStringLiteral("resetAppearance"));
  connect(reset, &QPushButton::clicked, this, &AppearancePanel::Reset);
  column->addWidget(reset, 0, Qt::AlignLeft);
  column->addStretch();
  auto* area = new QScrollArea;
  area->setWidget(body);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setMinimumWidth(body->minimumSizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent));
  setWidget(area);
  ShowChosen();
  mIsShowing = false;
}

QWidget* AppearancePanel::MakeColors() {
  auto* box = new QGroupBox(QStringLiteral("Colours"));
  auto* form = new QFormLayout(box);
  const auto add = [&](const QString& caption, const char* name, auto apply) {
    auto* button = new ColorButton(caption.toLower());
    button->setObjectName(QLatin1String(name));
    connect(button, &ColorButton::Chosen, this, [this, apply](OleColor color) {
      apply(color);
      ShowColors();
      Q_EMIT Changed();
    });
    form->addRow(caption, button);
    return button;
  };
  for (std::size_t kind = 0; kind < kBarKinds; ++kind)
    mFills[kind] = add(QLatin1String(kKindNames[kind]), SettingName(static_cast<BarKind>(kind)),
                       [this, kind](OleColor color) { mChosen.fills[kind] = color; });
  mSelection =
      add(QStringLiteral("Selection"), "selection", [this](OleColor color) { mChosen.selection = color; });
  return box;
}

// Nine boxes that lie as the captions lie on a bar.
QWidget* AppearancePanel::MakeCaptions() {
  constexpr std::size_t kColumns = 3;
  auto* box = new QGroupBox(QStringLiteral("Captions on a bar"));
  auto* grid = new QGridLayout(box);
  for (std::size_t site = 0; site < kCaptionSites; ++site) {
    auto* choice = new QComboBox;
    choice->setObjectName(QStringLiteral("caption%1").arg(site + 1));
    choice->setAccessibleName(QStringLiteral("Caption at site %1").arg(site + 1));
    choice->setMinimumContentsLength(7);
    choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    int type = 0;
    for (const char* name : kCaptionNames) choice->addItem(QLatin1String(name), type++);
    connect(choice, &QComboBox::currentIndexChanged, this, &AppearancePanel::Take);
    grid->addWidget(choice, static_cast<int>(site / kColumns), static_cast<int>(site % kColumns));
    mCaptions[site] = choice;
  }
  return box;
}

QWidget* AppearancePanel::MakeFormats() {
  auto* box = new QGroupBox(QStringLiteral("Times"));
  auto* form = new QFormLayout(box);
  mWorldTime = AddFormat(*form, "worldTime", QStringLiteral("World time"), false);
  mDuration = AddFormat(*form, "duration", QStringLiteral("Duration"), false);
  mTimeScale = AddFormat(*form, "timeScale", QStringLiteral("Time scale"), true);
  return box;
}

AppearancePanel::FormatFields AppearancePanel::AddFormat(QFormLayout& FormA, const char* NameA,
                                                         const QString& CaptionA, bool HasUsualA) {
  FormatFields fields{new QLineEdit, new QComboBox};
  fields.text->setObjectName(QLatin1String(NameA) + QLatin1String("Format"));
  fields.text->setPlaceholderText(QStringLiteral("Format"));
  fields.text->setToolTip(QStringLiteral("A format such as hh:nn:ss; where it is empty, the style decides"));
  fields.text->setMinimumWidth(kSmallField);
  fields.style->setObjectName(QLatin1String(NameA) + QLatin1String("Style"));
  if (HasUsualA) fields.style->addItem(QStringLiteral("As the file"), -1);
  int style = 0;
  for (const char* name : kStyleNames) fields.style->addItem(QLatin1String(name), style++);
  connect(fields.text, &QLineEdit::textChanged, this, &AppearancePanel::Take);
  connect(fields.style, &QComboBox::currentIndexChanged, this, &AppearancePanel::Take);
  auto* row = new QHBoxLayout;
  row->addWidget(fields.text);
  row->addWidget(fields.style);
  FormA.addRow(CaptionA, row);
  return fields;
}

QWidget* AppearancePanel::MakeHeights() {
  auto* box = new QGroupBox(QStringLiteral("Rows"));
  auto* form = new QFormLayout(box);
  mFitHeight = new QCheckBox(QStringLiteral("Fit bars to the window"));
  mFitHeight->setObjectName(QStringLiteral("fitHeight"));
  connect(mFitHeight, &QCheckBox::toggled, this, &AppearancePanel::Take);
  form->addRow(mFitHeight);
  mBarHeight = AddPixels(*form, "barHeight", QStringLiteral("Bar height"));
  mBarHeight->setMinimum(1);
  mBarSeparation = AddPixels(*form, "barSeparation", QStringLiteral("Gap between bars"));
  mTrackSeparation = AddPixels(*form, "trackSeparation", QStringLiteral("Gap between tracks"));
  return box;
}

QSpinBox* AppearancePanel::AddPixels(QFormLayout& FormA, const char* NameA, const QString& CaptionA) {
  auto* field = new QSpinBox;
  field->setObjectName(QLatin1String(NameA));
  field->setMaximum(kMostPixels);
  field->setSuffix(QStringLiteral(" px"));
  connect(field, &QSpinBox::valueChanged, this, &AppearancePanel::Take);
  FormA.addRow(CaptionA, field);
  return field;
}

void AppearancePanel::SetScheme(const Scheme& SchemeA) {
  mScheme = SchemeA;
  ShowColors();
}

void AppearancePanel::Reset() {
  mChosen = {};
  ShowChosen();
  Q_EMIT Changed();
}

void AppearancePanel::ShowColors() {
  for (std::size_t kind = 0; kind < kBarKinds; ++kind)
    mFills[kind]->SetColor(mChosen.fills[kind], UsualFill(static_cast<BarKind>(kind), mScheme));
  mSelection->SetColor(mChosen.selection, kSelectedColor);
}

void AppearancePanel::ShowChosen() {
  const QScopedValueRollback showing(mIsShowing, true);
  ShowColors();
  for (std::size_t site = 0; site < kCaptionSites; ++site) Select(*mCaptions[site], mChosen.captions[site]);
  const auto show = [](const FormatFields& fields, const TimeFormat& format) {
    fields.text->setText(qt::ToQString(format.text));
    Select(*fields.style, format.style);
  };
  show(mWorldTime, mChosen.worldTime);
  show(mDuration, mChosen.duration);
  show(mTimeScale, mChosen.timeScale.value_or(TimeFormat{{}, -1}));
  mTimeScale.text->setEnabled(mChosen.timeScale.has_value());
  mFitHeight->setChecked(!mChosen.barHeight);
  mBarHeight->setEnabled(mChosen.barHeight.has_value());
  mBarHeight->setValue(static_cast<int>(mChosen.barHeight.value_or(kUsualHeight)));
  mBarSeparation->setValue(static_cast<int>(mChosen.barSeparation));
  mTrackSeparation->setValue(static_cast<int>(mChosen.trackSeparation));
}

void AppearancePanel::Take() {
  if (mIsShowing) return;
  for (std::size_t site = 0; site < kCaptionSites; ++site)
    mChosen.captions[site] = mCaptions[site]->currentData().toInt();
  const auto taken = [](const FormatFields& fields) {
    return TimeFormat{qt::ToString(fields.text->text()), fields.style->currentData().toInt()};
  };
  mChosen.worldTime = taken(mWorldTime);
  mChosen.duration = taken(mDuration);
  const TimeFormat scale = taken(mTimeScale);
  mChosen.timeScale = scale.style < 0 ? std::nullopt : std::optional(scale);
  mTimeScale.text->setEnabled(mChosen.timeScale.has_value());
  mBarHeight->setEnabled(!mFitHeight->isChecked());
  mChosen.barHeight =
      mFitHeight->isChecked() ? std::nullopt : std::optional(static_cast<float>(mBarHeight->value()));
  mChosen.barSeparation = static_cast<float>(mBarSeparation->value());
  mChosen.trackSeparation = static_cast<float>(mTrackSeparation->value());
  Q_EMIT Changed();
}

}  // namespace mur::viewer
