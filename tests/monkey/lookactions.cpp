// Fonts, palettes, cursors, captions: of one widget or of all.
#include "world.h"

#include <qapplication.h>
#include <qbitmap.h>
#include <qclipboard.h>
#include <qcursor.h>
#include <qpalette.h>
#include <qpixmap.h>

namespace
{

QColor anyColor(Random& r)
{
    return r.chance(5) ? QColor() : QColor(r.below(256), r.below(256), r.below(256));
}

QPalette anyPalette(Random& r)
{
    if (r.chance(10))
        return QPalette();
    const QColor button = anyColor(r);
    return QPalette(button, anyColor(r));
}

QFont anyFont(Random& r)
{
    static const char* const families[] = {"DejaVu Sans", "DejaVu Sans Mono", "Helvetica", "no such family",
                                           ""};
    QFont font(families[r.below(5)], r.between(1, 40), r.below(100), r.chance(20));
    if (r.chance(20))
        font.setPixelSize(r.between(1, 200));
    font.setUnderline(r.chance(10));
    font.setStrikeOut(r.chance(10));
    return font;
}

QPixmap anyPixmap(Random& r)
{
    if (r.chance(10))
        return QPixmap();
    const int width = r.between(1, 60);
    QPixmap pixmap(width, r.between(1, 60));
    pixmap.fill(anyColor(r));
    return pixmap;
}

void setFont(World& world, QWidget* target)
{
    target->setFont(anyFont(world.random));
}

void setPalette(World& world, QWidget* target)
{
    target->setPalette(anyPalette(world.random));
}

void setColors(World& world, QWidget* target)
{
    Random& r = world.random;
    switch (r.below(7)) {
    case 0:
        target->setPaletteBackgroundColor(anyColor(r));
        break;
    case 1:
        target->setPaletteForegroundColor(anyColor(r));
        break;
    case 2:
        target->setEraseColor(anyColor(r));
        break;
    case 3:
        target->setPaletteBackgroundPixmap(anyPixmap(r));
        break;
    case 4:
        target->setErasePixmap(anyPixmap(r));
        break;
    case 5:
        target->unsetPalette();
        break;
    default:
        target->unsetFont();
    }
}

void setBackground(World& world, QWidget* target)
{
    static const Qt::BackgroundMode modes[] = {
        Qt::FixedColor,   Qt::FixedPixmap, Qt::NoBackground, Qt::PaletteForeground, Qt::PaletteButton,
        Qt::PaletteLight, Qt::PaletteDark, Qt::PaletteBase,  Qt::PaletteBackground, Qt::PaletteHighlight};
    target->setBackgroundMode(modes[world.random.below(10)]);
    target->setBackgroundOrigin(static_cast<QWidget::BackgroundOrigin>(world.random.below(4)));
}

void setCursor(World& world, QWidget* target)
{
    Random& r = world.random;
    switch (r.below(4)) {
    case 0:
        target->unsetCursor();
        break;
    case 1:
        QApplication::setOverrideCursor(QCursor(r.anyInt()));
        break;
    case 2:
        QApplication::restoreOverrideCursor();
        break;
    default:
        target->setCursor(QCursor(r.anyInt()));
    }
}

void setApplicationFont(World& world, QWidget*)
{
    QApplication::setFont(anyFont(world.random), world.random.chance(70));
}

void setApplicationPalette(World& world, QWidget*)
{
    QApplication::setPalette(anyPalette(world.random), world.random.chance(70));
}

void setCaption(World& world, QWidget* target)
{
    target->setCaption(world.random.text());
    target->setIconText(world.random.text());
    target->setIcon(anyPixmap(world.random));
}

void setMask(World& world, QWidget* target)
{
    Random& r = world.random;
    if (r.chance(40)) {
        target->clearMask();
    } else {
        const int x = r.anyInt();
        const int y = r.anyInt();
        const int w = r.anyInt();
        target->setMask(QRegion(x, y, w, r.anyInt()));
    }
}

void clipboard(World& world, QWidget*)
{
    Random& r = world.random;
    const QClipboard::Mode mode = r.chance(50) ? QClipboard::Clipboard : QClipboard::Selection;
    if (r.chance(60))
        QApplication::clipboard()->setText(r.text(), mode);
    else if (r.chance(80))
        QApplication::clipboard()->text(mode);
    else
        QApplication::clipboard()->clear(mode);
}

} // namespace

const std::vector<Action> lookActions = {
    {"set font", 20, "QWidget", setFont},
    {"set palette", 14, "QWidget", setPalette},
    {"set colours", 24, "QWidget", setColors},
    {"set background", 14, "QWidget", setBackground},
    {"set cursor", 8, "QWidget", setCursor},
    {"application font", 4, nullptr, setApplicationFont},
    {"application palette", 4, nullptr, setApplicationPalette},
    {"set caption", 8, "QWidget", setCaption},
    {"set mask", 8, "QWidget", setMask},
    {"clipboard", 10, nullptr, clipboard},
};
