#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>

class VxDbDatabase;

/// Whether names may be long in a drawing, its EXTNAMES value. Returns 0 on success; another status,
/// with `extended` left alone, without a database.
Zorq::ErrorStatus vxdbGetExtnames(const VxDbDatabase* database, bool& extended);

/// What is known of the names of symbols.
class VxDbSymbolUtilities {
public:
    /// The checks of names.
    class VXHOST Services {
    public:
        virtual ~Services() = default;
        /// Whether names of a drawing are held to the short form: 31 letters, digits, `$`, `_` or `-`.
        /// Otherwise they have up to 255 characters, of which none is a control character or one of
        /// `< > / \ " : ; ? * | , =` or a grave accent.
        virtual bool compatibilityMode(const VxDbDatabase* database) const = 0;
        /// Checks a name. `allowBlanks` lets blanks stand in the short form too, `allowVerticalBar` the
        /// bar that marks what comes from a referenced drawing. Returns 0 for a good name, 3 for a
        /// forbidden character, 160 for a name that is too long, 352 for an empty one or one that
        /// begins or ends with a blank.
        virtual Zorq::ErrorStatus validateSymbolName(const wchar_t* name, bool allowBlanks,
                                                     bool allowVerticalBar,
                                                     bool compatibilityMode) const = 0;
    };

    /// The host's services, null for none. Not handed over.
    static const Services* servicesPtr();
};
