// PNG files, through libpng.
#include "painting/pngfile.h"

#include <png.h>

#include <cstring>

namespace zeltk
{

bool readPng(const std::string& fileName, PngPicture* picture)
{
    png_image image;
    std::memset(&image, 0, sizeof image);
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&image, fileName.c_str()))
        return false;
    picture->width = static_cast<int>(image.width);
    picture->height = static_cast<int>(image.height);
    picture->alpha = (image.format & PNG_FORMAT_FLAG_ALPHA) != 0;
    image.format = PNG_FORMAT_RGBA;
    std::vector<png_byte> bytes(PNG_IMAGE_SIZE(image));
    if (!png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr)) {
        png_image_free(&image);
        return false;
    }
    picture->pixels.clear();
    for (size_t i = 0; i < bytes.size(); i += 4)
        picture->pixels.push_back(static_cast<unsigned>(bytes[i + 3]) << 24 |
                                  static_cast<unsigned>(bytes[i]) << 16 |
                                  static_cast<unsigned>(bytes[i + 1]) << 8 | bytes[i + 2]);
    return true;
}

bool writePng(const std::string& fileName, const PngPicture& picture)
{
    png_image image;
    std::memset(&image, 0, sizeof image);
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = picture.alpha ? PNG_FORMAT_RGBA : PNG_FORMAT_RGB;
    std::vector<png_byte> bytes;
    for (const unsigned pixel : picture.pixels) {
        bytes.push_back(static_cast<png_byte>(pixel >> 16 & 0xff));
        bytes.push_back(static_cast<png_byte>(pixel >> 8 & 0xff));
        bytes.push_back(static_cast<png_byte>(pixel & 0xff));
        if (picture.alpha)
            bytes.push_back(static_cast<png_byte>(pixel >> 24));
    }
    return png_image_write_to_file(&image, fileName.c_str(), 0, bytes.data(), 0, nullptr) != 0;
}

} // namespace zeltk
