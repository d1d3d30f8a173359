// QImage: files.
#include <qimage.h>

#include "painting/imagedata.h"
#include "painting/pngfile.h"
#include "tools/unicode.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace
{

const char formatName[] = "PNG";

// Empty if the file cannot be read, as a folder cannot.
std::string contentsOf(const QString& fileName)
{
    std::ifstream file(zeltk::toUtf8(fileName), std::ios::binary);
    std::ostringstream contents;
    contents << file.rdbuf();
    return contents.str();
}

const uchar* bytesOf(const std::string& file)
{
    return reinterpret_cast<const uchar*>(file.data());
}

// From quality 0, packed as well as zlib can, to 100, not packed.
int packingFor(int quality)
{
    const int best = 9;
    return quality < 0 ? -1 : best - std::min(quality, 100) * best / 100;
}

} // namespace

QStrList QImage::inputFormats()
{
    QStrList formats;
    formats.append(formatName);
    return formats;
}

QStrList QImage::outputFormats()
{
    return inputFormats();
}

QStringList QImage::inputFormatList()
{
    return QStringList(QString(formatName));
}

QStringList QImage::outputFormatList()
{
    return inputFormatList();
}

const char* QImage::imageFormat(const QString& fileName)
{
    const std::string file = contentsOf(fileName);
    return zeltk::looksLikePng(bytesOf(file), file.size()) ? formatName : nullptr;
}

bool QImage::load(const QString& fileName, const char* format)
{
    const std::string file = contentsOf(fileName);
    return loadFromData(bytesOf(file), static_cast<uint>(file.size()), format);
}

bool QImage::loadFromData(const uchar* bytes, uint length, const char* format)
{
    zeltk::PngPicture picture;
    if ((format && qstrcmp(format, formatName) != 0) || !zeltk::decodePng(bytes, length, &picture) ||
        !create(picture.width, picture.height, 32))
        return false;
    std::copy(picture.pixels.begin(), picture.pixels.end(), d->pixels.begin());
    d->alpha = picture.alpha;
    d->offset = QPoint(picture.offsetX, picture.offsetY);
    d->dotsPerMeterX = picture.dotsPerMeterX;
    d->dotsPerMeterY = picture.dotsPerMeterY;
    return true;
}

// Qt takes the array by value. NOLINTNEXTLINE(performance-unnecessary-value-param)
bool QImage::loadFromData(QByteArray data, const char* format)
{
    return loadFromData(reinterpret_cast<const uchar*>(data.data()), data.size(), format);
}

bool QImage::save(const QString& fileName, const char* format, int quality) const
{
    if (isNull())
        return false;
    if (!format || qstrcmp(format, formatName) != 0) {
        qWarning("QImageIO::write: No such image format handler: %s", format ? format : "");
        return false;
    }
    const std::string bytes = zeltk::encodePng({d->width, d->height, d->alpha, d->pixels, d->offset.x(),
                                                d->offset.y(), d->dotsPerMeterX, d->dotsPerMeterY},
                                               packingFor(quality));
    std::ofstream file(zeltk::toUtf8(fileName), std::ios::binary);
    file << bytes;
    file.close();
    return !bytes.empty() && !file.fail();
}
