#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>

class VxDbDatabase;

/// Services of the program that runs the object library.
class VXHOST VxDbHostApplicationServices {
public:
    virtual ~VxDbHostApplicationServices() = default;
    /// The program's short name, such as "ZORQ".
    virtual VxString program() const = 0;
    /// The database that work is done on, null for none. While a document's activation is announced it is
    /// that document's already.
    virtual VxDbDatabase* workingDatabase() const = 0;
};

/// The services object, null before the program has set one.
VxDbHostApplicationServices* vxdbHostApplicationServices();

/// Converts the text of a distance. `unit` is a unit mode, -1 for the drawing's own. Returns 5100
/// on success; otherwise `value` is unchanged.
int vxdbDisToF(const wchar_t* text, int unit, double* value);
/// Converts the text of an angle to radians. `unit` is an angle mode (0 decimal degrees), -1 for the
/// drawing's own. Returns 5100 on success; otherwise `value` is unchanged.
int vxdbAngToF(const wchar_t* text, int unit, double* value);
/// Writes a distance. `unit` is a unit mode (2 decimal) and `precision` the number of decimal
/// places, -1 for the drawing's own. Returns 5100 on success.
int vxdbRToS(double value, int unit, int precision, VxString& text);
/// Writes an angle given in radians. `unit` is an angle mode and `precision` the number of decimal
/// places, -1 for the drawing's own. Returns 5100 on success.
int vxdbAngToS(double value, int unit, int precision, VxString& text);
