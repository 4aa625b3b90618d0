#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/dialogs/live_widget.h>
#include <murtimeline/qt/dialogs/window_port.h>
#include <murtimeline/qt/event_guard.h>

namespace mur::qt {

WindowPort::WindowPort(DialogWindow* WindowA) : mWindow(WindowA), mForms(WindowA) {
  QObject::connect(WindowA, &DialogWindow::systemClicked,
                   [this](int index) { GuardEvent([&] { SystemClick.Raise(index); }); });
  QObject::connect(WindowA, &DialogWindow::closeBoxClicked,
                   [this] { GuardEvent([&] { Close(UnloadRequest::ByUser); }); });
}

WindowPort::~WindowPort() {
  delete mWindow;
}

DialogWindow& WindowPort::Window() const {
  return LiveWidget(mWindow);
}

String WindowPort::Title() const {
  return ToString(Window().Title().text());
}

void WindowPort::SetTitle(StringView TextA) {
  Window().Title().setText(ToQString(TextA));
  Window().FitHeader();
}

String WindowPort::Commentary() const {
  return ToString(Window().Commentary().text());
}

void WindowPort::SetCommentary(StringView TextA) {
  Window().Commentary().setText(ToQString(TextA));
  Window().FitHeader();
}

String WindowPort::SystemCaption(int IndexA) const {
  return ToString(Window().SystemButton(IndexA).text());
}

void WindowPort::SetSystemCaption(int IndexA, StringView TextA) {
  Window().SystemButton(IndexA).setText(ToQString(TextA));
}

void WindowPort::SetSystemVisible(int IndexA, bool VisibleA) {
  Window().SystemButton(IndexA).setVisible(VisibleA);
}

void WindowPort::SetSystemDefault(int IndexA) {
  Window().SystemButton(IndexA).setDefault(true);
}

void WindowPort::SetSystemCancel(int IndexA) {
  Window().SetCancelButton(Window().SystemButton(IndexA));
}

void WindowPort::ShowModal() {
  Window().exec();
}

bool WindowPort::IsShown() const {
  return mWindow && mWindow->isVisible();
}

void WindowPort::Close(UnloadRequest RequestA) {
  if (PassUnload(RequestA) && mWindow) mWindow->Leave();
}

void WindowPort::Unload() {
  Close(UnloadRequest::ByProgram);
}

void WindowPort::BringToFront() {
  Window().raise();
  Window().activateWindow();
}

// On the heap: the box goes with the window that it stands on.
void WindowPort::ShowMessage(StringView TextA, StringView TitleA) {
  const QPointer<QMessageBox> box =
      new QMessageBox(QMessageBox::NoIcon, ToQString(TitleA), ToQString(TextA), QMessageBox::Ok, &Window());
  box->setTextFormat(Qt::PlainText);
  box->exec();
  delete box;
}

}  // namespace mur::qt
