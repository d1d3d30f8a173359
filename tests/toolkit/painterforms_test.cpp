// Forms of painter calls with points and rectangles draw what those with numbers do.
#include "sheet.h"

#include <gtest/gtest.h>
#include <qbitmap.h>
#include <qdrawutil.h>
#include <qfontinfo.h>
#include <qimage.h>
#include <qpointarray.h>
#include <qwmatrix.h>
#include <qwidget.h>

#include <functional>

namespace
{

typedef std::function<void(QPainter&)> Drawing;

Pixels drawn(const Drawing& drawing)
{
    Sheet sheet(40, 40);
    sheet.painter.setPen(Qt::black);
    sheet.painter.setBrush(Qt::red);
    drawing(sheet.painter);
    return sheet.pixels();
}

void expectSame(const Drawing& one, const Drawing& other)
{
    const Pixels a = drawn(one);
    EXPECT_EQ("", a.differenceFrom(drawn(other)));
    EXPECT_NE(a, drawn([](QPainter&) {})) << "nothing was drawn";
}

QPixmap smallPicture()
{
    QPixmap pixmap(8, 6);
    pixmap.fill(Qt::blue);
    QPainter painter(&pixmap);
    painter.fillRect(2, 1, 3, 3, Qt::yellow);
    return pixmap;
}

const QRect place(3, 5, 30, 20);

} // namespace

TEST(PainterForms, RoundShapesInRectangles)
{
    expectSame([](QPainter& p) { p.drawArc(place, 0, 90 * 16); },
               [](QPainter& p) { p.drawArc(3, 5, 30, 20, 0, 90 * 16); });
    expectSame([](QPainter& p) { p.drawChord(place, 0, 90 * 16); },
               [](QPainter& p) { p.drawChord(3, 5, 30, 20, 0, 90 * 16); });
    expectSame([](QPainter& p) { p.drawPie(place, 0, 90 * 16); },
               [](QPainter& p) { p.drawPie(3, 5, 30, 20, 0, 90 * 16); });
    expectSame([](QPainter& p) { p.drawEllipse(place); }, [](QPainter& p) { p.drawEllipse(3, 5, 30, 20); });
    expectSame([](QPainter& p) { p.drawRoundRect(place, 40, 50); },
               [](QPainter& p) { p.drawRoundRect(3, 5, 30, 20, 40, 50); });
    expectSame([](QPainter& p) { p.drawWinFocusRect(place); },
               [](QPainter& p) { p.drawWinFocusRect(3, 5, 30, 20); });
}

TEST(PainterForms, LinesFromPointToPoint)
{
    expectSame(
        [](QPainter& p) {
            p.moveTo(QPoint(2, 3));
            p.lineTo(QPoint(20, 30));
        },
        [](QPainter& p) { p.drawLine(2, 3, 20, 30); });
}

TEST(PainterForms, PixmapsAtPointsAndInRectangles)
{
    const QPixmap picture = smallPicture();
    expectSame([&](QPainter& p) { p.drawPixmap(QPoint(4, 5), picture); },
               [&](QPainter& p) { p.drawPixmap(4, 5, picture); });
    expectSame([&](QPainter& p) { p.drawPixmap(QPoint(4, 5), picture, QRect(1, 1, 4, 4)); },
               [&](QPainter& p) { p.drawPixmap(4, 5, picture, 1, 1, 4, 4); });
    expectSame([&](QPainter& p) { p.drawPixmap(QRect(4, 5, 8, 6), picture); },
               [&](QPainter& p) { p.drawPixmap(4, 5, picture); });
    expectSame([&](QPainter& p) { p.drawTiledPixmap(place, picture); },
               [&](QPainter& p) { p.drawTiledPixmap(3, 5, 30, 20, picture); });
    expectSame([&](QPainter& p) { p.drawTiledPixmap(place, picture, QPoint(2, 1)); },
               [&](QPainter& p) { p.drawTiledPixmap(3, 5, 30, 20, picture, 2, 1); });
}

