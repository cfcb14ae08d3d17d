#include "workbench/resources/png_picture.h"

#include "workbench/base/input_error.h"

#include <png.h>

#include <fstream>
#include <sstream>

namespace workbench {

namespace {

constexpr png_uint_32 kMaxSide = 4096;  // pixels

// Ends the decoding however it ends: libpng may hold memory until then.
class ImageScope {
public:
    ImageScope() { m_image.version = PNG_IMAGE_VERSION; }
    ~ImageScope() { png_image_free(&m_image); }
    ImageScope(const ImageScope&) = delete;
    ImageScope& operator=(const ImageScope&) = delete;

    png_image* get() { return &m_image; }

private:
    png_image m_image{};
};

}  // namespace

PngPicture decodePng(const unsigned char* data, std::size_t length, const std::string& place) {
    if (length == 0)
        throw InputError(place, "the picture is empty");

    ImageScope scope;
    png_image* image = scope.get();
    if (png_image_begin_read_from_memory(image, data, length) == 0) {
        throw InputError(place, std::string("not a PNG picture (") + image->message + ")");
    }
    if (image->width > kMaxSide || image->height > kMaxSide) {
        throw InputError(place, "the picture is larger than 4096 by 4096 pixels");
    }

    image->format = PNG_FORMAT_RGBA;
    PngPicture picture{image->width, image->height,
                       std::vector<std::uint8_t>(PNG_IMAGE_SIZE(*image))};
    if (png_image_finish_read(image, nullptr, picture.rgba.data(), 0, nullptr) == 0) {
        throw InputError(place, std::string("damaged PNG picture (") + image->message + ")");
    }
    return picture;
}

PngPicture readPngFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw InputError(file.string(), "the file cannot be opened");

    // A failed read, of a folder for one, shows only in the stream that is written to.
    std::ostringstream content;
    content << stream.rdbuf();
    if (content.bad()) {
        throw InputError(file.string(), "the file cannot be read");
    }
    const std::string bytes = content.str();
    return decodePng(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(),
                     file.string());
}

}  // namespace workbench
