#include <murtimeline/automation/guard.h>
#include <murtimeline/dialogs/dialog.h>

namespace mur {
namespace {
constexpr StringView kOk = u"OK";
constexpr StringView kCancel = u"Cancel";
constexpr StringView kClose = u"Close";
}  // namespace

// Listens at last: a form that reports while it is being set up is not heard.
Dialog::Dialog(IDialogWindow& WindowA) : mWindow(WindowA) {
  ResumeNext([&] { mWindow.SetSystemVisible(1, true); });
  ResumeNext([&] { mWindow.SetSystemVisible(2, true); });
  ResumeNext([&] { mWindow.SetSystemVisible(3, false); });
  ResumeNext([&] { mWindow.SetSystemCaption(1, kCancel); });
  ResumeNext([&] { mWindow.SetSystemCancel(1); });
  ResumeNext([&] { mWindow.SetSystemCaption(2, kOk); });
  ResumeNext([&] { mWindow.SetSystemDefault(2); });
  Listen(mWindow.SystemClick, [this](int index) { SystemClick(index); });
  Listen(mWindow.QueryUnload, [this](UnloadRequest request, bool& cancel) { QueryUnload(request, cancel); });
  Listen(mWindow.Unloading, [this] {
    mWasUnloaded = true;
    Unloading();
  });
}

String Dialog::Title() const {
  String title;
  ResumeNext([&] { title = mWindow.Title(); });
  return title;
}

void Dialog::SetTitle(StringView TitleA) {
  ResumeNext([&] {
    if (mWindow.Title() != TitleA) mWindow.SetTitle(TitleA);
  });
}

String Dialog::Commentary() const {
  String commentary;
  ResumeNext([&] { commentary = mWindow.Commentary(); });
  return commentary;
}

void Dialog::SetCommentary(StringView CommentaryA) {
  ResumeNext([&] {
    if (mWindow.Commentary() != CommentaryA) mWindow.SetCommentary(CommentaryA);
  });
}

void Dialog::SetHelpTag(StringView HelpTagA) {
  if (mHelpTag != HelpTagA) mHelpTag = HelpTagA;
}

void Dialog::Show() {
  const Ref<Dialog> keep(this);
  if (mIsOpen) {
    BringToFront();
    return;
  }
  mIsOpen = true;
  mWasUnloaded = false;
  ResumeNext([&] { mWindow.ShowModal(); });
  mIsOpen = false;
  if (!mWasUnloaded) mCancelled = true;
}

void Dialog::BringToFront() {
  if (mIsOpen) ResumeNext([&] { mWindow.BringToFront(); });
}

void Dialog::QueryUnload(UnloadRequest /*RequestA*/, bool& /*CancelA*/) {}

void Dialog::Unloading() {}

// "Help" is a caption that dialogs know, but there is no help to show; it does nothing, like any other
// caption.
void Dialog::SystemClick(int IndexA) {
  String caption;
  ResumeNext([&] { caption = mWindow.SystemCaption(IndexA); });
  if (caption == kOk) {
    mCancelled = false;
    Unload();
  } else if (caption == kCancel) {
    mCancelled = true;
    Unload();
  } else if (caption == kClose) {
    Unload();
  }
}

void Dialog::Unload() {
  ResumeNext([&] { mWindow.Unload(); });
}

}  // namespace mur
