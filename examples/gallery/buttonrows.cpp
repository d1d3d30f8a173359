// ZelColorButton, ZelPushButton and ZelPushButton2.
#include "gallerywindow.h"
#include "rows.h"

#include <zelcolorbutton.h>
#include <zelpushbutton.h>
#include <zelpushbutton2.h>

void addColorButtonRow(GalleryWindow& gallery)
{
    QWidget* const row = gallery.addRow("ZelColorButton", 24);
    const struct {
        const char* name;
        QColor color;
    } colors[] = {{"Red", QColor(200, 0, 0)}, {"Green", QColor(0, 140, 0)}, {"Blue", QColor(0, 60, 200)}};
    int x = 0;
    for (const auto& entry : colors) {
        ZelColorButton* const button = new ZelColorButton(row, entry.name);
        button->setColor(entry.color);
        button->setGeometry(x, 0, 36, 24);
        gallery.watch(button, SIGNAL(clicked()));
        x += 44;
    }
}

void addPushButtonRow(GalleryWindow& gallery)
{
    QWidget* const row = gallery.addRow("ZelPushButton and ZelPushButton2", 32);
    ZelPushButton* const swatch = new ZelPushButton(QColor(230, 180, 0), row, "Amber");
    swatch->setGeometry(0, 0, 60, 32);
    gallery.watch(swatch, SIGNAL(clicked()));

    ZelPushButton2* const button = new ZelPushButton2("Press Escape", row, "Press Escape");
    button->setGeometry(70, 0, 130, 32);
    gallery.watch(button, SIGNAL(clicked()));
    gallery.watch(button, SIGNAL(escapePressed()));
}
