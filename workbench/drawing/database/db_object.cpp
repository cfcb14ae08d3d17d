#include "workbench/drawing/database/db_object.h"

#include "workbench/drawing/database/database.h"

#include <utility>

namespace workbench::drawing {

/// Takes a changed state back, and brings it again.
class ObjectChange final : public UndoRecord {
public:
    ObjectChange(DbObject& object, std::unique_ptr<DbObject::State> other)
        : m_object(object),
          m_other(std::move(other)) {}

    void exchange() override {
        m_object.tellOpenedForModify();
        m_object.swapState(*m_other);
        m_object.tellModified();
    }

private:
    DbObject& m_object;  // lives as long as its database, which owns the log
    std::unique_ptr<DbObject::State> m_other;
};

/// Takes an erasure, a return or an addition back, and brings it again.
class ErasureChange final : public UndoRecord {
public:
    explicit ErasureChange(DbObject& object) : m_object(object) {}

    void exchange() override {
        m_object.tellOpenedForModify();
        m_object.m_erased = !m_object.m_erased;
        m_object.tellErased();
    }

private:
    DbObject& m_object;
};

std::unique_ptr<UndoRecord> DbObject::erasureChange() {
    return std::make_unique<ErasureChange>(*this);
}

std::string DbObject::name() const {
    return {};
}

std::vector<std::string_view> DbObject::propertyNames() const {
    return {};
}

std::string_view DbObject::findProperty(std::string_view /*name*/) const {
    return {};
}

Value DbObject::property(std::string_view name, const Database& /*database*/) const {
    throw ValueError("there is no \"" + std::string(name) + "\" here");
}

void DbObject::setProperty(std::string_view name, const Value& /*value*/,
                           const Database& /*database*/) {
    throw ValueError("there is no \"" + std::string(name) + "\" here");
}

bool DbObject::isUndoing() const {
    return m_database != nullptr && m_database->undoLog().isUndoing();
}

Status DbObject::upgradeOpen() {
    if (m_database == nullptr) {
        return Status::NotInDatabase;
    }
    if (m_writing) {
        return Status::WasOpenForWrite;
    }
    if (m_readers == 0) {
        return Status::NotOpen;
    }
    if (m_readers > 1) {
        return Status::WasOpenForRead;
    }
    m_readers = 0;
    startWriting();
    return Status::Ok;
}

Status DbObject::close() {
    if (m_database == nullptr) {
        return Status::NotInDatabase;
    }
    if (m_writing) {
        finishWriting();
        return Status::Ok;
    }
    if (m_readers == 0) {
        return Status::NotOpen;
    }
    --m_readers;
    return Status::Ok;
}

Status DbObject::cancel() {
    if (!m_writing) {
        return Status::NotOpenForWrite;
    }
    swapState(*m_before);
    m_erased = m_erasedBefore;
    m_before.reset();
    m_writing = false;
    return Status::Ok;
}

Status DbObject::erase(bool erasing) {
    if (!m_writing) {
        return m_database == nullptr ? Status::NotInDatabase : Status::NotOpenForWrite;
    }
    m_erased = erasing;
    return Status::Ok;
}

void DbObject::startWriting() {
    m_writing = true;
    m_before = copyState();
    m_erasedBefore = m_erased;
    tellOpenedForModify();
}

void DbObject::finishWriting() {
    std::unique_ptr<State> before = std::move(m_before);
    const bool changed = !equalsState(*before);
    const bool erasureChanged = m_erased != m_erasedBefore;
    m_writing = false;
    {
        UndoLog& log = m_database->undoLog();
        const UndoGroup together(log, std::string());
        if (changed) {
            log.add(std::make_unique<ObjectChange>(*this, std::move(before)));
        }
        if (erasureChanged) {
            log.add(erasureChange());
        }
    }
    if (changed) {
        tellModified();
    }
    if (erasureChanged) {
        tellErased();
    }
}

void DbObject::tellOpenedForModify() {
    m_reactors.notify([this](ObjectReactor& reactor) { reactor.openedForModify(*this); });
    m_database->m_reactors.notify(
        [this](DatabaseReactor& reactor) { reactor.objectOpenedForModify(*this); });
}

void DbObject::tellModified() {
    m_reactors.notify([this](ObjectReactor& reactor) { reactor.modified(*this); });
    m_database->m_reactors.notify(
        [this](DatabaseReactor& reactor) { reactor.objectModified(*this); });
}

void DbObject::tellErased() {
    const bool erasing = m_erased;
    m_reactors.notify([this, erasing](ObjectReactor& reactor) { reactor.erased(*this, erasing); });
    m_database->m_reactors.notify(
        [this, erasing](DatabaseReactor& reactor) { reactor.objectErased(*this, erasing); });
    DbObject& table = *m_database->find(m_database->table(kind()));
    table.tellOpenedForModify();
    table.tellModified();
}

}  // namespace workbench::drawing
