#include <QGuiApplication>
#include <cstdio>
#include <iostream>
#include <memory>

#include <murtimeline/automation/error.h>

#include "viewer/headless.h"
#include "viewer/options.h"
#include "viewer/readers/read_error.h"
#include "viewer/window/run_window.h"

namespace {

using namespace mur::viewer;

constexpr int kFailure = 2;

int Fail(const std::string& TextA) {
  std::cerr << "murtimeline-viewer: " << TextA << '\n';
  return kFailure;
}

QStringList ArgumentsOf(int CountA, char** ValuesA) {
  QStringList arguments;
  for (int i = 1; i < CountA; ++i) arguments += QString::fromLocal8Bit(ValuesA[i]);
  return arguments;
}

int ShowWindow(const Options& OptionsA, int CountA, char** ValuesA) {
  const auto isEmpty = [](const char* name) { return qEnvironmentVariableIsEmpty(name); };
  if (isEmpty("DISPLAY") && isEmpty("WAYLAND_DISPLAY") && isEmpty("QT_QPA_PLATFORM"))
    return Fail("there is no display; --png, --svg, --pdf, --dump and --events need none");
  QCoreApplication::setApplicationVersion(QStringLiteral(MUR_VIEWER_VERSION));
  return RunWindow(OptionsA, CountA, ValuesA);
}

int ShowNothing(const Options& OptionsA, int CountA, char** ValuesA) {
  std::unique_ptr<QGuiApplication> application;
  if (OptionsA.WantsPicture()) {  // needs fonts but no screen
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application = std::make_unique<QGuiApplication>(CountA, ValuesA);
  }
  RunHeadless(OptionsA, std::cout, std::cerr);
  std::cout.flush();
  return std::cout ? 0 : Fail("the output could not be written");
}

int Run(int CountA, char** ValuesA) {
  const Options options = ParseOptions(ArgumentsOf(CountA, ValuesA));
  if (options.help) {
    std::cout << UsageText().toStdString();
    return 0;
  }
  if (options.version) {
    std::cout << "murtimeline-viewer " MUR_VIEWER_VERSION "\n";
    return 0;
  }
  if (!options.IsHeadless()) return ShowWindow(options, CountA, ValuesA);
  try {
    return ShowNothing(options, CountA, ValuesA);
  } catch (const ReadError& error) {
    return Fail(options.file.toStdString() + ": " + error.what());
  }
}

}  // namespace

int main(int CountA, char** ValuesA) {
  try {
    return Run(CountA, ValuesA);
  } catch (const OptionsError& error) {
    const int status = Fail(error.what());
    std::cerr << UsageText().toStdString();
    return status;
  } catch (const std::exception& error) {
    return Fail(error.what());
  }
}
