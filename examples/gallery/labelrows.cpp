// ZelActiveLabel2 and ZelLabel.
#include "gallerywindow.h"
#include "rows.h"

#include <zelactivelabel2.h>
#include <zellabel.h>

void addActiveLabel2Row(GalleryWindow& gallery)
{
    QWidget* const row = gallery.addRow("ZelActiveLabel2", 30);
    const char* const texts[] = {"Copy", "Paste"};
    int x = 0;
    for (const char* text : texts) {
        ZelActiveLabel2* const label = new ZelActiveLabel2(row, text);
        label->setText(text);
        label->setGeometry(x, 0, 110, 30);
        gallery.watch(label, SIGNAL(pressed()));
        gallery.watch(label, SIGNAL(clicked()));
        x += 120;
    }
}

void addLabelRow(GalleryWindow& gallery)
{
    QWidget* const row = gallery.addRow("ZelLabel", 30);
    const struct {
        const char* text;
        bool active;
    } labels[] = {{"Active toggle", true}, {"Passive toggle", false}};
    int x = 0;
    for (const auto& entry : labels) {
        ZelLabel* const label = new ZelLabel(QString(entry.text), row, entry.text, entry.active, 0);
        label->setFrameStyle(int(QFrame::Panel) | int(QFrame::Raised));
        label->setAlignment(Qt::AlignCenter);
        label->setGeometry(x, 0, 150, 30);
        gallery.watch(label, SIGNAL(clicked(ZelLabel*)));
        x += 160;
    }
}
