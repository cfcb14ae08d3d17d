#include "workbench/windows/collation.h"

#include "workbench/base/text.h"

#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <stdexcept>
#include <utility>

namespace workbench {

struct Collation::Order {
    std::unique_ptr<icu::Collator> collator;
};

Collation::Collation(std::string locale)
    : m_locale(std::move(locale)),
      m_order(std::make_unique<Order>()) {
    UErrorCode status = U_ZERO_ERROR;
    m_order->collator.reset(icu::Collator::createInstance(icu::Locale(m_locale.c_str()), status));
    if (U_FAILURE(status) || m_order->collator == nullptr)
        throw std::runtime_error("no order of texts for the locale " + m_locale);
    m_order->collator->setStrength(icu::Collator::SECONDARY);
}

Collation::~Collation() = default;

int Collation::compareNoCase(std::wstring_view left, std::wstring_view right) const {
    UErrorCode status = U_ZERO_ERROR;
    return m_order->collator->compare(icu::UnicodeString::fromUTF8(toUtf8(left)),
                                      icu::UnicodeString::fromUTF8(toUtf8(right)), status);
}

}  // namespace workbench
