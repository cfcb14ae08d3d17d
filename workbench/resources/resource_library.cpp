#include "workbench/resources/resource_library.h"

#include <algorithm>
#include <tuple>

namespace workbench {

ResourceLibrary::ResourceLibrary(const ResourceDirectory* directory) : m_directory(directory) {}

std::optional<std::string_view> ResourceLibrary::findString(std::uint32_t id) const {
    if (m_directory == nullptr)
        return std::nullopt;

    const ResourceString* end = m_directory->strings + m_directory->stringCount;
    const ResourceString* found = std::lower_bound(
        m_directory->strings, end, id,
        [](const ResourceString& entry, std::uint32_t wanted) { return entry.id < wanted; });
    if (found == end || found->id != id)
        return std::nullopt;
    return std::string_view(found->text);
}

std::optional<PictureBytes> ResourceLibrary::findPicture(std::string_view key,
                                                         std::uint32_t size) const {
    if (m_directory == nullptr)
        return std::nullopt;

    const auto wanted = std::make_tuple(key, size);
    const ResourcePicture* end = m_directory->pictures + m_directory->pictureCount;
    const auto place = [](const ResourcePicture& entry) {
        return std::make_tuple(std::string_view(entry.key), entry.size);
    };
    const ResourcePicture* found =
        std::lower_bound(m_directory->pictures, end, wanted,
                         [&place](const ResourcePicture& entry, const auto& sought) {
                             return place(entry) < sought;
                         });
    if (found == end || place(*found) != wanted)
        return std::nullopt;
    return PictureBytes{found->png, found->length};
}

}  // namespace workbench
