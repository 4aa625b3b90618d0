#include <murtimeline/dialogs/dialog_form.h>

namespace mur {

bool IDialogWindow::PassUnload(UnloadRequest RequestA) {
  if (mIsPassing || !IsShown()) return false;
  class Passing {
   public:
    explicit Passing(bool& FlagA) : mFlag(FlagA) { mFlag = true; }
    ~Passing() { mFlag = false; }
    Passing(const Passing&) = delete;
    Passing& operator=(const Passing&) = delete;

   private:
    bool& mFlag;
  };
  const Passing passing(mIsPassing);
  bool refused = false;
  QueryUnload.Raise(RequestA, refused);
  if (refused || !IsShown()) return false;
  Unloading.Raise();
  return true;
}

}  // namespace mur
