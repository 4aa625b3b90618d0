#pragma once

#include <array>
#include <memory>
#include <mutex>
#include <variant>

#include <murtimeline/automation/format_date.h>
#include <murtimeline/automation/format_number.h>
#include <murtimeline/automation/format_text.h>

namespace mur {

using PreparedPattern = std::variant<NumberPattern, DatePattern, TextPattern>;

/// The patterns of the last calls made ready; named formats included. May be used by several threads.
class PatternCache {
 public:
  /// `CurrencyA` is the pattern behind the named format "Currency".
  explicit PatternCache(String CurrencyA);

  std::shared_ptr<const PreparedPattern> Get(StringView PatternA);

 private:
  struct Entry {
    String pattern;
    std::shared_ptr<const PreparedPattern> prepared;
  };

  const Entry* Find(StringView PatternA) const;
  void Keep(StringView PatternA, std::shared_ptr<const PreparedPattern> PreparedA);
  StringView Spelled(StringView PatternA) const;

  const String mCurrency;
  std::mutex mMutex;
  std::array<Entry, 16> mEntries;
  std::size_t mOldest = 0;
};

}  // namespace mur
