#pragma once

#include <QDialog>
#include <array>
#include <vector>

#include <murtimeline/dialogs/dialog_form.h>

class QDialogButtonBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace mur::qt {

/// The window of a dialog: a header with icon, title and commentary, a panel for fields, and three buttons,
/// which say that they were pressed and do nothing else.
class DialogWindow : public QDialog {
  Q_OBJECT

 public:
  /// Stands upon the window of `OwnerA` and goes with that, whichever of the two goes; upon the screen
  /// without one.
  explicit DialogWindow(QWidget* OwnerA);

  QLabel& Title() const { return *mTitle; }
  QLabel& Commentary() const { return *mCommentary; }
  /// Makes room for the header's texts, within reason; longer ones wrap.
  void FitHeader();
  /// Throws SubscriptOutOfRange unless `IndexA` is 1 to 3.
  QPushButton& SystemButton(int IndexA) const;
  /// The button that Esc presses.
  void SetCancelButton(QPushButton& ButtonA) { mCancelButton = &ButtonA; }

  /// Goes from the screen without asking anyone.
  void Leave();

  /// Enter, where a field keeps the key to itself.
  void PressDefault();
  /// Esc.
  void reject() override;

 Q_SIGNALS:
  void systemClicked(int index);
  void closeBoxClicked();

 protected:
  void closeEvent(QCloseEvent* event) override;

  QWidget& Panel() const { return *mPanel; }
  /// The panel's layout: captions, fields, buttons.
  QGridLayout& Fields() const { return *mFields; }
  /// A caption of the panel that belongs to `FieldA`.
  QLabel* NewCaption(const QString& NameA, const QString& TextA, QWidget& FieldA);
  /// Lets Tab go through the fields and then through the buttons as they stand.
  void ChainFocus(const std::vector<QWidget*>& FieldsA);

 private:
  QWidget* NewHeader();
  void AddButtons();
  void Abandon();

  QLabel* mTitle;
  QLabel* mCommentary;
  QWidget* mPanel;
  QGridLayout* mFields;
  QDialogButtonBox* mButtons;
  std::array<QPushButton*, IDialogWindow::kSystemButtons> mSystemButtons;
  QPushButton* mCancelButton = nullptr;
};

}  // namespace mur::qt
