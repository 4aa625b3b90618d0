#pragma once

#include <QPointer>

#include <murtimeline/qt/dialogs/dialog_window.h>
#include <murtimeline/qt/widget_forms.h>

namespace mur::qt {

/// What a dialog sees of its window. It owns the window; that may go before it, with the window it stands on.
class WindowPort final : public IDialogWindow {
 public:
  explicit WindowPort(DialogWindow* WindowA);
  ~WindowPort() override;
  WindowPort(const WindowPort&) = delete;
  WindowPort& operator=(const WindowPort&) = delete;

  String Title() const override;
  void SetTitle(StringView TextA) override;
  String Commentary() const override;
  void SetCommentary(StringView TextA) override;
  String SystemCaption(int IndexA) const override;
  void SetSystemCaption(int IndexA, StringView TextA) override;
  void SetSystemVisible(int IndexA, bool VisibleA) override;
  void SetSystemDefault(int IndexA) override;
  void SetSystemCancel(int IndexA) override;
  void ShowModal() override;
  bool IsShown() const override;
  void Unload() override;
  void BringToFront() override;
  void ShowMessage(StringView TextA, StringView TitleA) override;
  DialogForms& Forms() override { return mForms; }

 private:
  DialogWindow& Window() const;
  void Close(UnloadRequest RequestA);

  QPointer<DialogWindow> mWindow;
  WidgetForms mForms;
};

}  // namespace mur::qt
