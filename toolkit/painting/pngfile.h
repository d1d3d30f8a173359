// PNG files, through libpng.
#ifndef ZELTK_PNGFILE_H
#define ZELTK_PNGFILE_H

#include <cstddef>
#include <string>
#include <vector>

namespace zeltk
{

struct PngPicture {
    int width = 0;
    int height = 0;
    bool alpha = false;
    std::vector<unsigned> pixels = {}; // 0xAARRGGBB
    int offsetX = 0;
    int offsetY = 0;
    int dotsPerMeterX = 0; // 0: unknown
    int dotsPerMeterY = 0;
};

// Whether the bytes begin as a PNG file does.
bool looksLikePng(const unsigned char* bytes, size_t length);
// False, and the picture is undefined, if the bytes are no PNG file, a broken one, or one of more pixels than
// an image can have.
bool decodePng(const unsigned char* bytes, size_t length, PngPicture* picture);
// Empty if libpng refuses. The level is that of zlib, 0 to 9, or -1 for its own choice.
std::string encodePng(const PngPicture& picture, int level);

} // namespace zeltk

#endif
