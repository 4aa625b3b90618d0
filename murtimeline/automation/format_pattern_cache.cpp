#include <murtimeline/automation/format_pattern_cache.h>

namespace mur {
namespace {

struct NamedFormat {
  StringView name;
  StringView pattern;
};

constexpr StringView kCurrencyName = u"currency";

constexpr NamedFormat kNamedFormats[] = {
    {u"general date", u"c"},
    {u"long date", u"dddddd"},
    {u"medium date", u"dd-mmm-yy"},
    {u"short date", u"ddddd"},
    {u"long time", u"ttttt"},
    {u"medium time", u"hh:nn AMPM"},
    {u"short time", u"hh:nn"},
    {u"general number", u"General"},
    {u"fixed", u"0.00"},
    {u"standard", u"#,##0.00"},
    {u"percent", u"0.00%"},
    {u"scientific", u"0.00E+00"},
    {u"yes/no", u"\"Yes\";\"Yes\";\"No\""},
    {u"true/false", u"\"True\";\"True\";\"False\""},
    {u"on/off", u"\"On\";\"On\";\"Off\""},
};

// A longer pattern is not worth keeping: no host uses one again and again.
constexpr std::size_t kLongestKept = 256;

PreparedPattern Prepare(StringView PatternA) {
  switch (DecideKind(PatternA)) {
    case PatternKind::Date:
      return ParseDatePattern(PatternA);
    case PatternKind::Text:
      return ParseTextPattern(PatternA);
    case PatternKind::Number:
      break;
  }
  return ParseNumberPattern(PatternA);
}

}  // namespace

PatternCache::PatternCache(String CurrencyA) : mCurrency(std::move(CurrencyA)) {}

std::shared_ptr<const PreparedPattern> PatternCache::Get(StringView PatternA) {
  const std::lock_guard lock(mMutex);
  if (const Entry* entry = Find(PatternA)) return entry->prepared;
  auto prepared = std::make_shared<const PreparedPattern>(Prepare(Spelled(PatternA)));
  if (PatternA.size() <= kLongestKept) Keep(PatternA, prepared);
  return prepared;
}

const PatternCache::Entry* PatternCache::Find(StringView PatternA) const {
  for (const Entry& entry : mEntries)
    if (entry.prepared && entry.pattern == PatternA) return &entry;
  return nullptr;
}

void PatternCache::Keep(StringView PatternA, std::shared_ptr<const PreparedPattern> PreparedA) {
  mEntries[mOldest] = {String(PatternA), std::move(PreparedA)};
  mOldest = (mOldest + 1) % mEntries.size();
}

// The user-defined pattern that a named format stands for; any other pattern as it is.
StringView PatternCache::Spelled(StringView PatternA) const {
  if (IsWord(PatternA, kCurrencyName)) return mCurrency;
  for (const NamedFormat& format : kNamedFormats)
    if (IsWord(PatternA, format.name)) return format.pattern;
  return PatternA;
}

}  // namespace mur
