#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/stack.h>
#include <murtimeline/dialogs/edit_times_dialog.h>
#include <murtimeline/render/render_parts.h>

namespace mur {
namespace {

// The thread's one editor, from its making to its release.
thread_local FMURTLRenderConfig* tEditor = nullptr;

class SharedEditor {
 public:
  explicit SharedEditor(DialogForms& FormsA) : mEditor(Make<FMURTLRenderConfig>(FormsA)) {
    tEditor = mEditor.Get();
  }
  ~SharedEditor() { tEditor = nullptr; }
  SharedEditor(const SharedEditor&) = delete;
  SharedEditor& operator=(const SharedEditor&) = delete;

  FMURTLRenderConfig* operator->() const { return mEditor.Get(); }

 private:
  Ref<FMURTLRenderConfig> mEditor;
};

}  // namespace

void MURTimelineRender::ShowEditor() {
  const Ref<MURTimelineRender> keep(this);
  if (tEditor) {
    tEditor->BringToFront();
    return;
  }
  ResumeNext([&] {
    RequireStackSpace();
    DialogForms* const forms = mParts->state.host.Forms();
    if (!forms) return;
    const SharedEditor editor(*forms);
    editor->SetTitle(u"Edit Times");
    editor->SetCommentary(u"Use this window to change the displayed duration of the Timeline");
    editor->SetWorldTimeT0(WorldTimeT0());
    editor->SetDuration(Duration());
    editor->Show();
    if (editor->Cancelled()) return;
    SetWorldTimeT0(editor->WorldTimeT0());
    SetDuration(editor->Duration());
  });
}

}  // namespace mur
