#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>

class VxDbDatabase;

/// Receives the input events of one document. Not owned by the document.
class VXHOST VxEdInputContextReactor {
public:
    virtual ~VxEdInputContextReactor() = default;
    /// A prompt for input begins.
    virtual void beginInput() {}
    /// A prompt for input ends.
    virtual void endInput() {}
    /// The document's command processor came to its outermost rest.
    virtual void beginQuiescentState() {}
    /// The document's command processor leaves its rest.
    virtual void endQuiescentState() {}
};

/// The source of a document's input events.
class VXHOST VxEdInputManager {
public:
    virtual ~VxEdInputManager() = default;
    virtual void addReactor(VxEdInputContextReactor* reactor) = 0;
    virtual void removeReactor(VxEdInputContextReactor* reactor) = 0;
};

/// An open document. Owned by the host, and gone after the event that it is to be destroyed.
class VXHOST VxApDocument {
public:
    virtual ~VxApDocument() = default;
    /// The document's database.
    virtual VxDbDatabase* database() const = 0;
    /// The bits of the present lock: 0 none, 1 automatic write, 2 not locked, 4 write, 8 protected
    /// write, 16 exclusive write, 32 read.
    virtual int lockMode() const = 0;
    /// The document's input manager.
    virtual VxEdInputManager* inputManager() = 0;
};

/// Bit of a document's lock mode: locked for writing.
constexpr int kDocLockWrite = 4;

/// Receives the events of all documents. Not owned by the manager.
class VXHOST VxApDocManagerReactor {
public:
    virtual ~VxApDocManagerReactor() = default;
    /// A document was created; the count includes it.
    virtual void documentCreated(VxApDocument* /*document*/) {}
    /// A document is about to go.
    virtual void documentToBeDestroyed(VxApDocument* /*document*/) {}
    /// A document went; the count still includes it.
    virtual void documentDestroyed(const wchar_t* /*fileName*/) {}
    /// A document became the current one.
    virtual void documentBecameCurrent(VxApDocument* /*document*/) {}
    /// A document is about to be activated.
    virtual void documentToBeActivated(VxApDocument* /*document*/) {}
};

/// The documents of the host.
class VXHOST VxApDocManager {
public:
    virtual ~VxApDocManager() = default;
    virtual int documentCount() const = 0;
    /// The document that commands work in, null for none.
    virtual VxApDocument* curDocument() const = 0;
    /// The document whose window is active, null for none.
    virtual VxApDocument* mdiActiveDocument() const = 0;
    virtual void addReactor(VxApDocManagerReactor* reactor) = 0;
    virtual void removeReactor(VxApDocManagerReactor* reactor) = 0;
    /// Locks a document in a mode (4 is write) for a command of these names. 0 on success; the status
    /// of a lock violation while another owner's lock is in the way, and a box tells the user so if
    /// `prompt`. All locks by this call have one owner, and so has each `VxAxDocLock` and each running
    /// command. The locks of one owner never stand in its own way; those of others do where one of the
    /// two is exclusive, or where one is protected and the other for writing too. A module that writes to a drawing outside of a command needs
    /// a lock for writing: without one no system variable of the drawing can be set, no object be opened
    /// for writing and no view be stepped back. The view of a viewport is the graphics system's,
    /// and needs none.
    virtual Zorq::ErrorStatus lockDocument(VxApDocument* document, int mode,
                                           const wchar_t* globalCommand,
                                           const wchar_t* localCommand, bool prompt) = 0;
    /// Ends the last lock that `lockDocument` has taken of a document; those of `VxAxDocLock` and of
    /// running commands stay. 0 on success.
    virtual Zorq::ErrorStatus unlockDocument(VxApDocument* document) = 0;
    /// Queues text for a document's command line; the cancel characters (3) end what runs when the
    /// processor comes to them. `activate` brings the document to the front, `wrapUpInactive` ends
    /// another document's pending input, `echo` shows the text. 0 on success.
    virtual Zorq::ErrorStatus sendToCommandLine(VxApDocument* document, const wchar_t* text,
                                                bool activate, bool wrapUpInactive, bool echo) = 0;
};

/// The document manager.
VxApDocManager* vxDocManagerPtr();

/// Locks a document, or that of a database, for the life of this object. Mode 1 is write; 0 leaves the
/// choice to the host, which locks for writing. Nothing happens for null. Where another owner's lock is
/// in the way nothing is locked, and writing to the drawing is refused meanwhile.
class VXHOST VxAxDocLock {
public:
    VxAxDocLock(VxDbDatabase* database, int mode);
    explicit VxAxDocLock(VxApDocument* document, int mode = 0);
    VxAxDocLock(const VxAxDocLock&) = delete;
    VxAxDocLock& operator=(const VxAxDocLock&) = delete;
    ~VxAxDocLock();

private:
    VxApDocument* m_document = nullptr;  // null when there was nothing to lock; not owned
};
