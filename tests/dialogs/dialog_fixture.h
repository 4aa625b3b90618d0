#pragma once

#include <string>

#include <murtimeline/dialogs/scripted_forms.h>

#include "tests/support/call_log.h"
#include "tests/support/print.h"
#include "tests/support/value_text.h"

namespace mur::test {

inline constexpr int kCancelButton = 1, kOkButton = 2, kThirdButton = 3;

/// Forms in memory whose calls are noted as "SetTitle(T); ShowModal()". Reads are not noted, but may fail.
struct RecordingForms {
  RecordingForms() {
    forms.SetObserver([this](std::string_view call, std::string_view arguments) {
      const std::string name(call);
      if (IsRead(name)) {
        log.Pass(name);
      } else {
        log.Note(name, "(" + std::string(arguments) + ")");
      }
    });
  }
  RecordingForms(const RecordingForms&) = delete;
  RecordingForms& operator=(const RecordingForms&) = delete;

  CallLog log;
  ScriptedForms forms;

 private:
  static bool IsRead(const std::string& NameA) {
    if (NameA.starts_with("Set")) return false;
    return NameA == "Title" || NameA == "Commentary" || NameA == "SystemCaption" || NameA == "Forms" ||
           NameA.ends_with("Text") || NameA.ends_with("Value");
  }
};

inline void PressOk(ScriptedWindow& WindowA) {
  WindowA.Press(kOkButton);
}

}  // namespace mur::test
