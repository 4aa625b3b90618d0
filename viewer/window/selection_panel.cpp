#include "viewer/window/selection_panel.h"

#include <QFontDatabase>
#include <QPlainTextEdit>

#include <murtimeline/automation/error.h>
#include <murtimeline/qt/conversions.h>

namespace mur::viewer {
namespace {

constexpr QSize kUsualSize(340, 400);
constexpr int kMargin = 8;

// A dump cannot list more children than 16 bits can count.
QString DumpOf(const IMURTimelineObject& ObjectA) {
  try {
    return qt::ToQString(ObjectA.AsString({}));
  } catch (const AutomationError& error) {
    return QStringLiteral("%1\n\nThis object has too many parts to list them here: %2.")
        .arg(qt::ToQString(ObjectA.Key()), QString::fromUtf8(error.what()));
  }
}

// A text area that asks for a column beside the time line, not for half of the window.
class DumpView final : public QPlainTextEdit {
 public:
  QSize sizeHint() const override { return kUsualSize; }
};

}  // namespace

SelectionPanel::SelectionPanel(QWidget* ParentA)
    : QDockWidget(QStringLiteral("Selected Object"), ParentA), mText(new DumpView) {
  setObjectName(QStringLiteral("selectionPanel"));
  mText->setReadOnly(true);
  mText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  mText->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  mText->setLineWrapMode(QPlainTextEdit::NoWrap);
  mText->setFrameShape(QFrame::NoFrame);
  mText->document()->setDocumentMargin(kMargin);
  mText->setPlaceholderText(QStringLiteral("Click a bar to see its object here."));
  setWidget(mText);
}

void SelectionPanel::Show(const IMURTimelineObject* ObjectA) {
  mText->setPlainText(ObjectA ? DumpOf(*ObjectA) : QString());
}

}  // namespace mur::viewer