TEST(PainterForms, ImagesAreDrawnAsPixmaps)
{
    const QPixmap picture = smallPicture();
    QImage image;
    image = picture;
    QPixmap back;
    back = image;
    EXPECT_EQ(picture.convertToImage(), back.convertToImage());
    const Drawing whole = [&](QPainter& p) { p.drawPixmap(4, 5, picture); };
    expectSame([&](QPainter& p) { p.drawImage(4, 5, image); }, whole);
    expectSame([&](QPainter& p) { p.drawImage(QPoint(4, 5), image); }, whole);
    expectSame([&](QPainter& p) { p.drawImage(QRect(4, 5, 8, 6), image); }, whole);
    expectSame([&](QPainter& p) { p.drawImage(QPoint(4, 5), image, QRect(1, 1, 4, 4)); },
               [&](QPainter& p) { p.drawPixmap(4, 5, picture, 1, 1, 4, 4); });
}

TEST(PainterForms, ErasedRectangles)
{
    const Drawing ground = [](QPainter& p) { p.fillRect(0, 0, 40, 40, Qt::green); };
    expectSame(
        [&](QPainter& p) {
            ground(p);
            p.setBackgroundColor(Qt::yellow);
            p.eraseRect(place);
        },
        [&](QPainter& p) {
            ground(p);
            p.fillRect(place, Qt::yellow);
        });
}

TEST(PainterForms, BrushesByStyle)
{
    expectSame(
        [](QPainter& p) {
            p.setBrush(Qt::Dense4Pattern);
            p.drawRect(place);
        },
        [](QPainter& p) {
            p.setBrush(QBrush(Qt::black, Qt::Dense4Pattern));
            p.drawRect(place);
        });
}

TEST(PainterForms, BrushOriginsByPoint)
{
    const Drawing pattern = [](QPainter& p) { p.fillRect(place, QBrush(Qt::black, Qt::BDiagPattern)); };
    expectSame(
        [&](QPainter& p) {
            p.setBrushOrigin(QPoint(3, 0));
            EXPECT_EQ(QPoint(3, 0), p.brushOrigin());
            pattern(p);
        },
        [&](QPainter& p) {
            p.setBrushOrigin(3, 0);
            pattern(p);
        });
    EXPECT_NE(drawn(pattern), drawn([&](QPainter& p) {
                  p.setBrushOrigin(QPoint(3, 0));
                  pattern(p);
              }));
}

TEST(PainterForms, MatricesReplaceOrCombine)
{
    const Drawing mark = [](QPainter& p) { p.fillRect(0, 0, 4, 2, Qt::red); };
    const QWMatrix shift(1, 0, 0, 1, 10, 5);
    expectSame(
        [&](QPainter& p) {
            p.setWorldMatrix(shift);
            EXPECT_EQ(shift, p.worldMatrix());
            p.setWorldMatrix(QWMatrix(1, 0, 0, 1, 2, 3), true);
            mark(p);
        },
        [](QPainter& p) { p.fillRect(12, 8, 4, 2, Qt::red); });
    expectSame(
        [&](QPainter& p) {
            p.setWorldMatrix(shift);
            p.setWorldXForm(false);
            mark(p);
        },
        mark);
    expectSame(
        [&](QPainter& p) {
            p.setWindow(0, 0, 20, 20);
            p.setViewXForm(false);
            mark(p);
        },
        mark);
    expectSame(
        [&](QPainter& p) {
            p.shear(1, 0);
            p.drawLine(0, 0, 0, 20);
        },
        [](QPainter& p) { p.drawLine(0, 0, 20, 20); });
}

TEST(PainterForms, PlacesAreMappedBothWays)
{
    Sheet sheet(40, 40);
    sheet.painter.translate(10, 5);
    QPointArray points(2);
    points.setPoint(0, 1, 2);
    points.setPoint(1, 3, 4);
    EXPECT_EQ(QPoint(11, 7), sheet.painter.xForm(points).point(0));
    EXPECT_EQ(QPoint(1, 2), sheet.painter.xFormDev(sheet.painter.xForm(points)).point(0));
    ASSERT_EQ(1u, sheet.painter.xForm(points, 1, 1).size());
    EXPECT_EQ(QPoint(13, 9), sheet.painter.xForm(points, 1, 1).point(0));
    EXPECT_EQ(QPoint(-7, -1), sheet.painter.xFormDev(points, 1, 1).point(0));
    EXPECT_EQ(QRect(11, 7, 3, 4), sheet.painter.xForm(QRect(1, 2, 3, 4)));
    EXPECT_EQ(QRect(1, 2, 3, 4), sheet.painter.xFormDev(QRect(11, 7, 3, 4)));
}

