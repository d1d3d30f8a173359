// PNG files.
#include "messages.h"

#include <gtest/gtest.h>
#include <qimage.h>
#include <qpixmap.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>

namespace
{

class Png : public testing::Test
{
protected:
    Png()
    {
        char pattern[] = "/tmp/pngXXXXXX";
        folder = mkdtemp(pattern);
        file = folder + "/picture.png";
    }
    ~Png() override
    {
        std::remove(file.c_str());
        rmdir(folder.c_str());
    }

    std::string folder;
    std::string file;
};

QImage gradient(bool alpha)
{
    QImage image(23, 17, 32);
    image.setAlphaBuffer(alpha);
    for (int y = 0; y < 17; ++y)
        for (int x = 0; x < 23; ++x)
            image.setPixel(x, y, qRgba(x * 11, y * 15, x * y % 256, alpha ? x * 10 : 255));
    return image;
}

std::string contentsOf(const std::string& file)
{
    std::ifstream in(file, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

std::string fourBytes(std::uint32_t number)
{
    return {static_cast<char>(number >> 24), static_cast<char>(number >> 16), static_cast<char>(number >> 8),
            static_cast<char>(number)};
}

// The check sum that ends each part of a PNG file.
std::uint32_t checkSum(const std::string& part)
{
    std::uint32_t sum = 0xffffffff;
    for (const char c : part) {
        sum ^= static_cast<std::uint8_t>(c);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum & 1 ? sum >> 1 ^ 0xedb88320 : sum >> 1;
    }
    return ~sum;
}

// The file of a small picture, whose header says that it is larger. The header follows eight bytes of
// signature and four of length; its name is followed by width and height.
std::string claimingToBe(std::uint32_t width, std::uint32_t height, std::string file)
{
    const size_t header = 12, length = 17;
    file.replace(header + 4, 8, fourBytes(width) + fourBytes(height));
    return file.replace(header + length, 4, fourBytes(checkSum(file.substr(header, length))));
}

} // namespace

TEST_F(Png, ComesBackAsItWasSaved)
{
    for (const bool alpha : {false, true}) {
        const QImage image = gradient(alpha);
        ASSERT_TRUE(image.save(file.c_str(), "PNG"));
        const QImage back(file.c_str());
        EXPECT_EQ(image, back);
        EXPECT_EQ(alpha, back.hasAlphaBuffer());
    }
}

TEST_F(Png, IsReadFromMemoryToo)
{
    ASSERT_TRUE(gradient(true).save(file.c_str(), "PNG"));
    const std::string bytes = contentsOf(file);
    QByteArray data;
    data.duplicate(bytes.data(), static_cast<uint>(bytes.size()));
    QImage image;
    EXPECT_TRUE(image.loadFromData(data));
    EXPECT_EQ(gradient(true), image);
    EXPECT_EQ(gradient(true), QImage(data));
    EXPECT_FALSE(image.loadFromData(data, "GIF"));
    for (const uint length : {0U, 4U, 8U, 30U, data.size() / 2, data.size() - 13}) {
        EXPECT_FALSE(image.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), length)) << length;
        EXPECT_EQ(gradient(true), image) << "a broken file leaves it as it is";
    }
}

TEST_F(Png, KeepsPlaceAndResolution)
{
    QImage image = gradient(false);
    image.setOffset(QPoint(4, -5));
    image.setDotsPerMeterX(3937);
    image.setDotsPerMeterY(2835);
    ASSERT_TRUE(image.save(file.c_str(), "PNG"));
    const QImage back(file.c_str());
    EXPECT_EQ(QPoint(4, -5), back.offset());
    EXPECT_EQ(3937, back.dotsPerMeterX());
    EXPECT_EQ(2835, back.dotsPerMeterY());
}

TEST_F(Png, IsLargerForMoreQuality)
{
    long length[2] = {0, 0};
    for (const int quality : {0, 100}) {
        ASSERT_TRUE(gradient(false).save(file.c_str(), "PNG", quality));
        EXPECT_EQ(gradient(false), QImage(file.c_str()));
        std::ifstream in(file, std::ios::binary | std::ios::ate);
        length[quality / 100] = static_cast<long>(in.tellg());
    }
    EXPECT_LT(length[0], length[1]);
}

TEST_F(Png, IsTheFormatThereIs)
{
    EXPECT_EQ(nullptr, QImage::imageFormat(file.c_str()));
    ASSERT_TRUE(gradient(false).save(file.c_str(), "PNG"));
    EXPECT_STREQ("PNG", QImage::imageFormat(file.c_str()));
    EXPECT_EQ(1u, QImage::inputFormatList().contains("PNG"));
    EXPECT_EQ(1u, QImage::outputFormatList().contains("PNG"));
    EXPECT_STREQ("PNG", QImage::inputFormats().at(0));
    EXPECT_STREQ("PNG", QImage::outputFormats().at(0));
    EXPECT_FALSE(gradient(false).save(file.c_str(), "png"));
    EXPECT_EQ("QImageIO::write: No such image format handler: png\n", takeMessages());
}

TEST_F(Png, MayHoldPixmaps)
{
    const QPixmap pixmap(gradient(false));
    ASSERT_TRUE(pixmap.save(file.c_str(), "PNG"));
    QPixmap back;
    ASSERT_TRUE(back.load(file.c_str()));
    EXPECT_EQ(pixmap.convertToImage(), back.convertToImage());
    EXPECT_FALSE(QPixmap(file.c_str()).isNull());
}

TEST_F(Png, ThatIsMissingOrBrokenFailsAndKeepsTheImage)
{
    QImage image = gradient(false);
    EXPECT_FALSE(image.load((folder + "/none.png").c_str()));
    EXPECT_EQ(gradient(false), image);
    if (FILE* junk = std::fopen(file.c_str(), "w")) {
        std::fputs("not an image at all", junk);
        std::fclose(junk);
    }
    EXPECT_FALSE(image.load(file.c_str()));
    EXPECT_TRUE(QPixmap(file.c_str()).isNull());
}

TEST_F(Png, ThatIsAFolderFails)
{
    EXPECT_TRUE(QImage(folder.c_str()).isNull());
    EXPECT_TRUE(QPixmap(folder.c_str()).isNull());
    EXPECT_FALSE(QImage::imageFormat(folder.c_str()));
}

// 65536 times 65536 pixels of four bytes are 0 bytes where a size has 32 bits.
TEST_F(Png, ThatClaimsMorePixelsThanAnImageCanHaveFails)
{
    ASSERT_TRUE(gradient(true).save(file.c_str(), "PNG"));
    const std::string small = contentsOf(file);
    QImage image;
    const std::string same = claimingToBe(23, 17, small);
    EXPECT_TRUE(image.loadFromData(reinterpret_cast<const uchar*>(same.data()), uint(same.size())));
    for (const std::uint32_t extent : {65536u, 1000000u}) {
        const std::string large = claimingToBe(extent, extent, small);
        EXPECT_FALSE(image.loadFromData(reinterpret_cast<const uchar*>(large.data()), uint(large.size())));
    }
    EXPECT_EQ(gradient(true), image);
}

TEST_F(Png, IsNotSavedWhereItCannotBe)
{
    EXPECT_FALSE(gradient(false).save("/no/such/folder/x.png", "PNG"));
    EXPECT_FALSE(QImage().save(file.c_str(), "PNG"));
    EXPECT_FALSE(gradient(false).save(file.c_str(), "ZZZ"));
    EXPECT_EQ("QImageIO::write: No such image format handler: ZZZ\n", takeMessages());
}
