#include "workbench/toolkit/picture_table.h"

#include "workbench/base/input_error.h"

namespace workbench {

namespace {

std::uintptr_t numberOf(HBITMAP picture) {
    return reinterpret_cast<std::uintptr_t>(picture);
}

}  // namespace

HBITMAP PictureTable::add(std::string source, std::vector<std::uint8_t> png,
                          std::vector<std::uint8_t> fine) {
    return keep(Picture{std::move(source), std::move(png), std::move(fine), {}});
}

HBITMAP PictureTable::addDecoded(std::string source, PngPicture pixels) {
    return keep(Picture{std::move(source), {}, {}, std::move(pixels)});
}

HBITMAP PictureTable::keep(Picture picture) {
    m_pictures.emplace(++m_lastNumber, std::move(picture));
    return reinterpret_cast<HBITMAP>(m_lastNumber);
}

void PictureTable::release(HBITMAP picture) {
    m_pictures.erase(numberOf(picture));
}

const std::string& PictureTable::source(HBITMAP picture) const {
    static const std::string kNone;
    const auto found = m_pictures.find(numberOf(picture));
    return found == m_pictures.end() ? kNone : found->second.source;
}

const PictureTable::Picture& PictureTable::present(HBITMAP picture) const {
    const auto found = m_pictures.find(numberOf(picture));
    if (found == m_pictures.end())
        throw InputError("picture", "it was given back");
    return found->second;
}

PngPicture PictureTable::pixels(HBITMAP picture) const {
    const Picture& known = present(picture);
    if (known.pixels)
        return *known.pixels;
    return decodePng(known.png.data(), known.png.size(), known.source);
}

PngPicture PictureTable::finePixels(HBITMAP picture) const {
    const Picture& known = present(picture);
    return decodePng(known.fine.data(), known.fine.size(), known.source);
}

}  // namespace workbench
