#include <string>

#include <murtimeline/automation/error.h>
#include <murtimeline/dialogs/scripted_forms.h>

namespace mur {
namespace {

std::string DaysText(Date ValueA) {
  return std::to_string(ValueA.Days());
}

// A copy: what is played may give the forms another script.
template <class Script, class Form>
std::function<void()> Playing(const Script& ScriptA, Form& FormA) {
  return [&ScriptA, &FormA] {
    if (const Script script = ScriptA) script(FormA);
  };
}

}  // namespace

ScriptedWindow::ScriptedWindow(ScriptedForms& FormsA, std::function<void()> ScriptA)
    : mForms(FormsA), mScript(std::move(ScriptA)) {}

std::size_t ScriptedWindow::PlaceOf(int IndexA) {
  if (IndexA < 1 || IndexA > kSystemButtons) throw AutomationError(ErrorCode::SubscriptOutOfRange);
  return static_cast<std::size_t>(IndexA - 1);
}

void ScriptedWindow::Press(int IndexA) {
  if (mIsShown && IndexA != 0 && mButtons[PlaceOf(IndexA)].visible) SystemClick.Raise(IndexA);
}

void ScriptedWindow::PressCloseBox() {
  Close(UnloadRequest::ByUser);
}

void ScriptedWindow::Close(UnloadRequest RequestA) {
  if (PassUnload(RequestA)) mIsShown = false;
}

String ScriptedWindow::Title() const {
  mForms.Observe("Title");
  return mTitle;
}

void ScriptedWindow::SetTitle(StringView TextA) {
  mForms.Observe("SetTitle", ToUtf8(TextA));
  mTitle = TextA;
}

String ScriptedWindow::Commentary() const {
  mForms.Observe("Commentary");
  return mCommentary;
}

void ScriptedWindow::SetCommentary(StringView TextA) {
  mForms.Observe("SetCommentary", ToUtf8(TextA));
  mCommentary = TextA;
}

String ScriptedWindow::SystemCaption(int IndexA) const {
  mForms.Observe("SystemCaption", std::to_string(IndexA));
  return mButtons[PlaceOf(IndexA)].caption;
}

void ScriptedWindow::SetSystemCaption(int IndexA, StringView TextA) {
  mForms.Observe("SetSystemCaption", std::to_string(IndexA) + ", " + ToUtf8(TextA));
  mButtons[PlaceOf(IndexA)].caption = TextA;
}

void ScriptedWindow::SetSystemVisible(int IndexA, bool VisibleA) {
  mForms.Observe("SetSystemVisible", std::to_string(IndexA) + (VisibleA ? ", true" : ", false"));
  mButtons[PlaceOf(IndexA)].visible = VisibleA;
}

void ScriptedWindow::SetSystemDefault(int IndexA) {
  mForms.Observe("SetSystemDefault", std::to_string(IndexA));
  mDefault = IndexA;
}

void ScriptedWindow::SetSystemCancel(int IndexA) {
  mForms.Observe("SetSystemCancel", std::to_string(IndexA));
  mCancel = IndexA;
}

void ScriptedWindow::ShowModal() {
  mForms.Observe("ShowModal");
  struct Shown {
    bool& flag;
    ~Shown() { flag = false; }
  };
  mIsShown = true;
  const Shown shown{mIsShown};
  mScript();
  PressCloseBox();
}

void ScriptedWindow::Unload() {
  mForms.Observe("Unload");
  Close(UnloadRequest::ByProgram);
}

void ScriptedWindow::BringToFront() {
  mForms.Observe("BringToFront");
}

void ScriptedWindow::ShowMessage(StringView TextA, StringView TitleA) {
  mForms.Observe("ShowMessage", ToUtf8(TextA));
  mForms.mMessages.push_back({String(TextA), String(TitleA)});
}

DialogForms& ScriptedWindow::Forms() {
  mForms.Observe("Forms");
  return mForms;
}

ScriptedEditTimesForm::ScriptedEditTimesForm(ScriptedForms& FormsA)
    : mForms(FormsA), mWindow(FormsA, Playing(FormsA.mEditTimesScript, *this)) {}

void ScriptedEditTimesForm::PressChange(int IndexA) {
  if (mWindow.IsShown()) ChangeClick.Raise(IndexA);
}

void ScriptedEditTimesForm::PickDuration(Date ValueA) {
  if (!mWindow.IsShown()) return;
  mDuration = ValueA;
  DurationChange.Raise();
}

String ScriptedEditTimesForm::StartText() const {
  mForms.Observe("StartText");
  return mStartText;
}

void ScriptedEditTimesForm::SetStartText(StringView TextA) {
  mForms.Observe("SetStartText", ToUtf8(TextA));
  mStartText = TextA;
}

String ScriptedEditTimesForm::EndText() const {
  mForms.Observe("EndText");
  return mEndText;
}

void ScriptedEditTimesForm::SetEndText(StringView TextA) {
  mForms.Observe("SetEndText", ToUtf8(TextA));
  mEndText = TextA;
}

Date ScriptedEditTimesForm::DurationValue() const {
  mForms.Observe("DurationValue");
  return mDuration;
}

void ScriptedEditTimesForm::SetDurationValue(Date ValueA) {
  mForms.Observe("SetDurationValue", DaysText(ValueA));
  mDuration = ValueA;
}

ScriptedDateTimeForm::ScriptedDateTimeForm(ScriptedForms& FormsA)
    : mForms(FormsA), mWindow(FormsA, Playing(FormsA.mDateTimeScript, *this)) {}

void ScriptedDateTimeForm::PickDate(Date ValueA) {
  if (!mWindow.IsShown()) return;
  mDate = ValueA;
  DateChange.Raise();
}

void ScriptedDateTimeForm::PickTime(Date ValueA) {
  if (!mWindow.IsShown()) return;
  mTime = ValueA;
  TimeChange.Raise();
}

Date ScriptedDateTimeForm::DateValue() const {
  mForms.Observe("DateValue");
  return mDate;
}

void ScriptedDateTimeForm::SetDateValue(Date ValueA) {
  mForms.Observe("SetDateValue", DaysText(ValueA));
  mDate = ValueA;
}

Date ScriptedDateTimeForm::TimeValue() const {
  mForms.Observe("TimeValue");
  return mTime;
}

void ScriptedDateTimeForm::SetTimeValue(Date ValueA) {
  mForms.Observe("SetTimeValue", DaysText(ValueA));
  mTime = ValueA;
}

String ScriptedDateTimeForm::DateTimeText() const {
  mForms.Observe("DateTimeText");
  return mDateTimeText;
}

void ScriptedDateTimeForm::SetDateTimeText(StringView TextA) {
  mForms.Observe("SetDateTimeText", ToUtf8(TextA));
  mDateTimeText = TextA;
}

std::unique_ptr<IEditTimesForm> ScriptedForms::MakeEditTimesForm() {
  Observe("MakeEditTimesForm");
  return std::make_unique<ScriptedEditTimesForm>(*this);
}

std::unique_ptr<IDateTimeForm> ScriptedForms::MakeDateTimeForm() {
  Observe("MakeDateTimeForm");
  return std::make_unique<ScriptedDateTimeForm>(*this);
}

void ScriptedForms::Observe(std::string_view CallA, std::string_view ArgumentsA) const {
  if (mObserver) mObserver(CallA, ArgumentsA);
}

}  // namespace mur
