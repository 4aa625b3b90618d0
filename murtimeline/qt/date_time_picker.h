#pragma once

#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QString>

#include <murtimeline/automation/export.h>

class QWidget;

namespace mur::qt {

/// Lets the user pick a moment: FDateTimePicker for hosts that speak Qt.
///
///     mur::qt::DateTimePicker picker(window);
///     picker.setDateTime(start);
///     if (picker.exec()) start = picker.dateTime();
class MUR_API DateTimePicker : public QObject {
  Q_OBJECT
  Q_PROPERTY(QDateTime dateTime READ dateTime WRITE setDateTime)
  Q_PROPERTY(QString title READ title WRITE setTitle)
  Q_PROPERTY(QString commentary READ commentary WRITE setCommentary)

 public:
  explicit DateTimePicker(QWidget* parent = nullptr);

  /// What the dialog starts with, and what was picked then, in whole seconds of the wall clock.
  QDateTime dateTime() const { return mDateTime; }
  void setDateTime(const QDateTime& dateTime) { mDateTime = dateTime; }
  QString title() const { return mTitle; }
  void setTitle(const QString& title) { mTitle = title; }
  QString commentary() const { return mCommentary; }
  void setCommentary(const QString& commentary) { mCommentary = commentary; }

  /// Shows the dialog and returns when it was closed: true when the user picked a moment.
  Q_INVOKABLE bool exec();

 Q_SIGNALS:
  /// The user chose "OK". A handler, connected directly, may change the moment; or refuse it, and then the
  /// dialog stays open, after a message box with the message unless that is blank.
  void validateSelectedDate(QDateTime& proposedDateTime, bool& cancel, QString& cancelMsg);

 private:
  QPointer<QWidget> mOwner;
  QDateTime mDateTime;
  QString mTitle, mCommentary;
};

}  // namespace mur::qt
