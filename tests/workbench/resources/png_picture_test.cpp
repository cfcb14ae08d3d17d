#include "workbench/resources/png_picture.h"

#include "tests/support/temporary_folder.h"
#include "workbench/base/input_error.h"

#include <gtest/gtest.h>
#include <png.h>

#include <fstream>

namespace workbench {
namespace {

/// The bytes of a PNG file with these pixels.
std::vector<unsigned char> encode(std::uint32_t width, std::uint32_t height,
                                  const std::vector<std::uint8_t>& pixels, unsigned format) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = width;
    image.height = height;
    image.format = format;
    png_alloc_size_t length = 0;
    png_image_write_to_memory(&image, nullptr, &length, 0, pixels.data(), 0, nullptr);
    std::vector<unsigned char> bytes(length);
    png_image_write_to_memory(&image, bytes.data(), &length, 0, pixels.data(), 0, nullptr);
    bytes.resize(length);
    return bytes;
}

std::string messageOf(const std::vector<unsigned char>& bytes) {
    try {
        decodePng(bytes.data(), bytes.size(), "the key");
    } catch (const InputError& error) {
        return error.what();
    }
    return "no error";
}

const std::vector<std::uint8_t> kTwoPixels{255, 0, 0, 255, 0, 0, 255, 128};

TEST(PngPictureTest, DecodesPixelsWithTheirAlpha) {
    const auto bytes = encode(2, 1, kTwoPixels, PNG_FORMAT_RGBA);
    const PngPicture picture = decodePng(bytes.data(), bytes.size(), "the key");
    EXPECT_EQ(picture.width, 2U);
    EXPECT_EQ(picture.height, 1U);
    EXPECT_EQ(picture.rgba, kTwoPixels);
}

TEST(PngPictureTest, PicturesWithoutAlphaAreOpaque) {
    const auto bytes = encode(1, 2, {10, 20, 30, 40, 50, 60}, PNG_FORMAT_RGB);
    const PngPicture picture = decodePng(bytes.data(), bytes.size(), "the key");
    EXPECT_EQ(picture.rgba, (std::vector<std::uint8_t>{10, 20, 30, 255, 40, 50, 60, 255}));
}

TEST(PngPictureTest, ErrorsNameThePlaceAndTheReason) {
    EXPECT_EQ(messageOf({}), "the key: the picture is empty");
    EXPECT_EQ(
        messageOf({'G', 'I', 'F', '8', '9', 'a', 0, 0}).rfind("the key: not a PNG picture", 0), 0U);
}

TEST(PngPictureTest, ATruncatedPictureIsDamaged) {
    std::vector<std::uint8_t> pixels(64 * 64 * 4);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = static_cast<std::uint8_t>(i * 7919);
    auto bytes = encode(64, 64, pixels, PNG_FORMAT_RGBA);
    bytes.resize(bytes.size() / 2);
    EXPECT_EQ(messageOf(bytes).rfind("the key: damaged PNG picture", 0), 0U);
}

TEST(PngPictureTest, TheLargestSideIs4096) {
    const auto widest = encode(4096, 1, std::vector<std::uint8_t>(4096 * 4), PNG_FORMAT_RGBA);
    EXPECT_EQ(decodePng(widest.data(), widest.size(), "the key").width, 4096U);
    const auto tooWide = encode(4097, 1, std::vector<std::uint8_t>(4097 * 4), PNG_FORMAT_RGBA);
    EXPECT_EQ(messageOf(tooWide), "the key: the picture is larger than 4096 by 4096 pixels");
}

TEST(PngPictureTest, ReadsAFileAndNamesAMissingOne) {
    const support::TemporaryFolder folder;
    const auto file = folder.path / "picture.png";
    const auto bytes = encode(2, 1, kTwoPixels, PNG_FORMAT_RGBA);
    folder.write("picture.png", std::string(bytes.begin(), bytes.end()));
    EXPECT_EQ(readPngFile(file).rgba, kTwoPixels);
    std::filesystem::remove(file);

    try {
        readPngFile(file);
        FAIL() << "a missing file was read";
    } catch (const InputError& error) {
        EXPECT_EQ(std::string(error.what()), file.string() + ": the file cannot be opened");
    }
}

TEST(PngPictureTest, AFolderIsNoPictureAndAnEmptyFileNeither) {
    const support::TemporaryFolder folder;
    EXPECT_THROW(readPngFile(folder.path), InputError);

    folder.write("empty.png", "");
    EXPECT_THROW(readPngFile(folder.path / "empty.png"), InputError);
}

}  // namespace
}  // namespace workbench
