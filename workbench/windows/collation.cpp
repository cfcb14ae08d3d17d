#include "workbench/windows/collation.h"

#include "workbench/base/text.h"

#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <stdexcept>
#include <utility>

namespace workbench {

struct Collation::Order {
    Order(const std::string& locale, icu::Collator::ECollationStrength strength);
    int compare(std::wstring_view left, std::wstring_view right) const;

    std::unique_ptr<icu::Collator> collator;
};

Collation::Order::Order(const std::string& locale, icu::Collator::ECollationStrength strength) {
    UErrorCode status = U_ZERO_ERROR;
    collator.reset(icu::Collator::createInstance(icu::Locale(locale.c_str()), status));
    if (U_FAILURE(status) || collator == nullptr)
        throw std::runtime_error("no order of texts for the locale " + locale);
    collator->setStrength(strength);
}

int Collation::Order::compare(std::wstring_view left, std::wstring_view right) const {
    UErrorCode status = U_ZERO_ERROR;
    return collator->compare(icu::UnicodeString::fromUTF8(toUtf8(left)),
                             icu::UnicodeString::fromUTF8(toUtf8(right)), status);
}

Collation::Collation(std::string locale)
    : m_locale(std::move(locale)),
      m_exact(std::make_unique<Order>(m_locale, icu::Collator::TERTIARY)),
      m_noCase(std::make_unique<Order>(m_locale, icu::Collator::SECONDARY)) {}

Collation::~Collation() = default;

int Collation::compare(std::wstring_view left, std::wstring_view right) const {
    return m_exact->compare(left, right);
}

int Collation::compareNoCase(std::wstring_view left, std::wstring_view right) const {
    return m_noCase->compare(left, right);
}

}  // namespace workbench
