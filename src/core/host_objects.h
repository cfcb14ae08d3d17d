#pragma once

class VxApDocument;
class VxDbDatabase;
class VxEdCommandStack;
class VxEditor;
class VxRxDynamicLinker;
class VxRxDictionary;

/// The host's objects in the system registry, each tested for its class. Null if there is none or
/// it is of another class.

VxRxDynamicLinker* dynamicLinker();
VxEdCommandStack* commandStack();
VxEditor* hostEditor();
VxRxDictionary* serviceDictionary();

/// The database that work is done on; null for none.
VxDbDatabase* workingDatabase();
/// The document that commands work in; null for none.
VxApDocument* currentDocument();
