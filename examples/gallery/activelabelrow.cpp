// ZelActiveLabel in its four orientations, and made without a text and given one later.
#include "gallerywindow.h"
#include "rows.h"

#include <zelactivelabel.h>

namespace
{

const struct {
    const char* text;
    int textTop;
    int x, y, width, height;
} orientations[] = {
    {"Upright", 0, 0, 40, 110, 30},
    {"Upwards", 1, 120, 0, 30, 110},
    {"Upside down", 2, 160, 40, 116, 30},
    {"Downwards", 3, 280, 0, 30, 110},
};

} // namespace

void addActiveLabelRow(GalleryWindow& gallery)
{
    QWidget* const row = gallery.addRow("ZelActiveLabel", 110);
    for (const auto& orientation : orientations) {
        ZelActiveLabel* const label = new ZelActiveLabel(orientation.text, row, orientation.text);
        label->setGeometry(orientation.x, orientation.y, orientation.width, orientation.height);
        label->setTextTop(orientation.textTop);
        label->setAlignment(Qt::AlignCenter);
        gallery.watch(label, SIGNAL(clicked()));
    }

    ZelActiveLabel* const later = new ZelActiveLabel(row, "Text set later");
    later->setGeometry(320, 40, 130, 30);
    later->setText("Text set later");
    gallery.watch(later, SIGNAL(clicked()));
}
