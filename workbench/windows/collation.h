#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace workbench {

/// Order of texts in a user's language.
class Collation {
public:
    /// `locale` such as "en_US"; one that is unknown gets the order of the root locale. Throws
    /// std::runtime_error if there is no order at all.
    explicit Collation(std::string locale);
    Collation(const Collation&) = delete;
    Collation& operator=(const Collation&) = delete;
    ~Collation();

    const std::string& locale() const { return m_locale; }
    /// Below, equal to or above 0; case and accents count.
    int compare(std::wstring_view left, std::wstring_view right) const;
    /// Below, equal to or above 0; case is ignored, accents are not.
    int compareNoCase(std::wstring_view left, std::wstring_view right) const;

private:
    struct Order;

    std::string m_locale;
    std::unique_ptr<Order> m_exact;
    std::unique_ptr<Order> m_noCase;
};

}  // namespace workbench
