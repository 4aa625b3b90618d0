#include <QApplication>
#include <utility>

#include <gmock/gmock.h>

#include <murtimeline/automation/regional.h>

#include "tests/qt/qt_warnings.h"

namespace mur::test {
namespace {

QStringList warnings;

void Note(QtMsgType TypeA, const QMessageLogContext& /*ContextA*/, const QString& TextA) {
  const bool isOfThePlatform = TextA.startsWith("This plugin does not support");
  if (!isOfThePlatform && TypeA != QtDebugMsg && TypeA != QtInfoMsg) warnings << TextA;
}

class WarningsFail final : public testing::EmptyTestEventListener {
  void OnTestEnd(const testing::TestInfo& /*InfoA*/) override {
    for (const QString& warning : TakeWarnings())
      ADD_FAILURE() << "unexpected warning: " << warning.toStdString();
  }
};

}  // namespace

QStringList TakeWarnings() {
  return std::exchange(warnings, {});
}

}  // namespace mur::test

// Real widgets, without a window system unless the environment names one.
int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("DISPLAY"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleMock(&argc, argv);
  const QApplication application(argc, argv);
  qInstallMessageHandler(mur::test::Note);
  testing::UnitTest::GetInstance()->listeners().Append(new mur::test::WarningsFail);
  const mur::RegionalScope american("en-US");
  return RUN_ALL_TESTS();
}
