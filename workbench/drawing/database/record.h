#pragma once

#include "workbench/base/text.h"
#include "workbench/drawing/database/db_object.h"
#include "workbench/drawing/database/property.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace workbench::drawing {

/// The database object around a plain record. `Data` is comparable, names its kind in `kKind` and
/// lists its properties in `static const std::vector<Property<Data>>& properties()`; a member
/// `name` of type std::string makes it an object with a name.
template <class Data>
class Record final : public DbObject {
public:
    Record() = default;
    explicit Record(Data data) : m_data(std::move(data)) {}

    RecordKind kind() const override { return Data::kKind; }

    std::string name() const override {
        if constexpr (requires(const Data& data) { std::string(data.name); }) {
            return m_data.name;
        } else {
            return {};
        }
    }

    std::vector<std::string_view> propertyNames() const override {
        std::vector<std::string_view> names;
        for (const Property<Data>& property : Data::properties()) {
            if (property.saved) {
                names.push_back(property.name);
            }
        }
        return names;
    }

    std::string_view findProperty(std::string_view name) const override {
        for (const Property<Data>& property : Data::properties()) {
            if (equalNoCase(property.name, name)) {
                return property.name;
            }
        }
        return {};
    }

    Value property(std::string_view name, const Database& database) const override {
        return propertyNamed(name).get(m_data, database);
    }

    void setProperty(std::string_view name, const Value& value, const Database& database) override {
        const Property<Data>& property = propertyNamed(name);
        property.checkRange(value);
        property.set(edit(), value, database);
    }

    const Data& data() const { return m_data; }

    /// The record, to be changed. Throws std::logic_error unless the object is writable.
    Data& edit() {
        if (!isWritable()) {
            throw std::logic_error("a record is changed without being open for write");
        }
        return m_data;
    }

protected:
    struct DataState final : State {
        explicit DataState(Data source) : data(std::move(source)) {}
        Data data;
    };

    std::unique_ptr<State> copyState() const override {
        return std::make_unique<DataState>(m_data);
    }

    bool equalsState(const State& state) const override {
        return static_cast<const DataState&>(state).data == m_data;
    }

    void swapState(State& state) override {
        std::swap(static_cast<DataState&>(state).data, m_data);
    }

private:
    static const Property<Data>& propertyNamed(std::string_view name) {
        for (const Property<Data>& property : Data::properties()) {
            if (property.name == name) {
                return property;
            }
        }
        throw ValueError("a " + std::string(kindName(Data::kKind)) + " has no \"" +
                         std::string(name) + "\"");
    }

    Data m_data{};
};

}  // namespace workbench::drawing
