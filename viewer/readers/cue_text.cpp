#include "viewer/readers/cue_text.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

namespace mur::viewer {
namespace {

QString WithoutTags(QString TextA) {
  // A "<" that opens no tag is text: "1 < 2".
  static const QRegularExpression tag(QStringLiteral(R"(</?[a-zA-Z][^<>]*>|</?>|<[0-9:.]+>|\{\\[^{}]*\})"));
  return TextA.remove(tag);
}

// The character of "amp", "#233" or "#xE9"; empty when there is none.
QString DecodeEntity(const QString& NameA) {
  static const QHash<QString, QString> named = {
      {QStringLiteral("amp"), QStringLiteral("&")},     {QStringLiteral("lt"), QStringLiteral("<")},
      {QStringLiteral("gt"), QStringLiteral(">")},      {QStringLiteral("quot"), QStringLiteral("\"")},
      {QStringLiteral("apos"), QStringLiteral("'")},    {QStringLiteral("nbsp"), QChar(char16_t{0xA0})},
      {QStringLiteral("lrm"), QChar(char16_t{0x200E})}, {QStringLiteral("rlm"), QChar(char16_t{0x200F})},
  };
  if (!NameA.startsWith(QLatin1Char('#'))) return named.value(NameA);
  const bool isHex = NameA.startsWith(QLatin1String("#x"), Qt::CaseInsensitive);
  bool isNumber = false;
  const char32_t code = NameA.mid(isHex ? 2 : 1).toUInt(&isNumber, isHex ? 16 : 10);
  const bool isCharacter = isNumber && code != 0 && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
  return isCharacter ? QString::fromUcs4(&code, 1) : QString();
}

QString WithEntitiesDecoded(const QString& TextA) {
  static const QRegularExpression entity(QStringLiteral("&(#?[0-9A-Za-z]{1,8});"));
  QString decoded;
  qsizetype done = 0;
  for (auto matches = entity.globalMatch(TextA); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    const QString character = DecodeEntity(match.captured(1));
    decoded += QStringView(TextA).mid(done, match.capturedStart() - done);
    decoded += character.isEmpty() ? match.captured() : character;
    done = match.capturedEnd();
  }
  return decoded += QStringView(TextA).mid(done);
}

}  // namespace

String PlainCueText(const QString& MarkedUpA) {
  QStringList lines;
  for (const QString& line : WithoutTags(MarkedUpA).split(QLatin1Char('\n')))
    if (const QString plain = WithEntitiesDecoded(line).simplified(); !plain.isEmpty()) lines += plain;
  return lines.join(QLatin1String(" / ")).toStdU16String();
}

}  // namespace mur::viewer
