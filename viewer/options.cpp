#include "viewer/options.h"

#include <QCommandLineParser>
#include <QRegularExpression>
#include <cmath>

namespace mur::viewer {
namespace {

constexpr int kLargestSide = 16384;

[[noreturn]] void Refuse(const QString& TextA) {
  throw OptionsError(TextA.toStdString());
}

double ParseDuration(const QString& TextA) {
  bool isNumber = false;
  const double seconds = TextA.toDouble(&isNumber);
  if (!isNumber || !std::isfinite(seconds) || seconds <= 0)
    Refuse(QStringLiteral("--duration needs a positive number of seconds, not \"%1\"").arg(TextA));
  return seconds;
}

QSize ParseSize(const QString& TextA) {
  static const QRegularExpression form(QStringLiteral(R"(^(\d{1,5})[xX](\d{1,5})$)"));
  const QRegularExpressionMatch match = form.match(TextA);
  const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
  if (size.isEmpty() || size.width() > kLargestSide || size.height() > kLargestSide)
    Refuse(QStringLiteral("--size needs WIDTHxHEIGHT with sides from 1 to %1, not \"%2\"")
               .arg(kLargestSide)
               .arg(TextA));
  return size;
}

TimeArgument ParseFrom(const QString& TextA) {
  const auto time = ParseTimeArgument(TextA);
  if (!time) Refuse(QStringLiteral("--from cannot be read as a time: \"%1\"").arg(TextA));
  return *time;
}

}  // namespace

Options ParseOptions(const QStringList& ArgumentsA) {
  QCommandLineParser parser;
  const QCommandLineOption from(QStringLiteral("from"), {}, QStringLiteral("TIME"));
  const QCommandLineOption duration(QStringLiteral("duration"), {}, QStringLiteral("SECONDS"));
  const QCommandLineOption size(QStringLiteral("size"), {}, QStringLiteral("SIZE"));
  const QCommandLineOption png(QStringLiteral("png"), {}, QStringLiteral("OUT"));
  const QCommandLineOption svg(QStringLiteral("svg"), {}, QStringLiteral("OUT"));
  const QCommandLineOption pdf(QStringLiteral("pdf"), {}, QStringLiteral("OUT"));
  const QCommandLineOption dump(QStringLiteral("dump")), events(QStringLiteral("events"));
  const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
  const QCommandLineOption version(QStringList{QStringLiteral("v"), QStringLiteral("version")});
  parser.addOptions({from, duration, size, png, svg, pdf, dump, events, help, version});
  if (!parser.parse(QStringList{QString()} + ArgumentsA)) Refuse(parser.errorText());

  Options options;
  options.help = parser.isSet(help);
  options.version = parser.isSet(version);
  if (options.help || options.version) return options;
  const QStringList files = parser.positionalArguments();
  if (files.size() > 1) Refuse(QStringLiteral("only one FILE can be shown, not also \"%1\"").arg(files[1]));
  if (!files.isEmpty()) options.file = files.first();
  if (parser.isSet(from)) options.from = ParseFrom(parser.value(from));
  if (parser.isSet(duration)) options.duration = ParseDuration(parser.value(duration));
  if (parser.isSet(size)) options.size = ParseSize(parser.value(size));
  options.png = parser.value(png);
  options.svg = parser.value(svg);
  options.pdf = parser.value(pdf);
  options.dump = parser.isSet(dump);
  options.events = parser.isSet(events);
  if (parser.isSet(png) && options.png.isEmpty()) Refuse(QStringLiteral("--png needs a file name"));
  if (parser.isSet(svg) && options.svg.isEmpty()) Refuse(QStringLiteral("--svg needs a file name"));
  if (parser.isSet(pdf) && options.pdf.isEmpty()) Refuse(QStringLiteral("--pdf needs a file name"));
  if (options.IsHeadless() && options.file.isEmpty()) Refuse(QStringLiteral("a FILE is needed"));
  return options;
}

QString UsageText() {
  return QStringLiteral(
      "Usage: murtimeline-viewer [FILE] [options]\n"
      "Shows an edit (.otio), a trace (.json) or subtitles (.srt, .vtt) as a time line.\n"
      "\n"
      "  --from TIME          first time to show: hh:mm:ss[.fff] or hh:mm:ss:ff as the scale shows it,\n"
      "                       seconds from the start of the file, or an ISO date and time\n"
      "  --duration SECONDS   how much to show; the default is all\n"
      "  --size WIDTHxHEIGHT  size of the window or picture in pixels; the default is 1280x720\n"
      "  --png OUT            write a picture and show no window\n"
      "  --svg OUT            write a scalable picture and show no window\n"
      "  --pdf OUT            write a page to print and show no window\n"
      "  --dump               print all objects, then each object's exact times\n"
      "  --events             print the events that loading raises\n"
      "  -h, --help           print this\n"
      "  -v, --version        print the version\n");
}

}  // namespace mur::viewer
