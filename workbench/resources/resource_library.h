#pragma once

#include "workbench/resources/resource_directory.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace workbench {

/// The bytes of a picture in a resource module.
struct PictureBytes {
    const unsigned char* data;  ///< a PNG file; belongs to the module
    std::uint32_t length;       ///< number of bytes
};

/// Looks texts and pictures up in a loaded resource module.
/// A view: it owns nothing, and what it hands out is valid as long as the module stays loaded.
class ResourceLibrary {
public:
    /// A null directory stands for a module without resources.
    explicit ResourceLibrary(const ResourceDirectory* directory);

    /// The text (UTF-8) with this number, or nothing.
    std::optional<std::string_view> findString(std::uint32_t id) const;

    /// The picture with exactly this key and height in pixels, or nothing. Keys are case-sensitive.
    std::optional<PictureBytes> findPicture(std::string_view key, std::uint32_t size) const;

private:
    const ResourceDirectory* m_directory;  // not owned; null if there are no resources
};

}  // namespace workbench
