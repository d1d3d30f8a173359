// PNG files, through libpng.
#include "painting/pngfile.h"

#include <png.h>

#include <algorithm>
#include <csetjmp>
#include <cstring>
#include <new>

namespace zeltk
{

namespace
{

// An image has no more, so that its bytes can be counted in an int.
constexpr int mostBytes = 0x7fffffff;

struct Bytes {
    const unsigned char* next;
    size_t left;
};

void takeBytes(png_structp png, png_bytep to, size_t length)
{
    Bytes* bytes = static_cast<Bytes*>(png_get_io_ptr(png));
    if (length > bytes->left)
        png_error(png, "the file ends early");
    std::memcpy(to, bytes->next, length);
    bytes->next += length;
    bytes->left -= length;
}

void putBytes(png_structp png, png_bytep from, size_t length)
{
    static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<char*>(from), length);
}

void nothingToFlush(png_structp) {}

// The program asks whether it worked; libpng need not write to its error output as well.
[[noreturn]] void fail(png_structp png, png_const_charp)
{
    png_longjmp(png, 1);
}

void ignore(png_structp, png_const_charp) {}

// Between setjmp and the end no object may be made that has a destructor: fail() jumps over it.
bool readHeader(png_structp png, png_infop info, PngPicture* picture)
{
    if (setjmp(png_jmpbuf(png)))
        return false;
    png_read_info(png, info);
    picture->width = static_cast<int>(png_get_image_width(png, info));
    picture->height = static_cast<int>(png_get_image_height(png, info));
    picture->alpha =
        (png_get_color_type(png, info) & PNG_COLOR_MASK_ALPHA) || png_get_valid(png, info, PNG_INFO_tRNS);
    picture->dotsPerMeterX = static_cast<int>(png_get_x_pixels_per_meter(png, info));
    picture->dotsPerMeterY = static_cast<int>(png_get_y_pixels_per_meter(png, info));
    picture->offsetX = png_get_x_offset_pixels(png, info);
    picture->offsetY = png_get_y_offset_pixels(png, info);
    png_set_expand(png);
    png_set_scale_16(png);
    png_set_gray_to_rgb(png);
    png_set_add_alpha(png, 0xff, PNG_FILLER_AFTER);
    png_set_interlace_handling(png);
    png_read_update_info(png, info);
    return picture->width <= mostBytes / 4 / picture->height;
}

bool readRows(png_structp png, png_bytepp rows)
{
    if (setjmp(png_jmpbuf(png)))
        return false;
    png_read_image(png, rows);
    png_read_end(png, nullptr);
    return true;
}

bool writeAll(png_structp png, png_infop info, const PngPicture& picture, png_bytepp rows)
{
    if (setjmp(png_jmpbuf(png)))
        return false;
    png_set_IHDR(png, info, static_cast<png_uint_32>(picture.width), static_cast<png_uint_32>(picture.height),
                 8, picture.alpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (picture.dotsPerMeterX > 0 && picture.dotsPerMeterY > 0)
        png_set_pHYs(png, info, static_cast<png_uint_32>(picture.dotsPerMeterX),
                     static_cast<png_uint_32>(picture.dotsPerMeterY), PNG_RESOLUTION_METER);
    if (picture.offsetX != 0 || picture.offsetY != 0)
        png_set_oFFs(png, info, picture.offsetX, picture.offsetY, PNG_OFFSET_PIXEL);
    png_write_info(png, info);
    png_write_image(png, rows);
    png_write_end(png, info);
    return true;
}

std::vector<png_bytep> rowsOf(png_bytep bytes, size_t length, int height)
{
    std::vector<png_bytep> rows(static_cast<size_t>(height));
    for (size_t y = 0; y < rows.size(); ++y)
        rows[y] = bytes + y * length;
    return rows;
}

// The four bytes of a pixel lie where the pixel is to be.
bool readPixels(png_structp png, PngPicture* picture)
{
    const size_t width = static_cast<size_t>(picture->width);
    picture->pixels.resize(width * static_cast<size_t>(picture->height));
    png_bytep bytes = reinterpret_cast<png_bytep>(picture->pixels.data());
    std::vector<png_bytep> rows = rowsOf(bytes, width * sizeof picture->pixels[0], picture->height);
    if (!readRows(png, rows.data()))
        return false;
    for (unsigned& pixel : picture->pixels) {
        png_byte rgba[4];
        std::memcpy(rgba, &pixel, sizeof rgba);
        pixel = static_cast<unsigned>(rgba[3]) << 24 | static_cast<unsigned>(rgba[0]) << 16 |
                static_cast<unsigned>(rgba[1]) << 8 | rgba[2];
    }
    return true;
}

// A short file may claim to be a picture that no memory can hold.
bool readPicture(png_structp png, png_infop info, PngPicture* picture)
{
    try {
        return readHeader(png, info, picture) && readPixels(png, picture);
    } catch (const std::bad_alloc&) {
        return false;
    }
}

std::vector<png_byte> bytesOf(const PngPicture& picture)
{
    std::vector<png_byte> bytes;
    for (const unsigned pixel : picture.pixels) {
        bytes.push_back(static_cast<png_byte>(pixel >> 16 & 0xff));
        bytes.push_back(static_cast<png_byte>(pixel >> 8 & 0xff));
        bytes.push_back(static_cast<png_byte>(pixel & 0xff));
        if (picture.alpha)
            bytes.push_back(static_cast<png_byte>(pixel >> 24));
    }
    return bytes;
}

} // namespace

bool looksLikePng(const unsigned char* bytes, size_t length)
{
    const size_t signatureLength = 8;
    return length >= signatureLength && png_sig_cmp(bytes, 0, signatureLength) == 0;
}

bool decodePng(const unsigned char* bytes, size_t length, PngPicture* picture)
{
    if (!looksLikePng(bytes, length))
        return false;
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, ignore);
    png_infop info = png_create_info_struct(png);
    Bytes source = {bytes, length};
    png_set_read_fn(png, &source, takeBytes);
    const bool good = readPicture(png, info, picture);
    png_destroy_read_struct(&png, &info, nullptr);
    return good;
}

std::string encodePng(const PngPicture& picture, int level)
{
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, ignore);
    png_infop info = png_create_info_struct(png);
    std::string file;
    png_set_write_fn(png, &file, putBytes, nothingToFlush);
    if (level >= 0)
        png_set_compression_level(png, level);
    std::vector<png_byte> bytes = bytesOf(picture);
    std::vector<png_bytep> rows =
        rowsOf(bytes.data(), bytes.size() / static_cast<size_t>(picture.height), picture.height);
    const bool good = writeAll(png, info, picture, rows.data());
    png_destroy_write_struct(&png, &info);
    return good ? file : std::string();
}

} // namespace zeltk
