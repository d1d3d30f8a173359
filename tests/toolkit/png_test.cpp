// PNG files.
#include "messages.h"

#include <gtest/gtest.h>
#include <qimage.h>
#include <qpixmap.h>

#include <cstdio>
#include <cstdlib>
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

TEST_F(Png, IsNotSavedWhereItCannotBe)
{
    EXPECT_FALSE(gradient(false).save("/no/such/folder/x.png", "PNG"));
    EXPECT_FALSE(QImage().save(file.c_str(), "PNG"));
    EXPECT_FALSE(gradient(false).save(file.c_str(), "ZZZ"));
    EXPECT_EQ("QImageIO::write: No such image format handler: ZZZ\n", takeMessages());
}
