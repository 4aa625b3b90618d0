#pragma once

#include <QColor>
#include <QDateTime>
#include <QString>
#include <QVariant>

#include <murtimeline/automation/color.h>
#include <murtimeline/automation/date.h>
#include <murtimeline/automation/export.h>
#include <murtimeline/automation/string.h>
#include <murtimeline/automation/variant.h>
#include <murtimeline/render/port/geometry.h>

namespace mur::qt {

/// The same UTF-16 units, whatever they are.
MUR_API QString ToQString(StringView TextA);
MUR_API String ToString(const QString& TextA);

/// The wall clock that a date shows, to the nearest millisecond, as a local time. The date and the time of
/// day are the date's own also in an hour that the local clock skips (`isValid` is false then). A date
/// outside the date range gives an invalid value.
MUR_API QDateTime ToQDateTime(Date DateA);
/// The wall clock that `TimeA` shows, whatever its time zone; date 0 for a null value.
MUR_API Date ToDate(const QDateTime& TimeA);

/// A plain colour; a system colour stands for nothing here and gives an invalid value.
MUR_API QColor ToQColor(OleColor ColorA);
MUR_API QColor ToQColor(Rgba ColorA);
/// Red, green and blue; an alpha is lost. An invalid colour gives black.
MUR_API OleColor ToOleColor(const QColor& ColorA);
MUR_API Rgba ToRgba(const QColor& ColorA);

/// Numbers, texts, dates and booleans as Qt's own kinds; Empty and Missing as an invalid value, Null as a
/// null pointer, an object as a `mur::Ref<mur::Object>`. What `ToVariant` only carried comes back as it was.
MUR_API QVariant ToQVariant(const Variant& ValueA);
/// The reverse of ToQVariant; a value of any other type is carried as a foreign one.
MUR_API Variant ToVariant(const QVariant& ValueA);

}  // namespace mur::qt
