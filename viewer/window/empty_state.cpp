#include "viewer/window/empty_state.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "viewer/window/icons.h"

namespace mur::viewer {
namespace {

constexpr int kPictogram = 72;
constexpr double kHeadline = 1.6;  // times the usual font size

// A picture drawn anew at each paint, so that it follows the palette and the screen.
class Pictogram final : public QWidget {
 public:
  Pictogram() { setFixedSize(kPictogram, kPictogram); }

 protected:
  void paintEvent(QPaintEvent* /*EventA*/) override {
    QPainter painter(this);
    constexpr double kFaint = 0.55;
    painter.setOpacity(kFaint);
    MakeIcon(Symbol::Timeline).paint(&painter, rect());
  }
};

QLabel* MakeLabel(const QString& TextA, double SizeA) {
  auto* label = new QLabel(TextA);
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * SizeA);
  label->setFont(font);
  label->setAlignment(Qt::AlignCenter);
  return label;
}

}  // namespace

EmptyState::EmptyState() {
  auto* open = new QPushButton(MakeIcon(Symbol::Open), QStringLiteral("Open a File\u2026"));
  open->setObjectName(QStringLiteral("openFile"));
  connect(open, &QPushButton::clicked, this, &EmptyState::OpenWanted);

  auto* column = new QVBoxLayout(this);
  column->setSpacing(12);
  column->addStretch();
  column->addWidget(new Pictogram, 0, Qt::AlignHCenter);
  column->addWidget(MakeLabel(QStringLiteral("Drop a file here"), kHeadline));
  column->addWidget(
      MakeLabel(QStringLiteral("An edit (.otio), a trace (.json) or subtitles (.srt, .vtt)"), 1));
  column->addSpacing(4);
  column->addWidget(open, 0, Qt::AlignHCenter);
  column->addStretch();
}

}  // namespace mur::viewer
