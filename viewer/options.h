#pragma once

#include <QSize>
#include <QStringList>
#include <optional>
#include <stdexcept>

#include "viewer/time_argument.h"

namespace mur::viewer {

/// The arguments are wrong; what() says how, in one line.
class OptionsError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What the command line asks for.
struct Options {
  QString file;  // empty: an empty window
  std::optional<TimeArgument> from;
  std::optional<double> duration;  // seconds
  QSize size{1280, 720};
  QString png, svg, pdf;  // empty: no picture
  bool dump = false;
  bool events = false;
  bool help = false;
  bool version = false;

  /// Whether everything is done without a window.
  bool IsHeadless() const { return dump || events || WantsPicture(); }
  bool WantsPicture() const { return !png.isEmpty() || !svg.isEmpty() || !pdf.isEmpty(); }
};

/// `ArgumentsA` without the program's name. Throws OptionsError.
Options ParseOptions(const QStringList& ArgumentsA);

/// How to call the program, in several lines.
QString UsageText();

}  // namespace mur::viewer
