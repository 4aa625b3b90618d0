#include <QApplication>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <algorithm>

#include <murtimeline/automation/error.h>
#include <murtimeline/qt/dialogs/default_icon.h>
#include <murtimeline/qt/dialogs/dialog_window.h>
#include <murtimeline/qt/dialogs/icon_box.h>

namespace mur::qt {
namespace {

constexpr int kMargin = 16, kGap = 8;  // logical pixels

// The font that dialogs ask for; where it is missing, the platform's own.
QFont DialogFont() {
  QFont font = QApplication::font();
  font.setFamilies(QStringList{"MS Sans Serif"} + font.families());
  return font;
}

QFont TitleFont(QFont FontA) {
  constexpr double kEnlargement = 1.2;
  FontA.setBold(true);
  FontA.setPointSizeF(FontA.pointSizeF() * kEnlargement);
  return FontA;
}

// A label for a text of the program's, shown as it is.
QLabel* NewText(const char* NameA, QWidget* ParentA) {
  auto* const label = new QLabel(ParentA);
  label->setObjectName(NameA);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

}  // namespace

DialogWindow::DialogWindow(QWidget* OwnerA)
    : QDialog(OwnerA ? OwnerA->window() : nullptr),
      mPanel(new QWidget(this)),
      mFields(new QGridLayout(mPanel)),
      mButtons(new QDialogButtonBox(this)) {
  setWindowTitle("Varox");
  setFont(DialogFont());
  if (windowIcon().isNull()) setWindowIcon(DefaultIcon());
  if (OwnerA) connect(OwnerA, &QObject::destroyed, this, &DialogWindow::Abandon);

  mPanel->setObjectName("Picture2");
  mFields->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  mFields->setHorizontalSpacing(kGap);
  mFields->setVerticalSpacing(kGap);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(NewHeader());
  layout->addWidget(mPanel, 1);
  layout->addWidget(mButtons);
  mButtons->setContentsMargins(kMargin, 0, kMargin, kMargin);
  AddButtons();
}

QWidget* DialogWindow::NewHeader() {
  auto* const header = new QWidget(this);
  header->setObjectName("picCanvas");
  header->setAutoFillBackground(true);
  header->setBackgroundRole(QPalette::Base);
  auto* const icon = new IconBox(header);
  icon->setObjectName("picIcon");
  mTitle = NewText("lblTitle", header);
  mTitle->setFont(TitleFont(font()));
  mCommentary = NewText("lblCommentary", header);
  for (QLabel* const label : {mTitle, mCommentary}) label->setForegroundRole(QPalette::Text);

  auto* const grid = new QGridLayout(header);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setHorizontalSpacing(kMargin);
  grid->setVerticalSpacing(kGap / 2);
  grid->addWidget(icon, 0, 0, 2, 1, Qt::AlignTop);
  grid->addWidget(mTitle, 0, 1);
  grid->addWidget(mCommentary, 1, 1);
  grid->setColumnStretch(1, 1);
  return header;
}

void DialogWindow::FitHeader() {
  constexpr int kWidest = 480;  // logical pixels
  for (QLabel* const label : {mTitle, mCommentary}) {
    const int needed = label->fontMetrics().horizontalAdvance(label->text()) + 1;
    label->setMinimumWidth(std::min(needed, kWidest));
  }
}

// By their roles the buttons stand in the platform's order.
void DialogWindow::AddButtons() {
  constexpr std::array kRoles = {QDialogButtonBox::RejectRole, QDialogButtonBox::AcceptRole,
                                 QDialogButtonBox::HelpRole};
  for (int index = 1; index <= IDialogWindow::kSystemButtons; ++index) {
    const auto place = static_cast<std::size_t>(index - 1);
    QPushButton* const button = mButtons->addButton(QString(), kRoles[place]);
    button->setObjectName(QString("bSystem%1").arg(index));
    connect(button, &QPushButton::clicked, this, [this, index] { Q_EMIT systemClicked(index); });
    mSystemButtons[place] = button;
  }
}

QLabel* DialogWindow::NewCaption(const QString& NameA, const QString& TextA, QWidget& FieldA) {
  auto* const label = new QLabel(TextA, mPanel);
  label->setObjectName(NameA);
  label->setBuddy(&FieldA);
  FieldA.setAccessibleName(TextA);
  return label;
}

void DialogWindow::ChainFocus(const std::vector<QWidget*>& FieldsA) {
  std::vector<QWidget*> chain = FieldsA;
  for (int place = 0; place < mButtons->layout()->count(); ++place)
    if (auto* const button = qobject_cast<QPushButton*>(mButtons->layout()->itemAt(place)->widget()))
      chain.push_back(button);
  for (std::size_t next = 1; next < chain.size(); ++next) setTabOrder(chain[next - 1], chain[next]);
}

QPushButton& DialogWindow::SystemButton(int IndexA) const {
  if (IndexA < 1 || IndexA > IDialogWindow::kSystemButtons)
    throw AutomationError(ErrorCode::SubscriptOutOfRange);
  return *mSystemButtons[static_cast<std::size_t>(IndexA - 1)];
}

void DialogWindow::Leave() {
  done(Rejected);
}

// What stands upon this window goes first.
void DialogWindow::Abandon() {
  for (QDialog* const dialog : findChildren<QDialog*>(QString(), Qt::FindDirectChildrenOnly))
    dialog->done(Rejected);
  Leave();
}

void DialogWindow::PressDefault() {
  const auto isDefault = [](const QPushButton* button) { return button->isDefault() && button->isVisible(); };
  const auto button = std::ranges::find_if(mSystemButtons, isDefault);
  if (button != mSystemButtons.end()) (*button)->click();
}

void DialogWindow::reject() {
  if (mCancelButton && mCancelButton->isVisible()) mCancelButton->click();
}

void DialogWindow::closeEvent(QCloseEvent* event) {
  const QPointer<DialogWindow> self(this);
  Q_EMIT closeBoxClicked();
  event->setAccepted(!self || !isVisible());
}

}  // namespace mur::qt
