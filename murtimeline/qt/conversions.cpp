#include <murtimeline/automation/narrow.h>
#include <murtimeline/dialogs/moments.h>
#include <murtimeline/qt/conversions.h>

namespace mur::qt {
namespace {

constexpr OleColor kSystemColorFlag = 0x80000000;

QDate Epoch() {
  return {1899, 12, 30};
}

// A value of Qt's that the core has no kind for.
class CarriedValue final : public ForeignValue {
 public:
  explicit CarriedValue(QVariant ValueA) : mValue(std::move(ValueA)) {}
  const QVariant& Value() const { return mValue; }

 private:
  QVariant mValue;
};

template <class T>
QVariant NumberToQt(const Variant& ValueA) {
  return QVariant::fromValue(*ValueA.As<T>());
}

template <class T>
Variant NumberFromQt(const QVariant& ValueA) {
  return Variant(ValueA.value<T>());
}

QVariant ForeignToQt(const Variant& ValueA) {
  const auto& foreign = *ValueA.As<Ref<ForeignValue>>();
  const auto* carried = dynamic_cast<const CarriedValue*>(foreign.Get());
  return carried ? carried->Value() : QVariant::fromValue(foreign);
}

Variant Carried(const QVariant& ValueA) {
  if (ValueA.metaType() == QMetaType::fromType<Ref<Object>>()) return Variant(ValueA.value<Ref<Object>>());
  if (ValueA.metaType() == QMetaType::fromType<Ref<ForeignValue>>())
    return Variant(ValueA.value<Ref<ForeignValue>>());
  return Variant(Make<CarriedValue>(ValueA));
}

}  // namespace

QString ToQString(StringView TextA) {
  return QStringView(TextA).toString();
}

String ToString(const QString& TextA) {
  return TextA.toStdU16String();
}

QDateTime ToQDateTime(Date DateA) {
  if (!DateA.InRange()) return {};
  const ClockReading reading = ReadClock(DateA);
  return {Epoch().addDays(Narrow<qint64>(reading.day)),
          QTime::fromMSecsSinceStartOfDay(Narrow<int>(reading.milliseconds))};
}

Date ToDate(const QDateTime& TimeA) {
  if (TimeA.isNull()) return {};
  return MomentOf({static_cast<double>(Epoch().daysTo(TimeA.date())),
                   static_cast<double>(TimeA.time().msecsSinceStartOfDay())});
}

QColor ToQColor(OleColor ColorA) {
  if ((ColorA & kSystemColorFlag) != 0) return {};
  const auto byteAt = [ColorA](unsigned shift) { return static_cast<int>(ColorA >> shift & 0xFF); };
  return {byteAt(0), byteAt(8), byteAt(16)};
}

QColor ToQColor(Rgba ColorA) {
  return {ColorA.red, ColorA.green, ColorA.blue, ColorA.alpha};
}

OleColor ToOleColor(const QColor& ColorA) {
  const Rgba color = ToRgba(ColorA);
  return OleColor{color.red} | OleColor{color.green} << 8 | OleColor{color.blue} << 16;
}

Rgba ToRgba(const QColor& ColorA) {
  const QRgb color = ColorA.rgba();
  const auto byte = [](int value) { return static_cast<std::uint8_t>(value); };
  return {byte(qRed(color)), byte(qGreen(color)), byte(qBlue(color)), byte(qAlpha(color))};
}

QVariant ToQVariant(const Variant& ValueA) {
  switch (ValueA.Kind()) {
    case VariantKind::Empty:
    case VariantKind::Missing:
      return {};
    case VariantKind::Null:
      return QVariant::fromValue(nullptr);
    case VariantKind::Boolean:
      return NumberToQt<bool>(ValueA);
    case VariantKind::Int8:
      return NumberToQt<qint8>(ValueA);
    case VariantKind::UInt8:
      return NumberToQt<quint8>(ValueA);
    case VariantKind::Int16:
      return NumberToQt<qint16>(ValueA);
    case VariantKind::UInt16:
      return NumberToQt<quint16>(ValueA);
    case VariantKind::Int32:
      return NumberToQt<qint32>(ValueA);
    case VariantKind::UInt32:
      return NumberToQt<quint32>(ValueA);
    case VariantKind::Int64:
      return QVariant::fromValue<qint64>(*ValueA.As<std::int64_t>());
    case VariantKind::UInt64:
      return QVariant::fromValue<quint64>(*ValueA.As<std::uint64_t>());
    case VariantKind::Single:
      return NumberToQt<float>(ValueA);
    case VariantKind::Double:
      return NumberToQt<double>(ValueA);
    case VariantKind::Date:
      return ToQDateTime(*ValueA.As<Date>());
    case VariantKind::Text:
      return ToQString(*ValueA.As<String>());
    case VariantKind::Object:
      return QVariant::fromValue(*ValueA.As<Ref<Object>>());
    case VariantKind::Foreign:
      return ForeignToQt(ValueA);
  }
  return {};
}

Variant ToVariant(const QVariant& ValueA) {
  switch (ValueA.typeId()) {
    case QMetaType::UnknownType:
      return {};
    case QMetaType::Nullptr:
      return Variant::Null();
    case QMetaType::Bool:
      return NumberFromQt<bool>(ValueA);
    case QMetaType::SChar:
      return NumberFromQt<qint8>(ValueA);
    case QMetaType::UChar:
      return NumberFromQt<quint8>(ValueA);
    case QMetaType::Short:
      return NumberFromQt<qint16>(ValueA);
    case QMetaType::UShort:
      return NumberFromQt<quint16>(ValueA);
    case QMetaType::Int:
      return NumberFromQt<qint32>(ValueA);
    case QMetaType::UInt:
      return NumberFromQt<quint32>(ValueA);
    case QMetaType::LongLong:
      return Variant(std::int64_t{ValueA.value<qint64>()});
    case QMetaType::ULongLong:
      return Variant(std::uint64_t{ValueA.value<quint64>()});
    case QMetaType::Float:
      return NumberFromQt<float>(ValueA);
    case QMetaType::Double:
      return NumberFromQt<double>(ValueA);
    case QMetaType::QDateTime:
      return Variant(ToDate(ValueA.toDateTime()));
    case QMetaType::QDate:
      return Variant(ToDate(ValueA.toDate().startOfDay()));
    case QMetaType::QString:
      return Variant(ToString(ValueA.toString()));
    default:
      return Carried(ValueA);
  }
}

}  // namespace mur::qt
