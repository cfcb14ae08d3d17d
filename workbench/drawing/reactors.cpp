#include "workbench/drawing/reactors.h"

namespace workbench::drawing {

void ObjectReactor::openedForModify(const DbObject& /*object*/) {}
void ObjectReactor::modified(const DbObject& /*object*/) {}
void ObjectReactor::erased(const DbObject& /*object*/, bool /*erasing*/) {}
void ObjectReactor::goodbye(const DbObject& /*object*/) {}

void DatabaseReactor::objectAppended(const DbObject& /*object*/) {}
void DatabaseReactor::objectOpenedForModify(const DbObject& /*object*/) {}
void DatabaseReactor::objectModified(const DbObject& /*object*/) {}
void DatabaseReactor::objectErased(const DbObject& /*object*/, bool /*erasing*/) {}
void DatabaseReactor::databaseGoodbye(const Database& /*database*/) {}

}  // namespace workbench::drawing