TEST(PainterForms, TabsAreRemembered)
{
    Sheet sheet(40, 40);
    EXPECT_EQ(0, sheet.painter.tabStops());
    EXPECT_FALSE(sheet.painter.tabArray());
    int places[] = {10, 25, 0};
    sheet.painter.setTabStops(13);
    sheet.painter.setTabArray(places);
    EXPECT_EQ(13, sheet.painter.tabStops());
    ASSERT_TRUE(sheet.painter.tabArray());
    EXPECT_EQ(25, sheet.painter.tabArray()[1]);
}

TEST(PainterForms, BeginLikeAWidget)
{
    QWidget widget(nullptr, "widget");
    QPalette palette = widget.palette();
    palette.setColor(QColorGroup::Foreground, Qt::blue);
    widget.setPalette(palette);
    widget.setFont(QFont("DejaVu Serif", 17));
    QPixmap pixmap(10, 10);
    QPainter painter;
    ASSERT_TRUE(painter.begin(&pixmap, &widget));
    EXPECT_EQ(Qt::blue, painter.pen().color());
    EXPECT_EQ(17, painter.fontInfo().pointSize());
    painter.flush();
}

TEST(PainterForms, DrawFunctionsWithRectangles)
{
    const QColorGroup group = QWidget().colorGroup();
    const QBrush red(Qt::red);
    expectSame([&](QPainter& p) { qDrawPlainRect(&p, place, Qt::blue, 2, &red); },
               [&](QPainter& p) { qDrawPlainRect(&p, 3, 5, 30, 20, Qt::blue, 2, &red); });
    expectSame([&](QPainter& p) { qDrawShadeLine(&p, QPoint(3, 5), QPoint(30, 5), group, true, 1, 1); },
               [&](QPainter& p) { qDrawShadeLine(&p, 3, 5, 30, 5, group, true, 1, 1); });
    expectSame([&](QPainter& p) { qDrawWinPanel(&p, place, group, true, &red); },
               [&](QPainter& p) { qDrawWinPanel(&p, 3, 5, 30, 20, group, true, &red); });
    expectSame([&](QPainter& p) { qDrawWinButton(&p, place, group, true, &red); },
               [&](QPainter& p) { qDrawWinButton(&p, 3, 5, 30, 20, group, true, &red); });
}

TEST(PixmapForms, TakeTheGroundOfAWidget)
{
    QWidget widget(nullptr, "widget");
    QPixmap tile(4, 4);
    tile.fill(Qt::green);
    QPainter(&tile).fillRect(0, 0, 2, 4, Qt::blue);
    widget.setPaletteBackgroundPixmap(tile);
    QPixmap pixmap(QSize(4, 2));
    pixmap.fill(&widget, 1, 0);
    EXPECT_EQ("bggb\nbggb\n", Pixels::of(pixmap).picture({{'b', 0x0000ff}, {'g', 0x00ff00}}));
    pixmap.fill(&widget, QPoint(2, 0));
    EXPECT_EQ("ggbb\nggbb\n", Pixels::of(pixmap).picture({{'b', 0x0000ff}, {'g', 0x00ff00}}));
}

TEST(PixmapForms, BitmapsAreCopiedAndLoaded)
{
    QBitmap bitmap(3, 1);
    bitmap.fill(Qt::color0);
    QPainter(&bitmap).fillRect(1, 0, 1, 1, Qt::color1);
    const QBitmap copy(bitmap);
    QBitmap assigned;
    assigned = bitmap;
    for (const QBitmap* each : {&copy, static_cast<const QBitmap*>(&assigned)})
        EXPECT_EQ(".#.\n", Pixels::of(*each).picture({{'.', 0}, {'#', 1}}));
    EXPECT_TRUE(QBitmap("/no/such/file.png").isNull());
}
