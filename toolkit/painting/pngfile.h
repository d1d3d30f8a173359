// PNG files, through libpng.
#ifndef ZELTK_PNGFILE_H
#define ZELTK_PNGFILE_H

#include <string>
#include <vector>

namespace zeltk
{

struct PngPicture {
    int width;
    int height;
    bool alpha;
    std::vector<unsigned> pixels; // 0xAARRGGBB
};

bool readPng(const std::string& fileName, PngPicture* picture);
bool writePng(const std::string& fileName, const PngPicture& picture);

} // namespace zeltk

#endif
